// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

// What is printed of the events of a day.
namespace PrintedCell {

// All of up to four lines; of more the first three and " more...".
[[nodiscard]] QStringList Lines(const QStringList& events);

// The line without the time at its end.
[[nodiscard]] QString WithoutTime(const QString& line);

}
