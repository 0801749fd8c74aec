// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "occasions/Occasions.h"

#include "platform/Numeric.h"
#include "store/Database.h"
#include "store/Queries.h"

#include <functional>

namespace Occasions {
namespace {

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

// As a number, which most days are without a point.
bool IsBelowTen(const QString& day)
{
  constexpr int kTen = 10;
  bool isWhole = false;
  const int whole = day.toInt(&isWhole);
  return isWhole ? whole < kTen : IsNumeric(day) && day.toDouble() < kTen;
}

// A month of a large household has thousands of entries.
QString Joined(std::initializer_list<QStringView> parts)
{
  qsizetype length = 0;
  for (const QStringView part : parts) {
    length += part.size();
  }
  QString joined;
  joined.reserve(length);
  for (const QStringView part : parts) {
    joined += part;
  }
  return joined;
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
    Birthday birthday = ReadEntry();
    birthday.gender = TextOf(gender_);
    birthday.year = ValueOf(year_);
    return birthday;
  }
  // What a list shows of it: columns that are not asked for are not read.
  [[nodiscard]] Birthday ReadEntry() const
  {
    return {peopleID_.Peek().toInt(), TextOf(firstName_), TextOf(lastName_), {}, TextOf(month_), ValueOf(date_), {}};
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
    Anniversary anniversary = ReadEntry();
    anniversary.spouse1ID = spouse1ID_.Peek().toInt();
    anniversary.spouse2ID = spouse2ID_.Peek().toInt();
    anniversary.spouse1Last = TextOf(spouse1Last_);
    anniversary.spouse2Last = TextOf(spouse2Last_);
    anniversary.year = ValueOf(year_);
    return anniversary;
  }
  [[nodiscard]] Anniversary ReadEntry() const
  {
    Anniversary anniversary;
    anniversary.annID = annID_.Peek().toInt();
    anniversary.spouse1First = TextOf(spouse1First_);
    anniversary.spouse2First = TextOf(spouse2First_);
    anniversary.month = TextOf(month_);
    anniversary.date = ValueOf(date_);
    return anniversary;
  }

private:
  const Field &annID_, &spouse1ID_, &spouse2ID_, &spouse1First_, &spouse1Last_, &spouse2First_, &spouse2Last_, &month_,
      &date_, &year_;
};

void ForEachBirthday(Database& database, const QString& month, const std::function<void(const BirthdayColumns&)>& take)
{
  const auto rows = OpenAt(database, Queries::kBirthdaysByMonth, QStringLiteral("BirthMonth"), month);
  const BirthdayColumns columns(*rows);
  for (; !rows->Eof(); rows->MoveNext()) {
    if (columns.IsIn(month)) {
      take(columns);
    }
  }
}

void ForEachAnniversary(Database& database, const QString& month,
                        const std::function<void(const AnniversaryColumns&)>& take)
{
  const auto rows = OpenAt(database, Queries::kAnniversariesByMonth, QStringLiteral("AnnMonth"), month);
  const AnniversaryColumns columns(*rows);
  for (; !rows->Eof() && columns.IsIn(month); rows->MoveNext()) {
    take(columns);
  }
}

}

std::vector<Birthday> BirthdaysOf(Database& database, const QString& month)
{
  std::vector<Birthday> found;
  ForEachBirthday(database, month, [&](const BirthdayColumns& columns) { found.push_back(columns.Read()); });
  return found;
}

std::vector<Anniversary> AnniversariesOf(Database& database, const QString& month)
{
  std::vector<Anniversary> found;
  ForEachAnniversary(database, month, [&](const AnniversaryColumns& columns) { found.push_back(columns.Read()); });
  return found;
}

Entries BirthdayEntriesOf(Database& database, const QString& month)
{
  Entries entries;
  ForEachBirthday(database, month, [&](const BirthdayColumns& columns) {
    const Birthday birthday = columns.ReadEntry();
    entries.keys.push_back(birthday.peopleID);
    entries.lines.append(Entry(birthday));
  });
  return entries;
}

Entries AnniversaryEntriesOf(Database& database, const QString& month)
{
  Entries entries;
  ForEachAnniversary(database, month, [&](const AnniversaryColumns& columns) {
    const Anniversary anniversary = columns.ReadEntry();
    entries.keys.push_back(anniversary.annID);
    entries.lines.append(Entry(anniversary));
  });
  return entries;
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
  const bool oneDigit = IsBelowTen(day);
  return Joined({birthday.month, oneDigit ? u"  " : u" ", day, u" - ", birthday.firstName, u" ", birthday.lastName});
}

QString Entry(const Anniversary& anniversary)
{
  return Joined({anniversary.month, u" ", anniversary.date.toString(), u" - ", anniversary.spouse1First, u" and ",
                 anniversary.spouse2First});
}

}
