// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class ComboBox;

// The boxes that the parts of a birthday or a wedding date are chosen from.
namespace DateBoxes {

// The lines of "/months.txt" in the program's folder. Throws 53 without the file.
void FillMonths(ComboBox& box);

void FillDays(ComboBox& box);   // 1 to 31
void FillYears(ComboBox& box);  // 1900 to 2050

}
