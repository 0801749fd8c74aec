// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/DBEngine.h"
#include "store/Queries.h"
#include "store/StoreError.h"
#include "support/ErrorOf.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

#include <QDate>

#include <algorithm>
#include <set>

namespace {

class Dynaset : public testing::Test
{
protected:
  void AddPerson(const QVariant& last, const QVariant& first) const
  {
    folder.Execute("INSERT INTO People (LastName, FirstName) VALUES (?, ?)", {last, first});
  }

  void AddBirthday(const QVariant& month, const QVariant& day) const
  {
    folder.Execute("INSERT INTO People (BirthMonth, BirthDate) VALUES (?, ?)", {month, day});
  }

  // Three people, in the order of kPartners as well as of their keys.
  void AddAdamsBrownClark() const
  {
    AddPerson("Adams", "Ann");
    AddPerson("Brown", "Bob");
    AddPerson("Clark", "Cid");
  }

  std::unique_ptr<Recordset> Open(const QString& query = Queries::kPartners)
  {
    return database.OpenRecordset(query, Database::kDynaset);
  }

  ProgramFolder folder;
  Database database = DBEngine::OpenDatabase();
};

QVariant Key(Recordset& cursor)
{
  return cursor.Fields("PeopleID").Value();
}

QString LastName(Recordset& cursor)
{
  return cursor.Fields("LastName").Value().toString();
}

void SetLastName(Recordset& cursor, const QString& name)
{
  cursor.Edit();
  cursor.Fields("LastName").SetValue(name);
  cursor.Update();
}

void Add(Recordset& cursor, const QString& last, const QString& first = "Zoe")
{
  cursor.AddNew();
  cursor.Fields("LastName").SetValue(last);
  cursor.Fields("FirstName").SetValue(first);
  cursor.Update();
}

QVariantList Column(Recordset& cursor, const QString& field)
{
  QVariantList values;
  for (; !cursor.Eof(); cursor.MoveNext()) {
    values.append(cursor.Fields(field).Value());
  }
  return values;
}

}

TEST_F(Dynaset, OpensOnItsFirstRow)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  EXPECT_FALSE(cursor->Bof());
  EXPECT_FALSE(cursor->Eof());
  EXPECT_EQ(LastName(*cursor), "Adams");
}

TEST_F(Dynaset, AnEmptyOneIsAtBothEnds)
{
  const auto cursor = Open();
  EXPECT_TRUE(cursor->Eof());
  EXPECT_TRUE(cursor->Bof());
  EXPECT_EQ(cursor->RecordCount(), 0);
  EXPECT_EQ(cursor->AbsolutePosition(), -1);
  EXPECT_EQ(ErrorOf([&] { cursor->MoveFirst(); }), StoreError::kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { cursor->MoveLast(); }), StoreError::kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { cursor->MoveNext(); }), StoreError::kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { cursor->MovePrevious(); }), StoreError::kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(LastName(*cursor)); }), StoreError::kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(cursor->GetBookmark()); }), StoreError::kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { cursor->Edit(); }), StoreError::kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { cursor->Delete(); }), StoreError::kNoCurrentRecord);
}

TEST_F(Dynaset, BeyondItsEndsThereIsNoRow)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  cursor->MovePrevious();
  EXPECT_TRUE(cursor->Bof());
  EXPECT_FALSE(cursor->Eof());
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(LastName(*cursor)); }), StoreError::kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { cursor->MovePrevious(); }), StoreError::kNoCurrentRecord);
  cursor->MoveLast();
  EXPECT_FALSE(cursor->Bof());
  cursor->MoveNext();
  EXPECT_TRUE(cursor->Eof());
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(LastName(*cursor)); }), StoreError::kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { cursor->MoveNext(); }), StoreError::kNoCurrentRecord);
  cursor->MovePrevious();
  EXPECT_EQ(LastName(*cursor), "Clark");
}

TEST_F(Dynaset, OrdersTextsWithoutRegardToCase)
{
  const QStringList shuffled{"écu", "ZED", "ada", "Émile", "Ω", "ADB", "ωb", "émilf", "Жук", "жаба", "zec"};
  for (const QString& name : shuffled) {
    AddPerson(name, "");
  }
  EXPECT_EQ(Column(*Open(), "LastName"),
            QVariantList({"ada", "ADB", "zec", "ZED", "écu", "Émile", "émilf", "Ω", "ωb", "жаба", "Жук"}));
}

TEST_F(Dynaset, OrdersEqualTextsByTheirKeys)
{
  AddPerson("ÉMILE", "");
  AddPerson("émile", "");
  AddPerson("Émile", "");
  AddPerson("abel", "");
  EXPECT_EQ(Column(*Open(), "PeopleID"), QVariantList({4, 1, 2, 3}));
}

TEST_F(Dynaset, OrdersJoinedTextsAsOneWithNullAsNothing)
{
  AddPerson("B", "a");
  AddPerson({}, "Bb");
  AddPerson("b", {});
  AddPerson({}, {});
  EXPECT_EQ(Column(*Open(), "PeopleID"), QVariantList({4, 3, 1, 2}));
}

TEST_F(Dynaset, OrdersNullFirst)
{
  AddBirthday("May", "1");
  AddBirthday("", "1");
  AddBirthday({}, "2");
  AddBirthday({}, {});
  AddBirthday("April", {});
  AddBirthday("April", "");
  EXPECT_EQ(Column(*Open(Queries::kBirthdaysByMonth), "PeopleID"), QVariantList({4, 3, 2, 5, 6, 1}));
}

TEST_F(Dynaset, OrdersDaysAsTexts)
{
  for (const QString day : {"2", "31", "10", "1", "11", "20", "3"}) {
    AddBirthday("May", day);
  }
  EXPECT_EQ(Column(*Open(Queries::kCheckBirthdays), "BirthDate"),
            QVariantList({"1", "10", "11", "2", "20", "3", "31"}));
}

TEST_F(Dynaset, OrdersMonthsByTheAlphabet)
{
  for (int month = 1; month <= 12; ++month) {
    AddBirthday(QLocale::c().monthName(month), {});
  }
  EXPECT_EQ(Column(*Open(Queries::kBirthMonths), "BirthMonth"),
            QVariantList({"April", "August", "December", "February", "January", "July", "June", "March", "May",
                          "November", "October", "September"}));
}

TEST_F(Dynaset, OrdersDatesByTime)
{
  for (const QString date : {"2004-02-29", "1999-12-31", "2004-02-03"}) {
    folder.Execute("INSERT INTO Reminders (Date) VALUES (?)", {date});
  }
  folder.Execute("INSERT INTO Reminders (Event) VALUES ('Some day')");
  const QVariantList dates = Column(*Open(Queries::kEventsToPrint), "Date");
  ASSERT_EQ(dates.size(), 4);
  EXPECT_TRUE(dates[0].isNull());
  EXPECT_EQ(dates.mid(1), QVariantList({QDate(1999, 12, 31), QDate(2004, 2, 3), QDate(2004, 2, 29)}));
}

TEST_F(Dynaset, WithoutAnOrderItsRowsStandByTheirKeys)
{
  for (const QString month : {"May", "April", "June"}) {
    folder.Execute("INSERT INTO Ann (AnnMonth) VALUES (?)", {month});
  }
  EXPECT_EQ(Column(*Open(Queries::kCoupleDates), "AnnMonth"), QVariantList({"May", "April", "June"}));
}

TEST_F(Dynaset, RecordCountCountsTheRowsVisited)
{
  AddAdamsBrownClark();
  AddPerson("Dent", "Dot");
  const auto cursor = Open();
  EXPECT_EQ(cursor->RecordCount(), 1);
  cursor->MoveNext();
  EXPECT_EQ(cursor->RecordCount(), 2);
  cursor->MovePrevious();
  cursor->MovePrevious();
  EXPECT_EQ(cursor->RecordCount(), 2);
  cursor->MoveFirst();
  EXPECT_EQ(cursor->RecordCount(), 2);
  cursor->MoveLast();
  EXPECT_EQ(cursor->RecordCount(), 4);
  cursor->MoveNext();
  EXPECT_EQ(cursor->RecordCount(), 4);
  cursor->MoveFirst();
  EXPECT_EQ(cursor->RecordCount(), 4);
}

TEST_F(Dynaset, RecordCountIsWholeAfterAWalkToTheEnd)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  while (!cursor->Eof()) {
    cursor->MoveNext();
  }
  EXPECT_EQ(cursor->RecordCount(), 3);
}

TEST_F(Dynaset, AbsolutePositionIsZeroBased)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  EXPECT_EQ(cursor->AbsolutePosition(), 0);
  cursor->MoveNext();
  EXPECT_EQ(cursor->AbsolutePosition(), 1);
  cursor->MoveLast();
  EXPECT_EQ(cursor->AbsolutePosition(), 2);
  cursor->MoveNext();
  EXPECT_EQ(cursor->AbsolutePosition(), -1);
  cursor->MoveFirst();
  EXPECT_EQ(cursor->AbsolutePosition(), 0);
  cursor->MovePrevious();
  EXPECT_EQ(cursor->AbsolutePosition(), -1);
}

TEST_F(Dynaset, BookmarkComesBackToItsRow)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  cursor->MoveNext();
  const Recordset::Bookmark bookmark = cursor->GetBookmark();
  cursor->MoveLast();
  cursor->SetBookmark(bookmark);
  EXPECT_EQ(LastName(*cursor), "Brown");
  EXPECT_EQ(cursor->AbsolutePosition(), 1);
  cursor->MoveLast();
  cursor->MoveNext();
  cursor->SetBookmark(bookmark);
  EXPECT_FALSE(cursor->Eof());
  EXPECT_EQ(LastName(*cursor), "Brown");
}

TEST_F(Dynaset, BookmarkHoldsWhenRowsBeforeItGo)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  cursor->MoveLast();
  const Recordset::Bookmark bookmark = cursor->GetBookmark();
  cursor->MoveFirst();
  cursor->Delete();
  cursor->MoveNext();
  cursor->SetBookmark(bookmark);
  EXPECT_EQ(LastName(*cursor), "Clark");
  cursor->MovePrevious();
  EXPECT_EQ(LastName(*cursor), "Brown");
}

TEST_F(Dynaset, BookmarkOfARowThatIsGoneIsRefused)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  const Recordset::Bookmark first = cursor->GetBookmark();
  cursor->MoveNext();
  const Recordset::Bookmark second = cursor->GetBookmark();
  cursor->Delete();
  cursor->MoveLast();
  folder.Execute("DELETE FROM People WHERE LastName = 'Adams'");
  EXPECT_EQ(ErrorOf([&] { cursor->SetBookmark(first); }), StoreError::kBadBookmark);
  EXPECT_EQ(ErrorOf([&] { cursor->SetBookmark(second); }), StoreError::kBadBookmark);
}

TEST_F(Dynaset, BookmarkFindsARowThatWasAdded)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  Add(*cursor, "Aaron");
  cursor->MoveLast();
  const Recordset::Bookmark bookmark = cursor->GetBookmark();
  cursor->MoveFirst();
  cursor->SetBookmark(bookmark);
  EXPECT_EQ(LastName(*cursor), "Aaron");
}

TEST_F(Dynaset, AddedRowIsInTheFileAtOnce)
{
  AddAdamsBrownClark();
  Add(*Open(), "Aaron", "Zoe");
  EXPECT_EQ(folder.Rows("SELECT PeopleID, LastName, FirstName FROM People WHERE PeopleID > 3"),
            std::vector<QVariantList>({{4, "Aaron", "Zoe"}}));
}

TEST_F(Dynaset, AddedRowIsLastUntilReopened)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  Add(*cursor, "Aaron");
  Add(*cursor, "Aalto");
  cursor->MoveFirst();
  EXPECT_EQ(Column(*cursor, "LastName"), QVariantList({"Adams", "Brown", "Clark", "Aaron", "Aalto"}));
  EXPECT_EQ(Column(*Open(), "LastName"), QVariantList({"Aalto", "Aaron", "Adams", "Brown", "Clark"}));
}

TEST_F(Dynaset, TheRowThatWasCurrentStillIsAfterOneIsAdded)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  cursor->MoveNext();
  Add(*cursor, "Aaron");
  EXPECT_EQ(LastName(*cursor), "Brown");
  EXPECT_EQ(cursor->AbsolutePosition(), 1);
}

TEST_F(Dynaset, MoveLastGivesTheKeyOfTheAddedRow)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  Add(*cursor, "Aaron");
  cursor->MoveLast();
  EXPECT_EQ(Key(*cursor), 4);
  EXPECT_EQ(cursor->AbsolutePosition(), 3);
  EXPECT_EQ(cursor->RecordCount(), 4);
}

TEST_F(Dynaset, FirstRowOfAllIsReachedAfterItIsAdded)
{
  const auto cursor = Open();
  Add(*cursor, "Adams");
  cursor->MoveLast();
  EXPECT_EQ(LastName(*cursor), "Adams");
  EXPECT_EQ(cursor->RecordCount(), 1);
  cursor->MoveNext();
  EXPECT_TRUE(cursor->Eof());
}

TEST_F(Dynaset, ARowThatAnotherAddsIsNotSeenUntilReopened)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  Add(*Open(), "Burns");
  EXPECT_EQ(Column(*cursor, "LastName"), QVariantList({"Adams", "Brown", "Clark"}));
}

TEST_F(Dynaset, DeletedRowVanishes)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  cursor->MoveNext();
  cursor->Delete();
  EXPECT_EQ(folder.Value("SELECT Count(*) FROM People"), 2);
  cursor->MoveFirst();
  EXPECT_EQ(Column(*cursor, "LastName"), QVariantList({"Adams", "Clark"}));
}

TEST_F(Dynaset, DeletedRowCannotBeReadUntilTheNextMove)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  cursor->Delete();
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(LastName(*cursor)); }), StoreError::kRecordDeleted);
  cursor->MoveNext();
  EXPECT_EQ(LastName(*cursor), "Brown");
}

TEST_F(Dynaset, FromADeletedRowMovesGoToItsNeighbours)
{
  AddAdamsBrownClark();
  AddPerson("Dent", "Dot");
  const auto cursor = Open();
  cursor->MoveNext();
  cursor->Delete();
  cursor->MoveNext();
  EXPECT_EQ(LastName(*cursor), "Clark");
  EXPECT_EQ(cursor->AbsolutePosition(), 1);
  cursor->Delete();
  cursor->MovePrevious();
  EXPECT_EQ(LastName(*cursor), "Adams");
  cursor->Delete();
  cursor->MovePrevious();
  EXPECT_TRUE(cursor->Bof());
  cursor->MoveLast();
  EXPECT_EQ(LastName(*cursor), "Dent");
  cursor->Delete();
  cursor->MoveNext();
  EXPECT_TRUE(cursor->Eof());
}

TEST_F(Dynaset, DeletingTheOnlyRowThenMovingBackIsBeforeTheFirst)
{
  AddPerson("Adams", "Ann");
  const auto cursor = Open();
  cursor->Delete();
  cursor->MovePrevious();
  EXPECT_TRUE(cursor->Bof());
  EXPECT_EQ(cursor->RecordCount(), 0);
  EXPECT_EQ(cursor->AbsolutePosition(), -1);
}

TEST_F(Dynaset, RecordCountFallsByOneWithEachDelete)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  cursor->MoveLast();
  cursor->Delete();
  EXPECT_EQ(cursor->RecordCount(), 2);
  cursor->MovePrevious();
  cursor->Delete();
  EXPECT_EQ(cursor->RecordCount(), 1);
}

TEST_F(Dynaset, AddedRowCanBeDeleted)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  Add(*cursor, "Aaron");
  cursor->MoveLast();
  cursor->Delete();
  cursor->MovePrevious();
  EXPECT_EQ(LastName(*cursor), "Clark");
  EXPECT_EQ(folder.Value("SELECT Count(*) FROM People"), 3);
}

TEST_F(Dynaset, FromADeletedLastRowMovesGoToItsNeighboursWhenARowIsAdded)
{
  for (const bool forward : {true, false}) {
    folder.Execute("DELETE FROM People");
    AddAdamsBrownClark();
    const auto cursor = Open();
    cursor->MoveLast();
    cursor->Delete();
    Add(*cursor, "Aaron");
    forward ? cursor->MoveNext() : cursor->MovePrevious();
    ASSERT_FALSE(cursor->Eof());
    EXPECT_EQ(LastName(*cursor), forward ? "Aaron" : "Brown");
  }
}

TEST_F(Dynaset, FromTheEndAnAddedRowIsBehind)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  cursor->MoveLast();
  cursor->MoveNext();
  Add(*cursor, "Aaron");
  EXPECT_TRUE(cursor->Eof());
  cursor->MovePrevious();
  EXPECT_EQ(LastName(*cursor), "Aaron");
}

TEST_F(Dynaset, AnotherCursorsChangeIsSeenAtTheNextMove)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  const auto other = Open();
  other->MoveNext();
  SetLastName(*other, "Zimmer");
  cursor->MoveNext();
  EXPECT_EQ(LastName(*cursor), "Zimmer");
  cursor->MoveNext();
  EXPECT_EQ(LastName(*cursor), "Clark");
}

TEST_F(Dynaset, AnotherCursorsChangeIsSeenInARowOnceRead)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  EXPECT_EQ(LastName(*cursor), "Adams");
  cursor->MoveNext();
  SetLastName(*Open(), "Aaron");
  cursor->MovePrevious();
  EXPECT_EQ(LastName(*cursor), "Aaron");
  EXPECT_EQ(cursor->Fields("FullName").Value(), "Aaron, Ann");
}

TEST_F(Dynaset, AnotherProgramsChangeIsSeenAtTheNextMove)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  folder.Execute("UPDATE People SET LastName = 'Aaron' WHERE LastName = 'Clark'");
  cursor->MoveLast();
  EXPECT_EQ(LastName(*cursor), "Aaron");
  EXPECT_EQ(cursor->AbsolutePosition(), 2);
}

TEST_F(Dynaset, AnotherCursorsChangeOfAnOrderingColumnIsSeenInTheOldPlace)
{
  for (const QString month : {"April", "June", "May"}) {
    AddBirthday(month, "1");
  }
  const auto cursor = Open(Queries::kBirthdaysByMonth);
  const auto other = Open(Queries::kBirthdaysByMonth);
  other->MoveNext();
  other->Edit();
  other->Fields("BirthMonth").SetValue("March");
  other->Update();
  EXPECT_EQ(Column(*cursor, "BirthMonth"), QVariantList({"April", "March", "May"}));
}

TEST_F(Dynaset, AnotherProgramsChangeOfAnOrderingColumnIsSeenInTheOldPlace)
{
  for (const QString month : {"April", "June", "May"}) {
    AddBirthday(month, "1");
  }
  const auto cursor = Open(Queries::kBirthdaysByMonth);
  EXPECT_EQ(cursor->Fields("BirthMonth").Value(), "April");
  folder.Execute("UPDATE People SET BirthMonth = 'March' WHERE BirthMonth = 'June'");
  EXPECT_EQ(Column(*cursor, "BirthMonth"), QVariantList({"April", "March", "May"}));
}

TEST_F(Dynaset, ItsOwnChangeOfAnOrderingColumnIsSeenInTheOldPlace)
{
  for (const QString month : {"April", "June", "May"}) {
    AddBirthday(month, "1");
  }
  const auto cursor = Open(Queries::kBirthdaysByMonth);
  cursor->Edit();
  cursor->Fields("BirthMonth").SetValue("September");
  cursor->Update();
  EXPECT_EQ(cursor->Fields("BirthMonth").Value(), "September");
  EXPECT_EQ(Column(*cursor, "BirthMonth"), QVariantList({"September", "June", "May"}));
}

TEST_F(Dynaset, ARowThatAnotherDeletesVanishes)
{
  AddAdamsBrownClark();
  AddPerson("Dent", "Dot");
  const auto cursor = Open();
  const auto other = Open();
  other->MoveNext();
  other->Delete();
  cursor->MoveNext();
  EXPECT_EQ(LastName(*cursor), "Clark");
  other->MoveLast();
  other->Delete();
  cursor->MoveNext();
  EXPECT_TRUE(cursor->Eof());
  cursor->MoveFirst();
  EXPECT_EQ(Column(*cursor, "LastName"), QVariantList({"Adams", "Clark"}));
}

TEST_F(Dynaset, ReadingARowThatAnotherDeletesIsRefused)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  folder.Execute("DELETE FROM People WHERE LastName = 'Adams'");
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(LastName(*cursor)); }), StoreError::kRecordDeleted);
  cursor->MoveNext();
  EXPECT_EQ(LastName(*cursor), "Brown");
}

TEST_F(Dynaset, WithEveryRowDeletedByAnotherThereIsNoFirst)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  cursor->MoveNext();
  folder.Execute("DELETE FROM People");
  EXPECT_EQ(ErrorOf([&] { cursor->MoveFirst(); }), StoreError::kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { cursor->MoveLast(); }), StoreError::kNoCurrentRecord);
}

TEST_F(Dynaset, JoinedColumnsAreLive)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  EXPECT_EQ(cursor->Fields("FullName").Value(), "Adams, Ann");
  SetLastName(*cursor, "Aaron");
  EXPECT_EQ(cursor->Fields("FullName").Value(), "Aaron, Ann");
}

TEST_F(Dynaset, JoinedColumnsTakeNullAsNothing)
{
  folder.Execute("INSERT INTO People (LastName, AnnMonth) VALUES ('Adams', 'May')");
  const auto cursor = Open(Queries::kRecords);
  EXPECT_EQ(cursor->Fields("FullName").Value(), "Adams, ");
  EXPECT_EQ(cursor->Fields("CompleteAnn").Value(), "May  ");
  cursor->Edit();
  cursor->Fields("AnnDate").SetValue("7");
  cursor->Fields("AnnYear").SetValue("1931");
  cursor->Update();
  EXPECT_EQ(cursor->Fields("CompleteAnn").Value(), "May 7 1931");
}

TEST_F(Dynaset, JoinedColumnsOfNullsAloneHoldTheirTexts)
{
  AddPerson({}, {});
  const auto cursor = Open(Queries::kRecords);
  EXPECT_EQ(cursor->Fields("FullName").Value(), ", ");
  EXPECT_EQ(cursor->Fields("CompleteAnn").Value(), "  ");
}

TEST_F(Dynaset, FirstNameComesFirstWhereTheQuerySaysSo)
{
  AddPerson("Adams", "Zoe");
  AddPerson("Young", "Bob");
  EXPECT_EQ(Column(*Open(Queries::kPeopleByFirstName), "FullName"), QVariantList({"Bob Young", "Zoe Adams"}));
  EXPECT_EQ(Column(*Open(Queries::kPeopleByLastName), "FullName"), QVariantList({"Adams, Zoe", "Young, Bob"}));
}

TEST_F(Dynaset, FindFirstTakesEveryFormOfCriteria)
{
  AddBirthday("June", "1");
  AddBirthday("May", "2");
  const struct
  {
    const QString& query;
    const char* criteria;
    int position;
  } kCases[] = {
      {Queries::kBirthdaysByMonth, "BirthMonth ='May'", 1},
      {Queries::kBirthdaysByMonth, "birthmonth ='MAY'", 1},
      {Queries::kBirthdaysByMonth, "BirthMonth='May'", 1},
      {Queries::kBirthdaysByMonth, "BirthMonth = \"May\"", 1},
      {Queries::kTotalBirthdays, "Month ='Jan'", 0},
      {Queries::kTotalAnn, "Month ='Dec'", 11},
      {Queries::kTotalAge, "Age ='<10'", 0},
  };
  for (const auto& [query, criteria, position] : kCases) {
    const auto cursor = Open(query);
    cursor->FindFirst(criteria);
    EXPECT_FALSE(cursor->NoMatch()) << criteria;
    EXPECT_EQ(cursor->AbsolutePosition(), position) << criteria;
  }
}

TEST_F(Dynaset, FindFirstFindsAJoinedNameWithoutRegardToCase)
{
  AddPerson("Öberg", "Åsa");
  AddPerson("Smith", "Jim");
  AddPerson("Smith", "Jim B");
  const auto cursor = Open();
  for (const QString criteria : {"fullname=\"Smith, Jim\"", "FullName=\"SMITH, jim\"", "FULLNAME = 'smith, jim'"}) {
    cursor->MoveLast();
    cursor->FindFirst(criteria);
    EXPECT_FALSE(cursor->NoMatch()) << criteria.toStdString();
    EXPECT_EQ(Key(*cursor), 2) << criteria.toStdString();
  }
  cursor->FindFirst("fullname=\"öBERG, åSA\"");
  EXPECT_EQ(Key(*cursor), 1);
}

TEST_F(Dynaset, FindFirstGivesTheFirstRowInTheCursorsOrder)
{
  AddPerson("Smith", "Jim");
  AddPerson("Adams", "Ann");
  AddPerson("Smith", "Jim");
  const auto cursor = Open();
  cursor->MoveLast();
  cursor->FindFirst("fullname=\"Smith, Jim\"");
  EXPECT_EQ(Key(*cursor), 1);
  EXPECT_EQ(cursor->AbsolutePosition(), 1);
}

TEST_F(Dynaset, FindFirstReachesAddedRowsLast)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  Add(*cursor, "Aaron", "Zoe");
  Add(*cursor, "Clark", "Cid");
  cursor->FindFirst("fullname=\"Aaron, Zoe\"");
  EXPECT_EQ(Key(*cursor), 4);
  cursor->FindFirst("fullname=\"Clark, Cid\"");
  EXPECT_EQ(Key(*cursor), 3);
}

TEST_F(Dynaset, FindFirstSeesRowsAsTheyAre)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  cursor->MoveNext();
  SetLastName(*cursor, "Zimmer");
  folder.Execute("UPDATE People SET LastName = 'Young' WHERE LastName = 'Clark'");
  folder.Execute("DELETE FROM People WHERE LastName = 'Adams'");
  cursor->FindFirst("LastName ='Zimmer'");
  EXPECT_EQ(Key(*cursor), 2);
  cursor->FindFirst("LastName ='Young'");
  EXPECT_EQ(Key(*cursor), 3);
  for (const QString criteria : {"LastName ='Brown'", "LastName ='Clark'", "LastName ='Adams'"}) {
    cursor->FindFirst(criteria);
    EXPECT_TRUE(cursor->NoMatch()) << criteria.toStdString();
  }
}

TEST_F(Dynaset, WithoutAMatchTheCursorStays)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  EXPECT_FALSE(cursor->NoMatch());
  cursor->MoveNext();
  for (const QString criteria : {"LastName ='Nobody'", "LastName =''", "FullName ='Adams'", "LastName ='Adams '"}) {
    cursor->FindFirst(criteria);
    EXPECT_TRUE(cursor->NoMatch()) << criteria.toStdString();
    EXPECT_EQ(LastName(*cursor), "Brown");
    EXPECT_EQ(cursor->AbsolutePosition(), 1);
  }
  cursor->FindFirst("LastName ='Clark'");
  EXPECT_FALSE(cursor->NoMatch());
}

TEST_F(Dynaset, FindFirstBeginsAgainBehindTheEnd)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  cursor->MoveLast();
  cursor->MoveNext();
  cursor->FindFirst("LastName ='Nobody'");
  EXPECT_TRUE(cursor->Eof());
  cursor->FindFirst("LastName ='Adams'");
  EXPECT_FALSE(cursor->Eof());
  EXPECT_EQ(LastName(*cursor), "Adams");
}

TEST_F(Dynaset, FindFirstInAnEmptyOneFindsNothing)
{
  const auto cursor = Open();
  cursor->FindFirst("LastName ='Adams'");
  EXPECT_TRUE(cursor->NoMatch());
}

TEST_F(Dynaset, FindFirstNeverFindsNull)
{
  AddPerson({}, "Ann");
  AddPerson("", "Bob");
  const auto cursor = Open();
  cursor->FindFirst("LastName =''");
  EXPECT_FALSE(cursor->NoMatch());
  EXPECT_EQ(Key(*cursor), 2);
}

TEST_F(Dynaset, FindFirstTakesAnApostropheInANameAsItIs)
{
  AddAdamsBrownClark();
  AddPerson("O'Dunnegan", "D'Arcy");
  const auto cursor = Open();
  cursor->FindFirst("fullname=\"O'Dunnegan, D'Arcy\"");
  EXPECT_FALSE(cursor->NoMatch());
  EXPECT_EQ(Key(*cursor), 4);
}

TEST_F(Dynaset, FindFirstRefusesADoubleQuoteInANameAndStays)
{
  AddAdamsBrownClark();
  AddPerson("Smith", "\"Jim\"");
  const auto cursor = Open();
  cursor->MoveNext();
  EXPECT_EQ(ErrorOf([&] { cursor->FindFirst("fullname=\"Smith, \"Jim\"\""); }), StoreError::kSyntax);
  EXPECT_EQ(LastName(*cursor), "Brown");
}

TEST_F(Dynaset, FindFirstRefusesAColumnThatIsNotThere)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  EXPECT_EQ(ErrorOf([&] { cursor->FindFirst("Nickname ='Jo'"); }), StoreError::kUnknownColumn);
}

TEST_F(Dynaset, WhatBelongsToTablesIsRefused)
{
  AddAdamsBrownClark();
  const auto cursor = Open();
  EXPECT_NE(ErrorOf([&] { cursor->SetIndex("BirthMonth"); }), 0);
  EXPECT_NE(ErrorOf([&] { cursor->Seek("=", "May"); }), 0);
  EXPECT_EQ(LastName(*cursor), "Adams");
}

TEST_F(Dynaset, WalksOverManyRowsGiveEveryRowOnce)
{
  constexpr int kRows = 1000;
  folder.Execute(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1000) "
      "INSERT INTO People (BirthMonth, BirthDate) "
      "SELECT CASE WHEN i % 3 > 0 THEN NULL ELSE 'May' END, CASE WHEN i % 7 > 0 THEN i % 28 END FROM n");
  const auto cursor = Open(Queries::kBirthdaysByMonth);
  std::vector<qlonglong> forward;
  for (; !cursor->Eof(); cursor->MoveNext()) {
    EXPECT_EQ(cursor->AbsolutePosition(), static_cast<int>(forward.size()));
    forward.push_back(Key(*cursor).toLongLong());
  }
  cursor->MoveLast();
  std::vector<qlonglong> backward;
  for (; !cursor->Bof(); cursor->MovePrevious()) {
    backward.push_back(Key(*cursor).toLongLong());
  }
  std::reverse(backward.begin(), backward.end());
  EXPECT_EQ(std::set<qlonglong>(forward.begin(), forward.end()).size(), kRows);
  EXPECT_EQ(cursor->RecordCount(), kRows);
  EXPECT_EQ(forward, backward);
}

TEST_F(Dynaset, ItsRowsStayReadableWhileOthersComeAndGo)
{
  for (int i = 0; i < 300; ++i) {
    AddPerson(QString::number(i), "Ann");
  }
  const auto cursor = Open();
  std::set<qlonglong> seen;
  for (int step = 0; !cursor->Eof(); cursor->MoveNext(), ++step) {
    EXPECT_TRUE(seen.insert(Key(*cursor).toLongLong()).second);
    if (step % 2 == 0) {
      cursor->Delete();
    }
    if (step % 50 == 0) {
      Add(*cursor, "Aaron");
    }
  }
  EXPECT_EQ(folder.Value("SELECT Count(*) FROM People"), cursor->RecordCount());
  EXPECT_GT(seen.size(), 300U);
}

TEST(DynasetOfThePage, WhileRowsAreLeftTheirCountIsNotNone)
{
  const ProgramFolder folder;
  folder.Execute("INSERT INTO People (LastName) VALUES ('Adams'), ('Brown'), ('Cole')");
  Database database = DBEngine::OpenDatabase();
  const auto cursor = database.OpenRecordset(Queries::kRecords, Database::kDynaset);
  cursor->Delete();
  cursor->MovePrevious();
  EXPECT_TRUE(cursor->Bof());
  EXPECT_FALSE(cursor->Eof());
  EXPECT_EQ(cursor->RecordCount(), 1);
  cursor->MoveNext();
  EXPECT_EQ(cursor->Fields("LastName").Value(), "Brown");
}

TEST(DynasetOfThePage, AMalformedCriterionKeepsWhatTheLastFindHasFound)
{
  const ProgramFolder folder;
  folder.Execute("INSERT INTO People (LastName, FirstName) VALUES ('Adams', 'Ann')");
  Database database = DBEngine::OpenDatabase();
  const auto cursor = database.OpenRecordset(Queries::kRecords, Database::kDynaset);
  cursor->FindFirst("fullname=\"Nobody\"");
  ASSERT_TRUE(cursor->NoMatch());
  EXPECT_THROW(cursor->FindFirst("fullname=\"a \"b\" c\""), RuntimeError);
  EXPECT_TRUE(cursor->NoMatch());
  cursor->FindFirst("fullname=\"Adams, Ann\"");
  EXPECT_THROW(cursor->FindFirst("fullname=\"a \"b\" c\""), RuntimeError);
  EXPECT_FALSE(cursor->NoMatch());
}

TEST(DynasetOfThePage, AnEditOnTheLastRowComesBackThroughTheEnd)
{
  const ProgramFolder folder;
  folder.Execute("INSERT INTO People (LastName) VALUES ('Adams'), ('Brown')");
  Database database = DBEngine::OpenDatabase();
  const auto cursor = database.OpenRecordset(Queries::kRecords, Database::kDynaset);
  cursor->MoveLast();
  const Recordset::Bookmark here = cursor->GetBookmark();
  cursor->Edit();
  cursor->Fields("LastName").SetValue("Abel");
  cursor->Update();
  cursor->MoveNext();
  EXPECT_TRUE(cursor->Eof());
  cursor->SetBookmark(here);
  EXPECT_EQ(cursor->Fields("LastName").Value(), "Abel");
  EXPECT_EQ(cursor->AbsolutePosition(), 1);
  EXPECT_EQ(cursor->RecordCount(), 2);
}
