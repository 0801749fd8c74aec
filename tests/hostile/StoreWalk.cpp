// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "StoreWalk.h"

#include "Household.h"
#include "store/DBEngine.h"
#include "store/Queries.h"
#include "support/ErrorOf.h"

namespace StoreWalk {
namespace {

constexpr int kMostSteps = 50'000;

const QStringList kQueries{Queries::kPeopleByFirstName,
                           Queries::kPeopleByLastName,
                           Queries::kPeople,
                           Queries::kBirthdaysByMonth,
                           Queries::kAnniversariesByMonth,
                           Queries::kAddresses,
                           Queries::kRecords,
                           Queries::kPartners,
                           Queries::kCoupleDates,
                           Queries::kTotalAnn,
                           Queries::kAnnMonths,
                           Queries::kTotalBirthdays,
                           Queries::kBirthMonths,
                           Queries::kTotalAge,
                           Queries::kBirthYears,
                           Queries::kPeopleByCity,
                           Queries::kPeopleByProvince,
                           Queries::kEvents,
                           Queries::kEventChanges,
                           Queries::kEventsToPrint,
                           Queries::kNoticeBirthdays,
                           Queries::kNoticeAnniversaries,
                           Queries::kNoticeEvents,
                           Queries::kCheckBirthdays,
                           Queries::kCheckAnniversaries,
                           Queries::kCheckEvents};

const std::vector<std::pair<QString, QString>> kTables{
    {"People", {}},    {"People", "BirthMonth"}, {"Ann", {}},           {"Ann", "Spouse1ID"}, {"Ann", "Spouse2ID"},
    {"Reminders", {}}, {"Reminders", "Month"},   {"Reminders", "Date"}, {"Options", {}},      {"TotalBirthdays", {}},
    {"TotalAnn", {}},  {"TotalAge", {}}};

// One column of every row, there and back. False if it does not end.
bool Walk(Recordset& rows, const QString& column)
{
  int steps = 0;
  for (; !rows.Eof() && steps < kMostSteps; rows.MoveNext(), ++steps) {
    static_cast<void>(rows.Fields(column).Value());
  }
  if (steps > 0 && steps < kMostSteps) {
    for (rows.MoveLast(); !rows.Bof() && steps < 2 * kMostSteps; rows.MovePrevious()) {
      ++steps;
    }
  }
  return steps < kMostSteps;
}

void Try(const Apart::Say& say, const QString& name, const std::function<bool()>& walk)
{
  const int error = ErrorOf([&] {
    if (!walk()) {
      say(QStringLiteral("endless: ") + name);
    }
  });
  if (error != 0) {
    say(QStringLiteral("refused: %1").arg(error));
  }
}

// The first column that a query names, without its table.
QString FirstColumnOf(const QString& query)
{
  return query.section(u',', 0, 0).section(u'.', 1).section(u' ', 0, 0).trimmed();
}

bool WalkTable(const QString& table, const QString& index)
{
  Database database = DBEngine::OpenDatabase();
  const auto rows = database.OpenRecordset(table, Database::kTable);
  if (!index.isEmpty()) {
    rows->SetIndex(index);
    rows->Seek(QStringLiteral("="), QStringLiteral("May"));
    rows->SetIndex(index);
  }
  return Walk(*rows, index.isEmpty() ? (table.startsWith("Total") ? "Total"
                                        : table == "Options"      ? "Theme"
                                        : table == "Ann"          ? "AnnID"
                                        : table == "People"       ? "PeopleID"
                                                                  : "ID")
                                     : index);
}

bool WalkQuery(const QString& query)
{
  Database database = DBEngine::OpenDatabase();
  const auto rows = database.OpenRecordset(query, Database::kDynaset);
  return Walk(*rows, FirstColumnOf(query));
}

}

void Everything(const Apart::Say& say)
{
  const QByteArray before = Household::Contents(DBEngine::DatabasePath());
  for (const auto& [table, index] : kTables) {
    Try(say, table + u' ' + index, [&] { return WalkTable(table, index); });
  }
  for (const QString& query : kQueries) {
    Try(say, query, [&] { return WalkQuery(query); });
  }
  if (Household::Contents(DBEngine::DatabasePath()) != before) {
    say(QStringLiteral("written at: the store"));
  }
}

}
