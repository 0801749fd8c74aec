// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "occasions/Occasions.h"

#include "platform/Numeric.h"
#include "store/Database.h"
#include "store/Queries.h"

namespace Occasions {
namespace {

constexpr int kFirstDayOfTwoDigits = 10;

// The rows of one value, without reading any other.
std::unique_ptr<Recordset> OpenAt(Database& database, const QString& query, const QString& column,
                                  const QVariant& value)
{
  return database.OpenRange(query, {column, value, value});
}

QString TextOf(const Field& field)
{
  return field.Peek().toString();
}

// Null for an empty text.
QVariant ValueOf(const Field& field)
{
  const QString text = TextOf(field);
  return text.isEmpty() ? QVariant() : QVariant(text);
}

// The columns of a cursor, found once for all its rows.
class BirthdayColumns
{
public:
  explicit BirthdayColumns(Recordset& rows)
      : peopleID_(rows.Fields(QStringLiteral("PeopleID"))),
        firstName_(rows.Fields(QStringLiteral("FirstName"))),
        lastName_(rows.Fields(QStringLiteral("LastName"))),
        gender_(rows.Fields(QStringLiteral("Gender"))),
        month_(rows.Fields(QStringLiteral("BirthMonth"))),
        date_(rows.Fields(QStringLiteral("BirthDate"))),
        year_(rows.Fields(QStringLiteral("BirthYear")))
  {}

  [[nodiscard]] bool IsIn(const QString& month) const { return month_.Peek() == month; }
  [[nodiscard]] Birthday Read() const
  {
    return {peopleID_.Peek().toInt(), TextOf(firstName_), TextOf(lastName_), TextOf(gender_),
            TextOf(month_),           ValueOf(date_),     ValueOf(year_)};
  }

private:
  const Field &peopleID_, &firstName_, &lastName_, &gender_, &month_, &date_, &year_;
};

class AnniversaryColumns
{
public:
  explicit AnniversaryColumns(Recordset& rows)
      : annID_(rows.Fields(QStringLiteral("AnnID"))),
        spouse1ID_(rows.Fields(QStringLiteral("Spouse1ID"))),
        spouse2ID_(rows.Fields(QStringLiteral("Spouse2ID"))),
        spouse1First_(rows.Fields(QStringLiteral("Spouse1First"))),
        spouse1Last_(rows.Fields(QStringLiteral("Spouse1Last"))),
        spouse2First_(rows.Fields(QStringLiteral("Spouse2First"))),
        spouse2Last_(rows.Fields(QStringLiteral("Spouse2Last"))),
        month_(rows.Fields(QStringLiteral("AnnMonth"))),
        date_(rows.Fields(QStringLiteral("AnnDate"))),
        year_(rows.Fields(QStringLiteral("AnnYear")))
  {}

  [[nodiscard]] bool IsIn(const QString& month) const { return month_.Peek() == month; }
  [[nodiscard]] Anniversary Read() const
  {
    return {annID_.Peek().toInt(),
            spouse1ID_.Peek().toInt(),
            spouse2ID_.Peek().toInt(),
            TextOf(spouse1First_),
            TextOf(spouse1Last_),
            TextOf(spouse2First_),
            TextOf(spouse2Last_),
            TextOf(month_),
            ValueOf(date_),
            ValueOf(year_)};
  }

private:
  const Field &annID_, &spouse1ID_, &spouse2ID_, &spouse1First_, &spouse1Last_, &spouse2First_, &spouse2Last_, &month_,
      &date_, &year_;
};

}

std::vector<Birthday> BirthdaysOf(Database& database, const QString& month)
{
  const auto rows = OpenAt(database, Queries::kBirthdaysByMonth, QStringLiteral("BirthMonth"), month);
  const BirthdayColumns columns(*rows);
  std::vector<Birthday> found;
  for (; !rows->Eof(); rows->MoveNext()) {
    if (columns.IsIn(month)) {
      found.push_back(columns.Read());
    }
  }
  return found;
}

std::vector<Anniversary> AnniversariesOf(Database& database, const QString& month)
{
  const auto rows = OpenAt(database, Queries::kAnniversariesByMonth, QStringLiteral("AnnMonth"), month);
  const AnniversaryColumns columns(*rows);
  std::vector<Anniversary> found;
  for (; !rows->Eof() && columns.IsIn(month); rows->MoveNext()) {
    found.push_back(columns.Read());
  }
  return found;
}

std::optional<Birthday> BirthdayOf(Database& database, int peopleID)
{
  const auto rows = OpenAt(database, Queries::kBirthdaysByMonth, QStringLiteral("PeopleID"), peopleID);
  return rows->Eof() ? std::nullopt : std::optional(BirthdayColumns(*rows).Read());
}

std::optional<Anniversary> AnniversaryOf(Database& database, int annID)
{
  const auto rows = OpenAt(database, Queries::kAnniversariesByMonth, QStringLiteral("AnnID"), annID);
  return rows->Eof() ? std::nullopt : std::optional(AnniversaryColumns(*rows).Read());
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
