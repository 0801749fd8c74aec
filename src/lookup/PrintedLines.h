// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDate>
#include <QString>

// Lines of printed lists, each with the margins of the program.
namespace PrintedLines {

// The font of all but headings.
void SetBodyFont();

// A caption, tabs, and a text, which goes on below in its column where it is too wide for the
// paper. Breaks in the line begin rows at the left of the printable area.
void Print(const QString& line);

// In its own font, with an empty line above unless it is the first line of a page.
void PrintHeading(const QString& heading);

// "November 05, 2026"
[[nodiscard]] QString DateText(QDate date);

[[nodiscard]] QString Tabs(int count);

}
