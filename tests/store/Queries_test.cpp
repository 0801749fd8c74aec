// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/DBEngine.h"
#include "store/Queries.h"
#include "store/StoreError.h"
#include "support/ErrorOf.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace {

const QString* const kAllQueries[] = {
    &Queries::kPeopleByFirstName,
    &Queries::kPeopleByLastName,
    &Queries::kPeople,
    &Queries::kBirthdaysByMonth,
    &Queries::kAnniversariesByMonth,
    &Queries::kAddresses,
    &Queries::kRecords,
    &Queries::kPartners,
    &Queries::kCoupleDates,
    &Queries::kTotalAnn,
    &Queries::kAnnMonths,
    &Queries::kTotalBirthdays,
    &Queries::kBirthMonths,
    &Queries::kTotalAge,
    &Queries::kBirthYears,
    &Queries::kPeopleByCity,
    &Queries::kPeopleByProvince,
    &Queries::kEventsOfMonth,
    &Queries::kEvents,
    &Queries::kEventChanges,
    &Queries::kEventsToPrint,
    &Queries::kNoticeBirthdays,
    &Queries::kNoticeAnniversaries,
    &Queries::kNoticeEvents,
    &Queries::kCheckBirthdays,
    &Queries::kCheckAnniversaries,
    &Queries::kCheckEvents,
};

// How often each text stands in the file, with the texts in small letters.
std::map<QString, int> Totals(Recordset& cursor, const QString& field)
{
  std::map<QString, int> totals;
  for (; !cursor.Eof(); cursor.MoveNext()) {
    const QVariant value = cursor.Fields(field).Value();
    EXPECT_FALSE(value.isNull());
    EXPECT_TRUE(totals.emplace(value.toString().toLower(), cursor.Fields("Total").Value().toInt()).second);
  }
  return totals;
}

}

TEST(Queries, AllOfThemOpenOnTheDeliveredDatabase)
{
  const ProgramFolder folder;
  Database database = DBEngine::OpenDatabase();
  for (const QString* query : kAllQueries) {
    EXPECT_NO_THROW(static_cast<void>(database.OpenRecordset(*query, Database::kDynaset))) << query->toStdString();
  }
}

TEST(Queries, AllOfThemGiveEveryColumnTheyName)
{
  const ProgramFolder folder;
  folder.Execute("INSERT INTO People (LastName, City, Province) VALUES ('Adams', 'Ayr', 'Ontario')");
  folder.Execute("INSERT INTO Ann (Spouse1ID) VALUES (1)");
  folder.Execute("INSERT INTO Reminders (Event) VALUES ('Choir')");
  Database database = DBEngine::OpenDatabase();
  for (const QString* query : kAllQueries) {
    const auto cursor = database.OpenRecordset(*query, Database::kDynaset);
    EXPECT_FALSE(cursor->Eof()) << query->toStdString();
    const QString items = query->mid(7, query->indexOf(" from ", 0, Qt::CaseInsensitive) - 7);
    for (const QString& item : items.split(", ")) {
      const QString name = item.mid(std::max(item.lastIndexOf('.'), item.lastIndexOf(' ')) + 1);
      if (!name.startsWith('"')) {
        EXPECT_NO_THROW(static_cast<void>(cursor->Fields(name).Value())) << name.toStdString();
      }
    }
  }
}

TEST(Queries, CitiesAreCountedOnceWithoutRegardToCaseAndWithoutNull)
{
  const ProgramFolder folder;
  for (const QVariant& city : {QVariant("Ayr"), QVariant("Évry"), QVariant(), QVariant("AYR"), QVariant("Bonn"),
                               QVariant("évry"), QVariant(), QVariant("ÉVRY"), QVariant("Evry")}) {
    folder.Execute("INSERT INTO People (City) VALUES (?)", {city});
  }
  Database database = DBEngine::OpenDatabase();
  const auto cursor = database.OpenRecordset(Queries::kPeopleByCity, Database::kDynaset);
  EXPECT_EQ(Totals(*cursor, "City"), (std::map<QString, int>{{"ayr", 2}, {"bonn", 1}, {"evry", 1}, {"évry", 3}}));
}

TEST(Queries, ProvincesAreCounted)
{
  const ProgramFolder folder;
  folder.Execute("INSERT INTO People (Province) VALUES ('Ontario'), ('Québec'), ('QUÉBEC'), (NULL), ('')");
  Database database = DBEngine::OpenDatabase();
  const auto cursor = database.OpenRecordset(Queries::kPeopleByProvince, Database::kDynaset);
  EXPECT_EQ(Totals(*cursor, "Province"), (std::map<QString, int>{{"", 1}, {"ontario", 1}, {"québec", 2}}));
}

TEST(Queries, CountsAreWalkedLikeAnyRows)
{
  const ProgramFolder folder;
  folder.Execute("INSERT INTO People (City) VALUES ('Ayr'), ('Bonn'), ('Cork'), ('ayr')");
  Database database = DBEngine::OpenDatabase();
  const auto cursor = database.OpenRecordset(Queries::kPeopleByCity, Database::kDynaset);
  EXPECT_FALSE(cursor->Eof());
  EXPECT_EQ(cursor->RecordCount(), 1);
  cursor->MoveLast();
  EXPECT_EQ(cursor->RecordCount(), 3);
  EXPECT_EQ(cursor->AbsolutePosition(), 2);
  cursor->MoveNext();
  EXPECT_TRUE(cursor->Eof());
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(cursor->Fields("City").Value()); }), StoreError::kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { cursor->MoveNext(); }), StoreError::kNoCurrentRecord);
  cursor->MoveFirst();
  cursor->MovePrevious();
  EXPECT_TRUE(cursor->Bof());
}

TEST(Queries, CountsOfNobodyAreEmpty)
{
  const ProgramFolder folder;
  folder.Execute("INSERT INTO People (City) VALUES (NULL)");
  Database database = DBEngine::OpenDatabase();
  const auto cursor = database.OpenRecordset(Queries::kPeopleByCity, Database::kDynaset);
  EXPECT_TRUE(cursor->Eof());
  EXPECT_TRUE(cursor->Bof());
  EXPECT_EQ(cursor->RecordCount(), 0);
}

TEST(Queries, CountsCannotBeChanged)
{
  const ProgramFolder folder;
  folder.Execute("INSERT INTO People (City, Province) VALUES ('Ayr', 'Ontario')");
  Database database = DBEngine::OpenDatabase();
  for (const QString* query : {&Queries::kPeopleByCity, &Queries::kPeopleByProvince}) {
    const auto cursor = database.OpenRecordset(*query, Database::kDynaset);
    EXPECT_EQ(ErrorOf([&] { cursor->Edit(); }), StoreError::kReadOnly) << query->toStdString();
    EXPECT_EQ(ErrorOf([&] { cursor->AddNew(); }), StoreError::kReadOnly) << query->toStdString();
    EXPECT_EQ(ErrorOf([&] { cursor->Delete(); }), StoreError::kReadOnly) << query->toStdString();
  }
  EXPECT_EQ(folder.Value("SELECT City FROM People"), "Ayr");
}

TEST(Queries, CouplesStandByMonthAndDay)
{
  const ProgramFolder folder;
  folder.Execute(
      "INSERT INTO Ann (AnnMonth, AnnDate) VALUES ('May', '2'), ('April', '30'), ('may', '10'), (NULL, '1')");
  Database database = DBEngine::OpenDatabase();
  const auto cursor = database.OpenRecordset(Queries::kAnniversariesByMonth, Database::kDynaset);
  QVariantList keys;
  for (; !cursor->Eof(); cursor->MoveNext()) {
    keys.append(cursor->Fields("AnnID").Value());
  }
  EXPECT_EQ(keys, QVariantList({4, 2, 3, 1}));
}

TEST(Queries, EventsStandByMonthAndTime)
{
  const ProgramFolder folder;
  folder.Execute(
      "INSERT INTO Reminders (Month, Time) VALUES "
      "('May', '14:00:00'), ('May', '09:05:00'), ('april', '23:59:00'), ('May', NULL)");
  Database database = DBEngine::OpenDatabase();
  for (const QString* query : {&Queries::kEvents, &Queries::kEventChanges}) {
    const auto cursor = database.OpenRecordset(*query, Database::kDynaset);
    QVariantList keys;
    for (; !cursor->Eof(); cursor->MoveNext()) {
      keys.append(cursor->Fields("ID").Value());
    }
    EXPECT_EQ(keys, QVariantList({3, 4, 2, 1}));
  }
}
