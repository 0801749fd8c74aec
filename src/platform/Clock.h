// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDate>

// Today, for the whole program. Nothing else asks the system for the date.
namespace Clock {

[[nodiscard]] QDate Today();

// Stops the clock on a date, or lets it run again with an invalid one.
void StopOn(QDate date);

}
