// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/Dialect.h"
#include "store/DBEngine.h"
#include "store/Queries.h"
#include "store/StoreError.h"
#include "support/ErrorOf.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

#include <random>

namespace {

const QString* const kFixedQueries[] = {
    &Queries::kPeopleByFirstName,
    &Queries::kPeopleByLastName,
    &Queries::kPeople,
    &Queries::kBirthdaysByMonth,
    &Queries::kAddresses,
    &Queries::kRecords,
    &Queries::kAnniversariesByMonth,
    &Queries::kPartners,
    &Queries::kCoupleDates,
    &Queries::kTotalAnn,
    &Queries::kAnnMonths,
    &Queries::kTotalAge,
    &Queries::kPeopleByCity,
    &Queries::kPeopleByProvince,
    &Queries::kEvents,
    &Queries::kEventsToPrint,
    &Queries::kCheckBirthdays,
    &Queries::kCheckEvents,
};

// Changes a text here and there: one to four letters or words gone, doubled or put in.
class Mutator
{
public:
  QString Mutate(QString text)
  {
    for (int changes = Below(4) + 1; changes > 0; --changes) {
      Change(text);
    }
    return text;
  }

  int Below(qsizetype limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

private:
  void Change(QString& text)
  {
    static const QStringList kPieces{
        "SELECT ", " FROM ",  " WHERE ", "Not ", "IsNull(", "ORDER BY ", "GROUP BY ",  " AS ", "Count(",
        "People",  "Ann.",    "City",    ",",    ".",       "&",         "\"",         "'",    "(",
        ")",       ";",       "*",       "--",   "/*",      "=",         " ",          "\n",   "[",
        "]",       "\\",      "%",       "9",    "é",       "🎂",         QChar(u'\0'), "``",   "||",
        "DESC ",   "LIMIT 1", "UNION ",  "?1",   ":a",      "@a",        "\t",         "_",
    };
    const qsizetype from = Below(text.size() + 1);
    const qsizetype length = Below(12);
    switch (Below(5)) {
      case 0:
        text.remove(from, length);
        break;
      case 1:
        text.insert(from, text.mid(Below(text.size() + 1), length));
        break;
      case 2:
        text.truncate(from);
        break;
      case 3:
        text.replace(from, length, kPieces[Below(kPieces.size())]);
        break;
      default:
        text.insert(from, kPieces[Below(kPieces.size())]);
    }
  }

  std::mt19937 random_{20020704};
};

}

TEST(Dialect, TakesASelectionApart)
{
  const Dialect::Select select = Dialect::ParseSelect(Queries::kPeopleByLastName);
  EXPECT_EQ(select.table, "People");
  ASSERT_EQ(select.items.size(), 21U);
  EXPECT_EQ(select.items.front().name, "PeopleID");
  EXPECT_EQ(select.items.back().name, "FullName");
  EXPECT_FALSE(select.notNull);
  EXPECT_FALSE(select.group);

  const Dialect::Expression& fullName = select.items.back().expression;
  ASSERT_EQ(fullName.size(), 3U);
  EXPECT_EQ(fullName[0].text, "LastName");
  EXPECT_FALSE(fullName[0].literal);
  EXPECT_EQ(fullName[1].text, ", ");
  EXPECT_TRUE(fullName[1].literal);
  EXPECT_EQ(fullName[2].text, "FirstName");

  ASSERT_EQ(select.order.size(), 1U);
  ASSERT_EQ(select.order[0].size(), 2U);
  EXPECT_EQ(select.order[0][0].text, "LastName");
  EXPECT_EQ(select.order[0][1].text, "FirstName");
}

TEST(Dialect, TakesAnOrderByTwoColumnsApart)
{
  const Dialect::Select select = Dialect::ParseSelect(Queries::kBirthdaysByMonth);
  ASSERT_EQ(select.order.size(), 2U);
  EXPECT_EQ(select.order[0].size(), 1U);
  EXPECT_EQ(select.order[0][0].text, "BirthMonth");
  EXPECT_EQ(select.order[1][0].text, "BirthDate");
}

TEST(Dialect, TakesAGroupingApart)
{
  const Dialect::Select select = Dialect::ParseSelect(Queries::kPeopleByCity);
  ASSERT_EQ(select.items.size(), 2U);
  EXPECT_FALSE(select.items[0].counted);
  EXPECT_TRUE(select.items[1].counted);
  EXPECT_EQ(select.items[1].name, "Total");
  EXPECT_EQ(select.notNull, "City");
  EXPECT_EQ(select.group, "City");
}

TEST(Dialect, WordsAndBlanksAreFree)
{
  const Dialect::Select select = Dialect::ParseSelect("select\tPeople.City\n FROM   people order By CITY");
  EXPECT_EQ(select.table.toLower(), "people");
  ASSERT_EQ(select.items.size(), 1U);
  EXPECT_EQ(select.items[0].name, "City");
  EXPECT_EQ(select.order.size(), 1U);
}

TEST(Dialect, RefusesWhatItDoesNotKnow)
{
  const ProgramFolder folder;
  Database database = DBEngine::OpenDatabase();
  const QString cases[] = {
      "",
      " ",
      "\n",
      "People",
      "SELECT",
      "SELECT FROM People",
      "SELECT People.City",
      "SELECT People.City FROM",
      "SELECT People.City People",
      "People.City FROM People",
      "FROM People SELECT People.City",
      "SELECT People.City FROM People People",
      "SELECT * FROM People",
      "SELECT People.* FROM People",
      "SELECT People.City, FROM People",
      "SELECT , People.City FROM People",
      "SELECT People.City,, People.Street FROM People",
      "SELECT People.City People.Street FROM People",
      "SELECT People. FROM People",
      "SELECT .City FROM People",
      "SELECT People..City FROM People",
      "SELECT People.City.Name FROM People",
      "SELECT DISTINCT People.City FROM People",
      "SELECT TOP 1 People.City FROM People",
      "SELECT People.City FROM People, Ann",
      "SELECT People.City FROM People INNER JOIN Ann ON People.PeopleID = Ann.Spouse1ID",
      "SELECT People.City FROM (SELECT People.City FROM People)",
      "SELECT (SELECT Ann.AnnID FROM Ann) AS X FROM People",
      "SELECT People.City FROM People UNION SELECT Ann.AnnMonth FROM Ann",
      "SELECT People.City FROM People WHERE",
      "SELECT People.City FROM People WHERE City = 'Ayr'",
      "SELECT People.City FROM People WHERE City LIKE 'A%'",
      "SELECT People.City FROM People WHERE IsNull(City)",
      "SELECT People.City FROM People WHERE Not IsNull City",
      "SELECT People.City FROM People WHERE Not IsNull()",
      "SELECT People.City FROM People WHERE Not IsNull(City",
      "SELECT People.City FROM People WHERE Not IsNull(City))",
      "SELECT People.City FROM People WHERE Not IsNull(City) AND Not IsNull(Street)",
      "SELECT People.City FROM People WHERE City IS NOT NULL",
      "SELECT People.City FROM People WHERE 1",
      "SELECT People.City FROM People ORDER",
      "SELECT People.City FROM People ORDER City",
      "SELECT People.City FROM People ORDER BY",
      "SELECT People.City FROM People ORDER BY City,",
      "SELECT People.City FROM People ORDER BY City Street",
      "SELECT People.City FROM People ORDER BY City DESC",
      "SELECT People.City FROM People ORDER BY City &",
      "SELECT People.City FROM People GROUP",
      "SELECT People.City FROM People GROUP BY",
      "SELECT People.City FROM People GROUP BY City HAVING Count(City)",
      "SELECT People.City FROM People LIMIT 1",
      "SELECT People.City FROM People x",
      "SELECT People.City FROM People;",
      "SELECT People.City FROM People; DROP TABLE People",
      "SELECT People.City FROM People -- all",
      "SELECT People.City /* all */ FROM People",
      "SELECT Sum(City) AS Total FROM People GROUP BY City",
      "SELECT Count(*) AS Total FROM People",
      "SELECT Count() AS Total FROM People",
      "SELECT Count(City AS Total FROM People",
      "SELECT Count(City, Street) AS Total FROM People",
      "SELECT Upper(City) AS X FROM People",
      "SELECT load_extension(\"x\") AS X FROM People",
      "SELECT (City) AS X FROM People",
      "SELECT City AS FROM People",
      "SELECT City AS \"X\" FROM People",
      "SELECT & City AS X FROM People",
      "SELECT City & AS X FROM People",
      "SELECT City & & Street AS X FROM People",
      "SELECT City + Street AS X FROM People",
      "SELECT City || Street AS X FROM People",
      "SELECT City \"x\" Street AS X FROM People",
      "SELECT City & \"x AS X FROM People",
      "SELECT City & x\" AS X FROM People",
      "SELECT [City] FROM People",
      "SELECT `City` FROM People",
      "SELECT ?1 FROM People",
      "SELECT People.City FROM \"People\"",
      "SELECT People.City FROM 'People'",
      "INSERT INTO People (City) VALUES ('Ayr')",
      "UPDATE People SET City = 'Ayr'",
      "DELETE FROM People",
      "DROP TABLE People",
      "PRAGMA user_version",
      "ATTACH \"x\" AS x",
      "🎂",
      QString(QChar(u'\0')),
      QStringLiteral("SELECT People.City FROM People") + QChar(u'\0'),
  };
  for (const QString& sql : cases) {
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(Dialect::ParseSelect(sql)); }), StoreError::kSyntax) << sql.toStdString();
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(database.OpenRecordset(sql, Database::kDynaset)); }), StoreError::kSyntax)
        << sql.toStdString();
  }
  EXPECT_EQ(folder.Value("SELECT Count(*) FROM Options"), 1);
}

TEST(Dialect, RefusesUnknownColumns)
{
  const ProgramFolder folder;
  Database database = DBEngine::OpenDatabase();
  for (const QString sql : {
           "SELECT People.Nickname FROM People",
           "SELECT Nickname FROM People",
           "SELECT People.City, People.AnnID FROM People",
           "SELECT FirstName & Nickname AS FullName FROM People",
           "SELECT People.City FROM People ORDER BY Nickname",
           "SELECT People.City FROM People ORDER BY City & Nickname",
           "SELECT People.City FROM People WHERE Not IsNull(Nickname)",
           "SELECT People.City, Count(Nickname) AS Total FROM People GROUP BY City",
           "SELECT People.City, Count(City) AS Total FROM People GROUP BY Nickname",
           "SELECT Ann.City FROM Ann",
           "SELECT rowid FROM People",
           "SELECT People.oid FROM People",
       }) {
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(database.OpenRecordset(sql, Database::kDynaset)); }),
              StoreError::kUnknownColumn)
        << sql.toStdString();
  }
}

TEST(Dialect, RefusesWhatItReadsAsAnUnknownName)
{
  const ProgramFolder folder;
  Database database = DBEngine::OpenDatabase();
  for (const QString sql : {
           "SELECT Ann.AnnMonth FROM People",
           "SELECT People.City FROM People ORDER BY Ann.AnnMonth",
           "SELECT People.City FROM People ORDER BY 1",
           "SELECT 7 FROM People",
           "SELECT City & 7 AS X FROM People",
           "SELECT People.City, Count(City) AS Total FROM People GROUP BY City ORDER BY Nickname",
           "SELECT People.City, Nickname FROM People GROUP BY City",
       }) {
    EXPECT_NE(ErrorOf([&] { static_cast<void>(database.OpenRecordset(sql, Database::kDynaset)); }), 0)
        << sql.toStdString();
  }
}

TEST(Dialect, LiteralsAreTakenAsTheyAre)
{
  const ProgramFolder folder;
  folder.Execute("INSERT INTO People (FirstName, LastName) VALUES ('Ann', 'Adams')");
  Database database = DBEngine::OpenDatabase();
  const struct
  {
    const char* sql;
    const char* value;
  } kCases[] = {
      {"SELECT FirstName & \"'\" & LastName AS X FROM People", "Ann'Adams"},
      {"SELECT FirstName & \"' || '\" AS X FROM People", "Ann' || '"},
      {"SELECT FirstName & \" -- ;\" AS X FROM People", "Ann -- ;"},
      {"SELECT FirstName & \" LastName \" AS X FROM People", "Ann LastName "},
      {"SELECT FirstName & \"\" & LastName AS X FROM People", "AnnAdams"},
      {"SELECT \"Dear \" & FirstName AS X FROM People", "Dear Ann"},
      {"SELECT \"🎂 é \" & FirstName AS X FROM People", "🎂 é Ann"},
      {"SELECT FirstName&LastName AS X FROM People", "AnnAdams"},
  };
  for (const auto& [sql, value] : kCases) {
    EXPECT_EQ(database.OpenRecordset(sql, Database::kDynaset)->Fields("X").Value(), value) << sql;
  }
}

TEST(Dialect, TakesCriteriaApart)
{
  const struct
  {
    const char* criteria;
    const char* column;
    const char* text;
  } kCases[] = {
      {"BirthMonth ='May'", "BirthMonth", "May"},
      {"Month ='Jan'", "Month", "Jan"},
      {"Age ='<10'", "Age", "<10"},
      {"fullname=\"Smith, Jim\"", "fullname", "Smith, Jim"},
      {"fullname=\"O'Neil, D'Arcy\"", "fullname", "O'Neil, D'Arcy"},
      {"fullname=\", \"", "fullname", ", "},
      {"  City  =  ''  ", "City", ""},
      {"City='  Ayr  '", "City", "  Ayr  "},
      {"City=\"=\"", "City", "="},
  };
  for (const auto& [criteria, column, text] : kCases) {
    const Dialect::Criterion criterion = Dialect::ParseCriterion(criteria);
    EXPECT_EQ(criterion.column, column) << criteria;
    EXPECT_EQ(criterion.text, text) << criteria;
  }
}

TEST(Dialect, RefusesOtherCriteria)
{
  for (const QString criteria : {
           "",
           " ",
           "City",
           "City =",
           "= 'Ayr'",
           "'Ayr'",
           "City 'Ayr'",
           "City = Ayr",
           "City = 7",
           "City = 'Ayr",
           "City = Ayr'",
           "City = \"Ayr",
           "City = \"Ayr'",
           "City = 'O'Neil'",
           "City = 'Ayr' AND Street = 'x'",
           "City = 'Ayr' OR 1",
           "City = 'Ayr';",
           "City = 'Ayr' --",
           "City = 'Ayr' 'Bonn'",
           "City == 'Ayr'",
           "City <> 'Ayr'",
           "City > 'Ayr'",
           "City LIKE 'Ayr'",
           "City IS NULL",
           "Not City = 'Ayr'",
           "(City = 'Ayr')",
           "City = ('Ayr')",
           "City = 'A' & 'yr'",
           "[City] = 'Ayr'",
           "'City' = 'Ayr'",
           "fullname=\"Smith, \"Jim\"\"",
           "fullname=\"Jim \"\"",
           "fullname=\"Jim \"the\" Smith\"",
           "fullname=\"a\"b\"",
           "fullname=\"\"\"",
       }) {
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(Dialect::ParseCriterion(criteria)); }), StoreError::kSyntax)
        << criteria.toStdString();
  }
}

TEST(Dialect, VeryLongTextsAreRefused)
{
  const QString tail = " FROM People";
  for (const QString piece : {"People.City, ", "(", "City & ", "\"x\" & ", "a", "\"", ".", "\n"}) {
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(Dialect::ParseSelect("SELECT " + piece.repeated(50'000))); }),
              StoreError::kSyntax)
        << piece.toStdString();
  }
  const ProgramFolder folder;
  Database database = DBEngine::OpenDatabase();
  const QString deep = "SELECT " + QString("City & ").repeated(50'000) + "City AS X" + tail;
  const int error = ErrorOf([&] { static_cast<void>(database.OpenRecordset(deep, Database::kDynaset)); });
  EXPECT_TRUE(error == 0 || error == StoreError::kSyntax) << error;
}

TEST(Dialect, MorePartsThanItEverHasAreRefused)
{
  const ProgramFolder folder;
  Database database = DBEngine::OpenDatabase();
  for (const int count : {101, 1500, 3000}) {
    for (const QString& query : {
             "SELECT " + QString("City & ").repeated(count) + "City AS X FROM People",
             "SELECT " + QString("City, ").repeated(count) + "City FROM People",
             "SELECT City FROM People ORDER BY " + QString("City, ").repeated(count) + "City",
             "SELECT City FROM People ORDER BY " + QString("City & ").repeated(count) + "City",
             "SELECT " + QString("Count(City) AS A, ").repeated(count) + "City FROM People GROUP BY City",
         }) {
      const auto open = [&] { static_cast<void>(database.OpenRecordset(query, Database::kDynaset)); };
      EXPECT_EQ(ErrorOf(open), StoreError::kSyntax) << count << query.left(50).toStdString();
    }
  }
}

TEST(Dialect, AZeroInALiteralIsRefused)
{
  const ProgramFolder folder;
  Database database = DBEngine::OpenDatabase();
  const QString query = QString("SELECT City & \"a%1b\" AS X FROM People").arg(QChar(u'\0'));
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(database.OpenRecordset(query, Database::kDynaset)); }),
            StoreError::kSyntax);
}

TEST(Dialect, MutatedQueriesAreRefusedOrRead)
{
  const ProgramFolder folder;
  folder.Execute("INSERT INTO People (LastName, City) VALUES ('Adams', 'Ayr'), ('Brown', 'Bonn')");
  folder.Execute("INSERT INTO Ann (Spouse1ID) VALUES (1)");
  const auto rows = folder.Rows("SELECT * FROM People, Ann, Options");
  Database database = DBEngine::OpenDatabase();
  Mutator mutator;
  int refused = 0;
  for (int i = 0; i < 4000; ++i) {
    const QString sql = mutator.Mutate(*kFixedQueries[mutator.Below(std::size(kFixedQueries))]);
    try {
      const auto cursor = database.OpenRecordset(sql, Database::kDynaset);
      while (!cursor->Eof()) {
        cursor->MoveNext();
      }
    } catch (const RuntimeError&) {
      ++refused;
    }
  }
  EXPECT_GT(refused, 1000);
  EXPECT_LT(refused, 4000);
  EXPECT_EQ(folder.Rows("SELECT * FROM People, Ann, Options"), rows);
}

TEST(Dialect, MutatedCriteriaAreRefusedOrFound)
{
  const ProgramFolder folder;
  folder.Execute("INSERT INTO People (LastName, BirthMonth) VALUES ('Adams', 'May')");
  Database database = DBEngine::OpenDatabase();
  const auto cursor = database.OpenRecordset(Queries::kRecords, Database::kDynaset);
  const QStringList criteria{"BirthMonth ='May'", "fullname=\"Adams, \"", "LastName ='O''Neil'", "City = \"x'y\""};
  Mutator mutator;
  int refused = 0;
  for (int i = 0; i < 4000; ++i) {
    const QString text = mutator.Mutate(criteria[mutator.Below(criteria.size())]);
    refused += ErrorOf([&] { cursor->FindFirst(text); }) != 0 ? 1 : 0;
  }
  EXPECT_GT(refused, 1000);
  EXPECT_LT(refused, 4000);
  EXPECT_EQ(folder.Value("SELECT Count(*) FROM People"), 1);
}
