// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class Database;

// Prints birthdays and anniversaries, each line with the margins of the program. A text says
// what keeps them from being printed; a printing that fails or is cancelled ends without a word.
namespace OccasionPrinting {

struct Choices
{
  QString month;  // the one to print; empty for none
  bool allMonths = false;
  bool withYears = false;
  bool withDate = false;
};

void Print(Database& database, const Choices& choices);

}
