// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>
#include <QVariant>

#include <optional>
#include <vector>

class Database;

// The birthdays and wedding anniversaries of one month, and how a list shows them.
// Months are full English names. Names that are Null read as the empty text; a day or
// a year that is Null or an empty text is a null QVariant.
namespace Occasions {

struct Birthday
{
  int peopleID = 0;
  QString firstName;
  QString lastName;
  QString gender;
  QString month;
  QVariant date;
  QVariant year;
};

struct Anniversary
{
  int annID = 0;
  int spouse1ID = 0;
  int spouse2ID = 0;
  QString spouse1First;
  QString spouse1Last;
  QString spouse2First;
  QString spouse2Last;
  QString month;
  QVariant date;
  QVariant year;
};

// All people born in the month, their days in text order: "1", "10", "2". The month is
// compared exactly. Both throw what the store throws.
[[nodiscard]] std::vector<Birthday> BirthdaysOf(Database& database, const QString& month);

// The couples married in the month, in the same order. The store finds the first one
// without regard to case; the first row whose month is not exactly this one ends them.
[[nodiscard]] std::vector<Anniversary> AnniversariesOf(Database& database, const QString& month);

// The same as a list shows them, in the same order.
struct Entries
{
  std::vector<int> keys;
  QStringList lines;
};
[[nodiscard]] Entries BirthdayEntriesOf(Database& database, const QString& month);
[[nodiscard]] Entries AnniversaryEntriesOf(Database& database, const QString& month);

// One of them by its key, whatever its month; nothing if it is gone. No other row is read.
[[nodiscard]] std::optional<Birthday> BirthdayOf(Database& database, int peopleID);
[[nodiscard]] std::optional<Anniversary> AnniversaryOf(Database& database, int annID);

// "May  9 - Ann Lee", with two blanks before a day below 10, with one before any other,
// before a day that is no number and without a day.
[[nodiscard]] QString Entry(const Birthday& birthday);

// "May 9 - Ann and Bob", with one blank always.
[[nodiscard]] QString Entry(const Anniversary& anniversary);

}
