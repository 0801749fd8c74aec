// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDate>
#include <QString>

class Database;

// Prints birthdays and anniversaries, each line with the margins of the program.
namespace OccasionPrinting {

// Sets the font, and prints the date if `withDate`.
void Begin(bool withDate, QDate today);

// A month under its name. Throws 13 for a date that is none.
void PrintMonth(Database& database, const QString& month, bool withYears, QDate today);

}
