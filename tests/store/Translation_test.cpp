// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/ConnectionSetup.h"
#include "store/DBEngine.h"
#include "store/Queries.h"
#include "store/StoreError.h"
#include "support/ErrorOf.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

#include <sqlite3.h>

namespace {

using Lines = std::vector<std::string>;

// What another connection to the file reads.
Lines ReadElsewhere(const QString& path, const QString& sql)
{
  sqlite3* connection = nullptr;
  EXPECT_EQ(sqlite3_open_v2(path.toUtf8().constData(), &connection, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
  SetUpConnection(connection);
  sqlite3_stmt* statement = nullptr;
  EXPECT_EQ(sqlite3_prepare_v2(connection, sql.toUtf8().constData(), -1, &statement, nullptr), SQLITE_OK)
      << sqlite3_errmsg(connection) << sql.toStdString();
  Lines lines;
  while (sqlite3_step(statement) == SQLITE_ROW) {
    std::string line;
    for (int column = 0; column < sqlite3_column_count(statement); ++column) {
      const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
      line += std::string(text == nullptr ? "NULL" : text) + '|';
    }
    lines.push_back(line);
  }
  sqlite3_finalize(statement);
  sqlite3_close(connection);
  return lines;
}

// What the store's own cursor reads.
Lines ReadHere(Database& database, const QString& query, const QStringList& columns)
{
  Lines lines;
  const auto cursor = database.OpenRecordset(query, Database::kDynaset);
  for (; !cursor->Eof(); cursor->MoveNext()) {
    std::string line;
    for (const QString& column : columns) {
      const QVariant value = cursor->Fields(column).Value();
      line += (value.isNull() ? "NULL" : value.toString().toStdString()) + '|';
    }
    lines.push_back(line);
  }
  return lines;
}

class Translation : public testing::Test
{
protected:
  Lines Elsewhere(const QString& query) { return ReadElsewhere(folder.DatabasePath(), database.Translate(query)); }
  Lines Here(const QString& query, const QStringList& columns) { return ReadHere(database, query, columns); }

  ProgramFolder folder;
  Database database = DBEngine::OpenDatabase();
};

}

TEST_F(Translation, GroupsAreThoseOfTheStoreInItsOrder)
{
  for (const char* city : {"Ayr", "évry", "AYR", "Straße", "STRASSE", "strasse", "Évry", "ayr ", "İzmir", "izmir", "",
                           "Ωmega", "ωMEGA", "Zoë", "zoË", "A & B", "<b>", "Ærø", "ÆRØ"}) {
    folder.Execute("INSERT INTO People (City, Province) VALUES (?, ?)", {city, city});
  }
  folder.Execute("INSERT INTO People (City) VALUES (NULL)");
  const Lines cities = Here(Queries::kPeopleByCity, {"City", "Total"});
  ASSERT_GT(cities.size(), 8U);
  EXPECT_EQ(Elsewhere(Queries::kPeopleByCity), cities);
  EXPECT_EQ(Elsewhere(Queries::kPeopleByProvince), Here(Queries::kPeopleByProvince, {"Province", "Total"}));
}

TEST_F(Translation, RowsWithoutAnOrderComeAsTheyAreStored)
{
  folder.Execute("UPDATE TotalAnn SET Total = rowid * 3");
  const Lines months = Elsewhere(Queries::kTotalAnn);
  ASSERT_EQ(months.size(), 12U);
  EXPECT_EQ(months.front(), "Jan|3|");
  EXPECT_EQ(months.back(), "Dec|36|");
  EXPECT_EQ(months, Here(Queries::kTotalAnn, {"Month", "Total"}));
  EXPECT_EQ(Elsewhere(Queries::kTotalBirthdays), Here(Queries::kTotalBirthdays, {"Month", "Total"}));
  EXPECT_EQ(Elsewhere(Queries::kTotalAge), Here(Queries::kTotalAge, {"Age", "Total"}));
}

TEST_F(Translation, RowsInAnOrderComeInTheStores)
{
  for (const char* name : {"bea", "Ada", "ada", "", "Éva", "évA", "Zoe"}) {
    folder.Execute("INSERT INTO People (FirstName, LastName, BirthMonth) VALUES (?, 'Li', 'May')", {name});
  }
  folder.Execute("INSERT INTO People (LastName, BirthMonth) VALUES ('Lima', 'april')");
  for (const QString* query : {&Queries::kPartners, &Queries::kBirthdaysByMonth}) {
    const Lines keys = Here(*query, {"PeopleID"});
    Lines found;
    const int column = query == &Queries::kPartners ? 0 : 1;
    for (const std::string& line : Elsewhere(*query)) {
      found.push_back(QString::fromStdString(line).section('|', column, column).toStdString() + '|');
    }
    EXPECT_EQ(found, keys) << query->toStdString();
  }
}

TEST_F(Translation, WhatIsNotUnderstoodIsRefused)
{
  const std::pair<const char*, int> kCases[] = {
      {"SELECT People.Nickname, Count(City) AS Total FROM People GROUP BY City", StoreError::kUnknownColumn},
      {"SELECT People.City, Count(City) AS Total FROM People GROUP BY Nickname", StoreError::kUnknownColumn},
      {"SELECT People.City FROM People ORDER BY Nickname", StoreError::kUnknownColumn},
      {"SELECT People.City, Count(City) AS Total FROM Persons GROUP BY City", StoreError::kSyntax},
      {"SELECT City FROM Persons", StoreError::kUnknownTable},
      {"SELECT People.City, Count(City) AS Total FROM People", StoreError::kSyntax},
      {"SELECT City, Count(City) AS Total FROM People GROUP BY City ORDER BY City", StoreError::kSyntax},
      {"DELETE FROM People", StoreError::kSyntax},
      {"", StoreError::kSyntax},
  };
  for (const auto& [query, number] : kCases) {
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(database.Translate(query)); }), number) << query;
  }
  database.Close();
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(database.Translate(Queries::kTotalAge)); }), StoreError::kClosed);
}

TEST_F(Translation, AnotherConnectionTrustsNoSchema)
{
  sqlite3* connection = nullptr;
  ASSERT_EQ(sqlite3_open_v2(folder.DatabasePath().toUtf8().constData(), &connection, SQLITE_OPEN_READONLY, nullptr),
            SQLITE_OK);
  SetUpConnection(connection);
  int trusted = -1;
  int defensive = -1;
  sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, -1, &trusted);
  sqlite3_db_config(connection, SQLITE_DBCONFIG_DEFENSIVE, -1, &defensive);
  EXPECT_EQ(trusted, 0);
  EXPECT_EQ(defensive, 1);
  sqlite3_close(connection);
}
