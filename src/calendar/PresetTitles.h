// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QStringList>

// The titles that the event editor offers.
namespace PresetTitles {

// Those of "reminders.txt" in the program's folder. Throws 53 if the file is not there, 75 if
// it cannot be read.
[[nodiscard]] QStringList Read();

// The titles in the contents of such a file, in their order: the fields of a text, each ended
// by a comma or a line end. A field in quotes may hold commas, and quotes that are doubled.
// Blanks around a field are no part of it. Fields that are empty, or so long that nobody
// would have written them as a title, are left out. The text is UTF-8, or UTF-16 with its
// mark, or else Windows-1252.
[[nodiscard]] QStringList In(const QByteArray& contents);

}
