// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/DBEngine.h"
#include "store/Queries.h"
#include "store/StatementCounter.h"
#include "store/StoreError.h"
#include "support/ErrorOf.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

#include <QDate>
#include <QTime>

namespace {

class OpenRange : public testing::Test
{
protected:
  void Add(const QVariant& date, const QString& event, const QVariant& time = {}, const QString& month = "May") const
  {
    folder.Execute("INSERT INTO Reminders (Month, Date, Event, Time) VALUES (?,?,?,?)", {month, date, event, time});
  }

  std::unique_ptr<Recordset> Open(const QVariant& first = QDate(2026, 5, 1), const QVariant& last = QDate(2026, 5, 31),
                                  const QString& column = "Date")
  {
    return database.OpenRange(Queries::kEvents, {column, first, last});
  }

  static QString Titles(Recordset& cursor)
  {
    QStringList titles;
    for (; !cursor.Eof(); cursor.MoveNext()) {
      titles.append(cursor.Fields("Event").Value().toString());
    }
    return titles.join(' ');
  }
  std::string TitlesFrom(QDate first, QDate last) { return Titles(*Open(first, last)).toStdString(); }

  // A row of its own month for each of 20,000 days from 1990 on.
  void AddALotOfDays() const
  {
    folder.Execute(
        "INSERT INTO Reminders (Month, Date, Event) WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n "
        "WHERE i < 19999) SELECT 'May', date('1990-01-01', '+' || i || ' days'), 'Event ' || i FROM n");
  }

  ProgramFolder folder;
  Database database = DBEngine::OpenDatabase();
};

}

TEST_F(OpenRange, GivesTheRowsInsideWithBothEnds)
{
  Add("2026-04-30", "before");
  Add("2026-05-01", "first");
  Add("2026-05-15", "middle");
  Add("2026-05-31", "last");
  Add("2026-06-01", "after");
  Add("2025-05-15", "yearbefore");
  Add("2027-05-15", "yearafter");
  EXPECT_EQ(TitlesFrom(QDate(2026, 5, 1), QDate(2026, 5, 31)), "first middle last");
  EXPECT_EQ(TitlesFrom(QDate(2026, 5, 15), QDate(2026, 5, 15)), "middle");
  EXPECT_EQ(TitlesFrom(QDate(2026, 5, 2), QDate(2026, 5, 14)), "");
  EXPECT_EQ(TitlesFrom(QDate(2026, 5, 31), QDate(2026, 5, 1)), "");
  EXPECT_EQ(TitlesFrom(QDate(1900, 1, 1), QDate(2100, 1, 1)), "before first middle last after yearbefore yearafter");
}

TEST_F(OpenRange, TakesYearsOfFewerThanFourDigitsAndTheLastYearInTheirPlace)
{
  Add("0150-05-01", "old");
  Add("2026-05-01", "now");
  Add("9999-12-31", "far");
  EXPECT_EQ(TitlesFrom(QDate(100, 1, 1), QDate(999, 12, 31)), "old");
  EXPECT_EQ(TitlesFrom(QDate(2027, 1, 1), QDate(9999, 12, 31)), "far");
}

TEST_F(OpenRange, KeepsTheOrderOfTheQuery)
{
  Add("2026-05-09", "B", "21:00:00");
  Add("2026-05-10", "C", "09:00:00");
  Add("2026-05-11", "A");
  Add("2026-05-12", "D", "09:00:00");
  Add("2026-05-13", "E", {}, "April");
  Add("2026-05-14", "F");
  EXPECT_EQ(TitlesFrom(QDate(2026, 5, 1), QDate(2026, 5, 31)), "E A F C D B");
  const auto whole = database.OpenRecordset(Queries::kEvents, Database::kDynaset);
  EXPECT_EQ(Titles(*whole).toStdString(), "E A F C D B");
}

TEST_F(OpenRange, OpensOnItsFirstRowAndMovesBothWays)
{
  Add("2026-04-01", "X");
  for (const char* title : {"A", "B", "C"}) {
    Add("2026-05-01", title);
  }
  const auto cursor = Open();
  EXPECT_EQ(cursor->Fields("Event").Value(), "A");
  EXPECT_EQ(cursor->AbsolutePosition(), 0);
  cursor->MoveLast();
  EXPECT_EQ(cursor->Fields("Event").Value(), "C");
  EXPECT_EQ(cursor->RecordCount(), 3);
  cursor->MovePrevious();
  EXPECT_EQ(cursor->Fields("Event").Value(), "B");
  cursor->MoveFirst();
  cursor->MovePrevious();
  EXPECT_TRUE(cursor->Bof());
}

TEST_F(OpenRange, AnEmptyOneIsAtBothEnds)
{
  Add("2026-04-01", "X");
  const auto cursor = Open();
  EXPECT_TRUE(cursor->Eof());
  EXPECT_TRUE(cursor->Bof());
  EXPECT_EQ(cursor->RecordCount(), 0);
  EXPECT_EQ(ErrorOf([&] { cursor->MoveFirst(); }), StoreError::kNoCurrentRecord);
  cursor->FindFirst("Event ='X'");
  EXPECT_TRUE(cursor->NoMatch());
}

TEST_F(OpenRange, RowsWithoutAValueAreInNoRange)
{
  Add({}, "dateless");
  Add("2026-05-01", "dated");
  EXPECT_EQ(TitlesFrom(QDate(100, 1, 1), QDate(9999, 12, 31)), "dated");
  EXPECT_EQ(Titles(*Open(QVariant(), QVariant())).toStdString(), "");
  EXPECT_EQ(Titles(*Open(QVariant(), QDate(2026, 5, 31))).toStdString(), "");
}

TEST_F(OpenRange, GivesNullValuesOfItsOtherColumns)
{
  folder.Execute("INSERT INTO Reminders (Date) VALUES ('2026-05-01')");
  const auto cursor = Open();
  ASSERT_FALSE(cursor->Eof());
  for (const char* column : {"Event", "Month", "Time", "Notes"}) {
    EXPECT_TRUE(cursor->Fields(column).Value().isNull()) << column;
  }
  EXPECT_EQ(cursor->Fields("Date").Value(), QDate(2026, 5, 1));
}

TEST_F(OpenRange, FindsWithinTheRangeAlone)
{
  Add("2026-04-01", "outside");
  Add("2026-04-02", "both");
  Add("2026-05-01", "other");
  Add("2026-05-02", "both");
  Add("2026-05-03", "both");
  const auto cursor = Open();
  cursor->MoveLast();
  cursor->FindFirst("Event ='both'");
  EXPECT_FALSE(cursor->NoMatch());
  EXPECT_EQ(cursor->Fields("ID").Value(), 4);
  cursor->MoveNext();
  EXPECT_EQ(cursor->Fields("ID").Value(), 5);
  cursor->FindFirst("Event ='outside'");
  EXPECT_TRUE(cursor->NoMatch());
  EXPECT_EQ(cursor->Fields("ID").Value(), 5) << "the cursor stays";
}

TEST_F(OpenRange, FindsByMonth)
{
  Add("2026-05-01", "A", {}, "April");
  Add("2026-05-02", "M", {}, "May");
  const auto cursor = Open();
  cursor->FindFirst("Month ='May'");
  EXPECT_FALSE(cursor->NoMatch());
  EXPECT_EQ(cursor->Fields("Event").Value(), "M");
  cursor->FindFirst("Month ='June'");
  EXPECT_TRUE(cursor->NoMatch());
}

TEST_F(OpenRange, ARowAddedThroughItStandsAtItsEnd)
{
  Add("2026-05-02", "A");
  for (const QDate date : {QDate(2026, 5, 1), QDate(2030, 1, 1)}) {
    const auto cursor = Open();
    cursor->AddNew();
    cursor->Fields("Event").SetValue("new");
    cursor->Fields("Date").SetValue(date);
    cursor->Fields("Time").SetValue(QTime(16, 5));
    cursor->Update();
    EXPECT_EQ(cursor->Fields("Event").Value(), "A") << "the row that was current still is";
    cursor->MoveLast();
    EXPECT_EQ(cursor->Fields("Event").Value(), "new");
    EXPECT_EQ(cursor->Fields("Date").Value(), date);
    EXPECT_EQ(folder.Value("SELECT Time FROM Reminders WHERE Event='new'"), "16:05:00");
    folder.Execute("DELETE FROM Reminders WHERE Event='new'");
  }
}

TEST_F(OpenRange, ARowAddedThroughAnEmptyOneIsWritten)
{
  const auto cursor = Open();
  cursor->AddNew();
  cursor->Fields("Event").SetValue("new");
  cursor->Update();
  EXPECT_EQ(folder.Value("SELECT Event FROM Reminders"), "new");
}

TEST_F(OpenRange, EditsTheRowItStandsOn)
{
  Add("2026-04-01", "outside");
  Add("2026-05-01", "A");
  Add("2026-05-02", "B");
  const auto cursor = Open();
  cursor->MoveNext();
  cursor->Edit();
  cursor->Fields("Event").SetValue("changed");
  cursor->Fields("Time").SetValue(QTime(7, 0));
  cursor->Update();
  EXPECT_EQ(cursor->Fields("Event").Value(), "changed");
  cursor->MoveFirst();
  EXPECT_EQ(cursor->Fields("Event").Value(), "A") << "its order is settled when it is opened";
  const std::vector<QVariantList> rows = folder.Rows("SELECT Event, Time FROM Reminders ORDER BY ID");
  EXPECT_EQ(rows, (std::vector<QVariantList>{{"outside", QVariant()}, {"A", QVariant()}, {"changed", "07:00:00"}}));
}

TEST_F(OpenRange, DeletesTheRowItStandsOn)
{
  Add("2026-04-01", "outside");
  for (const char* title : {"A", "B", "C"}) {
    Add("2026-05-01", title);
  }
  const auto cursor = Open();
  cursor->MoveNext();
  cursor->Delete();
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(cursor->Fields("Event").Value()); }), StoreError::kRecordDeleted);
  cursor->MoveNext();
  EXPECT_EQ(cursor->Fields("Event").Value(), "C");
  cursor->MoveFirst();
  EXPECT_EQ(Titles(*cursor).toStdString(), "A C");
  EXPECT_EQ(folder.Value("SELECT group_concat(Event, ' ') FROM Reminders"), "outside A C");
}

TEST_F(OpenRange, ARowDeletedByAnotherProgramVanishes)
{
  for (const char* title : {"A", "B", "C"}) {
    Add("2026-05-01", title);
  }
  const auto cursor = Open();
  folder.Execute("DELETE FROM Reminders WHERE Event='B'");
  EXPECT_EQ(Titles(*cursor).toStdString(), "A C");
}

TEST_F(OpenRange, AnUnknownColumnIsRefused)
{
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(Open(1, 2, "Nothing")); }), StoreError::kUnknownColumn);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(Open(1, 2, "")); }), StoreError::kUnknownColumn);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(Open(1, 2, "ID\" OR \"ID")); }), StoreError::kUnknownColumn);
}

TEST_F(OpenRange, TakesAnyColumnOfTheTable)
{
  for (const char* title : {"A", "B", "C", "D"}) {
    Add("2026-05-01", title);
  }
  EXPECT_EQ(Titles(*Open(2, 3, "ID")).toStdString(), "B C");
  EXPECT_EQ(Titles(*Open("B", "C", "event")).toStdString(), "B C");
  const auto other = database.OpenRange(Queries::kPartners, {"BirthYear", "1980", "1990"});
  EXPECT_TRUE(other->Eof());
}

TEST_F(OpenRange, ItsEndsAreValuesAndNoWords)
{
  Add("2026-05-01", "O'Neil");
  Add("2026-05-01", "Other");
  EXPECT_EQ(Titles(*Open("O'Neil", "O'Neil", "Event")).toStdString(), "O'Neil");
  EXPECT_EQ(Titles(*Open("x' OR 'a'='a", "x' OR 'a'='a", "Event")).toStdString(), "");
}

TEST_F(OpenRange, WhatIsNoQueryIsRefusedAsEverywhere)
{
  EXPECT_EQ(ErrorOf([&] {
              static_cast<void>(database.OpenRange("DROP TABLE Reminders", {"Date", 1, 2}));
            }),
            StoreError::kSyntax);
  EXPECT_EQ(ErrorOf([&] {
              static_cast<void>(database.OpenRange("SELECT Nobody.ID FROM Nobody", {"ID", 1, 2}));
            }),
            StoreError::kUnknownTable);
  database.Close();
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(Open()); }), StoreError::kClosed);
}

TEST_F(OpenRange, RowsOutsideAreNotRead)
{
  const auto readMay = [&] {
    const StatementCounter counter(folder.DatabasePath());
    const auto cursor = Open();
    int rows = 0;
    for (; !cursor->Eof(); cursor->MoveNext()) {
      for (const char* column : {"ID", "Event", "Month", "Date", "Time", "Notes"}) {
        static_cast<void>(cursor->Fields(column).Value());
      }
      ++rows;
    }
    EXPECT_EQ(rows, 31);
    EXPECT_EQ(counter.Scanned, 0);
    return counter.Rows;
  };
  AddALotOfDays();
  static_cast<void>(readMay());  // the first reads what the tables are like
  const int among = readMay();
  folder.Execute("DELETE FROM Reminders WHERE Date NOT BETWEEN '2026-05-01' AND '2026-05-31'");
  const int alone = readMay();
  EXPECT_EQ(among, alone);
  EXPECT_GE(alone, 31);
}

TEST_F(OpenRange, SearchingWithinItDoesNotReadRowsOutside)
{
  AddALotOfDays();
  const auto cursor = Open(QDate(2026, 5, 1), QDate(2026, 5, 31));
  const StatementCounter counter(folder.DatabasePath());
  cursor->FindFirst("Month ='May'");
  EXPECT_FALSE(cursor->NoMatch());
  EXPECT_EQ(cursor->Fields("Event").Value(), "Event 13269");
  EXPECT_LE(counter.Rows, 100);
  EXPECT_EQ(counter.Scanned, 0);
}

TEST_F(OpenRange, TheWholeQueryIsCountedAsReadFromEndToEnd)
{
  AddALotOfDays();
  const StatementCounter counter(folder.DatabasePath());
  const auto cursor = database.OpenRecordset(Queries::kEvents, Database::kDynaset);
  EXPECT_FALSE(cursor->Eof());
  EXPECT_GE(counter.Rows, 20'000) << "the counter sees what is read";
}
