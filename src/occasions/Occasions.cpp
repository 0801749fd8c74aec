// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "occasions/Occasions.h"

#include "platform/Numeric.h"
#include "store/Database.h"
#include "store/Queries.h"

namespace Occasions {
namespace {

constexpr int kFirstDayOfTwoDigits = 10;

// Stands on the month's first row; nothing if there is none.
std::unique_ptr<Recordset> OpenAt(Database& database, const QString& query, const QString& column, const QString& month)
{
  auto rows = database.OpenRecordset(query, Database::kDynaset);
  rows->FindFirst(QStringLiteral("%1 ='%2'").arg(column, month));
  return rows->NoMatch() ? nullptr : std::move(rows);
}

int KeyIn(Recordset& rows, const char* column)
{
  return rows.Fields(QLatin1String(column)).Value().toInt();
}

QString TextIn(Recordset& rows, const char* column)
{
  return rows.Fields(QLatin1String(column)).Value().toString();
}

// Null for an empty text.
QVariant ValueIn(Recordset& rows, const char* column)
{
  const QString text = TextIn(rows, column);
  return text.isEmpty() ? QVariant() : QVariant(text);
}

Birthday ReadBirthday(Recordset& rows)
{
  return {KeyIn(rows, "PeopleID"),    TextIn(rows, "FirstName"),  TextIn(rows, "LastName"),  TextIn(rows, "Gender"),
          TextIn(rows, "BirthMonth"), ValueIn(rows, "BirthDate"), ValueIn(rows, "BirthYear")};
}

Anniversary ReadAnniversary(Recordset& rows)
{
  return {KeyIn(rows, "AnnID"),         KeyIn(rows, "Spouse1ID"),    KeyIn(rows, "Spouse2ID"),
          TextIn(rows, "Spouse1First"), TextIn(rows, "Spouse1Last"), TextIn(rows, "Spouse2First"),
          TextIn(rows, "Spouse2Last"),  TextIn(rows, "AnnMonth"),    ValueIn(rows, "AnnDate"),
          ValueIn(rows, "AnnYear")};
}

}

std::vector<Birthday> BirthdaysOf(Database& database, const QString& month)
{
  std::vector<Birthday> found;
  const QString column = QStringLiteral("BirthMonth");
  const auto rows = OpenAt(database, Queries::kBirthdaysByMonth, column, month);
  for (; rows && !rows->Eof(); rows->MoveNext()) {
    if (rows->Fields(column).Peek() == month) {
      found.push_back(ReadBirthday(*rows));
    }
  }
  return found;
}

std::vector<Anniversary> AnniversariesOf(Database& database, const QString& month)
{
  std::vector<Anniversary> found;
  const QString column = QStringLiteral("AnnMonth");
  const auto rows = OpenAt(database, Queries::kAnniversariesByMonth, column, month);
  for (; rows && !rows->Eof() && rows->Fields(column).Peek() == month; rows->MoveNext()) {
    found.push_back(ReadAnniversary(*rows));
  }
  return found;
}

QString Entry(const Birthday& birthday)
{
  const QString day = birthday.date.toString();
  const bool oneDigit = IsNumeric(day) && day.toDouble() < kFirstDayOfTwoDigits;
  return birthday.month + (oneDigit ? QStringLiteral("  ") : QStringLiteral(" ")) + day + QStringLiteral(" - ") +
         birthday.firstName + QLatin1Char(' ') + birthday.lastName;
}

QString Entry(const Anniversary& anniversary)
{
  return anniversary.month + QLatin1Char(' ') + anniversary.date.toString() + QStringLiteral(" - ") +
         anniversary.spouse1First + QStringLiteral(" and ") + anniversary.spouse2First;
}

}
