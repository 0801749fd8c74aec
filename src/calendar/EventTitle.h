// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// What the title of an event must be like.
namespace EventTitle {

// In characters, so that it fits its cell.
inline constexpr int kLongest = 12;

// Why a title is refused, or an empty text; `blank` is what to say of one that holds nothing
// but blanks.
[[nodiscard]] QString Refusal(const QString& title, const QString& blank);

}
