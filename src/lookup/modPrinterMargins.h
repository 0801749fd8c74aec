// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// The margins that every printed list keeps, in twips.
namespace modPrinterMargins {

inline constexpr int kLeftMargin = 1100;
inline constexpr int kTopMargin = 1000;
inline constexpr int kBottomMargin = 1000;

// Where the next line of a calendar's list of events begins, in twips from the top of the page.
inline int ListTop = 0;

// Starts a printed line: goes to the left margin, on a fresh page to the top margin too, and to
// the next page where the bottom margin is passed. Then ListTop is at the top margin as well.
void PrinterMargins();

}
