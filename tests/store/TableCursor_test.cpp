// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/DBEngine.h"
#include "store/StoreError.h"
#include "support/ErrorOf.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

class TableCursor : public testing::Test
{
protected:
  void AddPerson(const QString& name, const QVariant& birthMonth = {}) const
  {
    folder.Execute("INSERT INTO People (FirstName, BirthMonth) VALUES (?, ?)", {name, birthMonth});
  }

  void AddCouple(const QVariant& first, const QVariant& second) const
  {
    folder.Execute("INSERT INTO Ann (Spouse1ID, Spouse2ID) VALUES (?, ?)", {first, second});
  }

  void AddAnnBobCid() const
  {
    AddPerson("Ann");
    AddPerson("Bob");
    AddPerson("Cid");
  }

  std::unique_ptr<Recordset> Open(const QString& table) { return database.OpenRecordset(table, Database::kTable); }

  ProgramFolder folder;
  Database database = DBEngine::OpenDatabase();
};

QString Name(Recordset& cursor)
{
  return cursor.Fields("FirstName").Value().toString();
}

QStringList NamesForward(Recordset& cursor)
{
  QStringList names;
  for (; !cursor.Eof(); cursor.MoveNext()) {
    names.append(Name(cursor));
  }
  return names;
}

QStringList NamesBackward(Recordset& cursor)
{
  QStringList names;
  for (; !cursor.Bof(); cursor.MovePrevious()) {
    names.append(Name(cursor));
  }
  return names;
}

}

TEST_F(TableCursor, OpensOnItsFirstRow)
{
  AddAnnBobCid();
  const auto cursor = Open("People");
  EXPECT_FALSE(cursor->Eof());
  EXPECT_FALSE(cursor->Bof());
  EXPECT_EQ(Name(*cursor), "Ann");
}

TEST_F(TableCursor, TableNamesDoNotRegardCase)
{
  AddAnnBobCid();
  EXPECT_EQ(Name(*Open("people")), "Ann");
}

TEST_F(TableCursor, WalksInTheOrderOfTheKeysWithoutAnIndex)
{
  AddPerson("Cid", "April");
  AddPerson("Ann", "May");
  AddPerson("Bob");
  const auto cursor = Open("People");
  EXPECT_EQ(NamesForward(*cursor), QStringList({"Cid", "Ann", "Bob"}));
  cursor->MoveLast();
  EXPECT_EQ(NamesBackward(*cursor), QStringList({"Bob", "Ann", "Cid"}));
}

TEST_F(TableCursor, MoveNextPastTheLastRowLeavesNoCurrentRow)
{
  AddAnnBobCid();
  const auto cursor = Open("People");
  cursor->MoveLast();
  EXPECT_FALSE(cursor->Eof());
  cursor->MoveNext();
  EXPECT_TRUE(cursor->Eof());
  EXPECT_FALSE(cursor->Bof());
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(cursor->Fields("FirstName").Value()); }), StoreError::kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { cursor->MoveNext(); }), StoreError::kNoCurrentRecord);
  EXPECT_TRUE(cursor->Eof());
  cursor->MovePrevious();
  EXPECT_EQ(Name(*cursor), "Cid");
}

TEST_F(TableCursor, MovePreviousBeforeTheFirstRowLeavesNoCurrentRow)
{
  AddAnnBobCid();
  const auto cursor = Open("People");
  cursor->MovePrevious();
  EXPECT_TRUE(cursor->Bof());
  EXPECT_FALSE(cursor->Eof());
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(cursor->Fields("FirstName").Value()); }), StoreError::kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { cursor->MovePrevious(); }), StoreError::kNoCurrentRecord);
  EXPECT_TRUE(cursor->Bof());
  cursor->MoveNext();
  EXPECT_EQ(Name(*cursor), "Ann");
}

TEST_F(TableCursor, AnEmptyTableIsAtBothEnds)
{
  const auto cursor = Open("People");
  EXPECT_TRUE(cursor->Eof());
  EXPECT_TRUE(cursor->Bof());
  EXPECT_EQ(cursor->RecordCount(), 0);
  EXPECT_EQ(ErrorOf([&] { cursor->MoveFirst(); }), StoreError::kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { cursor->MoveLast(); }), StoreError::kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { cursor->MoveNext(); }), StoreError::kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { cursor->MovePrevious(); }), StoreError::kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(cursor->GetBookmark()); }), StoreError::kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { cursor->Edit(); }), StoreError::kNoCurrentRecord);
  EXPECT_EQ(ErrorOf([&] { cursor->Delete(); }), StoreError::kNoCurrentRecord);
}

TEST_F(TableCursor, RecordCountIsLive)
{
  const auto cursor = Open("People");
  AddAnnBobCid();
  EXPECT_EQ(cursor->RecordCount(), 3);
  folder.Execute("DELETE FROM People WHERE FirstName = 'Bob'");
  EXPECT_EQ(cursor->RecordCount(), 2);
  cursor->AddNew();
  cursor->Update();
  EXPECT_EQ(cursor->RecordCount(), 3);
}

TEST_F(TableCursor, IsUpdatable)
{
  AddAnnBobCid();
  const auto cursor = Open("People");
  cursor->Edit();
  cursor->Fields("FirstName").SetValue("Anna");
  cursor->Update();
  EXPECT_EQ(Name(*cursor), "Anna");
  EXPECT_EQ(folder.Value("SELECT FirstName FROM People WHERE PeopleID = 1"), "Anna");
}

TEST_F(TableCursor, TheRowThatWasCurrentStillIsAfterOneIsAdded)
{
  AddAnnBobCid();
  const auto cursor = Open("People");
  cursor->MoveNext();
  cursor->AddNew();
  cursor->Fields("FirstName").SetValue("Dot");
  cursor->Update();
  EXPECT_EQ(Name(*cursor), "Bob");
  cursor->MoveLast();
  EXPECT_EQ(Name(*cursor), "Dot");
  EXPECT_EQ(cursor->Fields("PeopleID").Value(), 4);
}

TEST_F(TableCursor, BookmarkComesBackToItsRow)
{
  AddAnnBobCid();
  const auto cursor = Open("People");
  cursor->MoveNext();
  const Recordset::Bookmark bookmark = cursor->GetBookmark();
  cursor->MoveFirst();
  cursor->SetBookmark(bookmark);
  EXPECT_EQ(Name(*cursor), "Bob");
  cursor->MoveNext();
  EXPECT_EQ(Name(*cursor), "Cid");
}

TEST_F(TableCursor, BookmarkOfARowThatIsGoneIsRefused)
{
  AddAnnBobCid();
  const auto cursor = Open("People");
  const Recordset::Bookmark bookmark = cursor->GetBookmark();
  cursor->MoveLast();
  folder.Execute("DELETE FROM People WHERE PeopleID = 1");
  EXPECT_EQ(ErrorOf([&] { cursor->SetBookmark(bookmark); }), StoreError::kBadBookmark);
}

TEST_F(TableCursor, ARowThatAnotherCursorAddsIsReached)
{
  AddAnnBobCid();
  const auto cursor = Open("People");
  cursor->MoveLast();
  const auto other = Open("People");
  other->AddNew();
  other->Fields("FirstName").SetValue("Dot");
  other->Update();
  cursor->MoveNext();
  ASSERT_FALSE(cursor->Eof());
  EXPECT_EQ(Name(*cursor), "Dot");
}

TEST_F(TableCursor, ARowThatAnotherCursorAddsIsReachedByItsPlaceInTheIndex)
{
  AddPerson("Ann", "April");
  AddPerson("Bob", "May");
  const auto cursor = Open("People");
  cursor->SetIndex("BirthMonth");
  AddPerson("Dot", "August");
  EXPECT_EQ(NamesForward(*cursor), QStringList({"Ann", "Dot", "Bob"}));
}

TEST_F(TableCursor, ARowThatAnotherCursorDeletesIsGoneAfterAMove)
{
  AddAnnBobCid();
  const auto cursor = Open("People");
  const auto other = Open("People");
  other->MoveNext();
  other->Delete();
  cursor->MoveNext();
  EXPECT_EQ(Name(*cursor), "Cid");
  cursor->MovePrevious();
  EXPECT_EQ(Name(*cursor), "Ann");
}

TEST_F(TableCursor, AnotherCursorsChangeIsSeen)
{
  AddAnnBobCid();
  const auto cursor = Open("People");
  const auto other = Open("People");
  other->MoveNext();
  other->Edit();
  other->Fields("FirstName").SetValue("Bert");
  other->Update();
  cursor->MoveNext();
  EXPECT_EQ(Name(*cursor), "Bert");
}

TEST_F(TableCursor, ReadingARowDeletedUnderTheCursorIsRefused)
{
  for (const QString index : {"", "BirthMonth"}) {
    folder.Execute("DELETE FROM People");
    AddAnnBobCid();
    const auto cursor = Open("People");
    if (!index.isEmpty()) {
      cursor->SetIndex(index);
    }
    cursor->MoveNext();
    folder.Execute("DELETE FROM People WHERE FirstName = 'Bob'");
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(cursor->Fields("FirstName").Value()); }), StoreError::kRecordDeleted);
    cursor->MoveNext();
    EXPECT_EQ(Name(*cursor), "Cid");
    cursor->MovePrevious();
    EXPECT_EQ(Name(*cursor), "Ann");
  }
}

TEST_F(TableCursor, ItsOwnDeletedRowStaysCurrentUntilAMove)
{
  AddAnnBobCid();
  const auto cursor = Open("People");
  cursor->MoveNext();
  cursor->Delete();
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(cursor->Fields("FirstName").Value()); }), StoreError::kRecordDeleted);
  cursor->MovePrevious();
  EXPECT_EQ(Name(*cursor), "Ann");
  cursor->MoveNext();
  EXPECT_EQ(Name(*cursor), "Cid");
}

TEST_F(TableCursor, DeletingTheOnlyRowLeavesBothEndsBehindAMove)
{
  AddPerson("Ann");
  AddPerson("Bob");
  const auto forward = Open("People");
  forward->Delete();
  const auto backward = Open("People");
  backward->Delete();
  forward->MoveNext();
  EXPECT_TRUE(forward->Eof());
  backward->MovePrevious();
  EXPECT_TRUE(backward->Bof());
  EXPECT_EQ(forward->RecordCount(), 0);
}

TEST_F(TableCursor, DeletingInALoopEmptiesTheTable)
{
  AddAnnBobCid();
  const auto cursor = Open("People");
  for (; !cursor->Eof(); cursor->MoveNext()) {
    cursor->Delete();
  }
  EXPECT_EQ(folder.Value("SELECT Count(*) FROM People"), 0);
}

TEST_F(TableCursor, AnIndexPutsTheCursorOnItsFirstRow)
{
  AddPerson("Ann", "May");
  AddPerson("Bob", "April");
  const auto cursor = Open("People");
  cursor->MoveLast();
  cursor->MoveNext();
  cursor->SetIndex("BirthMonth");
  EXPECT_EQ(Name(*cursor), "Bob");
}

TEST_F(TableCursor, AnIndexOrdersNullFirstThenWithoutRegardToCaseThenByKey)
{
  AddPerson("1", "May");
  AddPerson("2", "april");
  AddPerson("3");
  AddPerson("4", "MAY");
  AddPerson("5", "April");
  AddPerson("6", "");
  AddPerson("7", "may");
  AddPerson("8");
  const auto cursor = Open("People");
  cursor->SetIndex("BirthMonth");
  const QStringList expected{"3", "8", "6", "2", "5", "1", "4", "7"};
  EXPECT_EQ(NamesForward(*cursor), expected);
  cursor->MoveLast();
  QStringList backward = NamesBackward(*cursor);
  std::reverse(backward.begin(), backward.end());
  EXPECT_EQ(backward, expected);
}

TEST_F(TableCursor, IndexNamesDoNotRegardCase)
{
  AddPerson("Ann", "May");
  AddPerson("Bob", "April");
  const auto cursor = Open("People");
  cursor->SetIndex("birthmonth");
  EXPECT_EQ(Name(*cursor), "Bob");
}

TEST_F(TableCursor, AnUnknownIndexIsRefused)
{
  AddAnnBobCid();
  const auto cursor = Open("People");
  for (const QString index : {"City", "Spouse1ID", "PeopleID'", "BirthMonth; DROP TABLE People"}) {
    EXPECT_EQ(ErrorOf([&] { cursor->SetIndex(index); }), StoreError::kUnknownIndex) << index.toStdString();
  }
  EXPECT_EQ(Name(*cursor), "Ann");
}

TEST_F(TableCursor, AnIndexOnAnEmptyTableLeavesBothEnds)
{
  const auto cursor = Open("People");
  cursor->SetIndex("BirthMonth");
  EXPECT_TRUE(cursor->Eof());
  EXPECT_TRUE(cursor->Bof());
  cursor->Seek("=", "May");
  EXPECT_TRUE(cursor->NoMatch());
}

TEST_F(TableCursor, SeekPositionsOnTheFirstRowWithTheKey)
{
  AddPerson("Ann", "June");
  AddPerson("Bob", "May");
  AddPerson("Cid", "April");
  AddPerson("Dot", "May");
  AddPerson("Eve");
  const auto cursor = Open("People");
  cursor->SetIndex("BirthMonth");
  for (const QString month : {"May", "MAY", "may"}) {
    cursor->MoveLast();
    cursor->Seek("=", month);
    EXPECT_FALSE(cursor->NoMatch());
    EXPECT_EQ(NamesForward(*cursor), QStringList({"Bob", "Dot"}));
  }
}

TEST_F(TableCursor, SeekWithoutAMatchSaysSo)
{
  AddPerson("Ann", "May");
  AddPerson("Bob");
  const auto cursor = Open("People");
  cursor->SetIndex("BirthMonth");
  EXPECT_FALSE(cursor->NoMatch());
  for (const QString month : {"", "Ma", "Maya", "June", "May'"}) {
    cursor->Seek("=", month);
    EXPECT_TRUE(cursor->NoMatch()) << month.toStdString();
  }
  cursor->Seek("=", "May");
  EXPECT_FALSE(cursor->NoMatch());
  EXPECT_EQ(Name(*cursor), "Ann");
}

TEST_F(TableCursor, SeekSeesRowsAsTheyAre)
{
  AddPerson("Ann", "May");
  const auto cursor = Open("People");
  cursor->SetIndex("BirthMonth");
  folder.Execute("UPDATE People SET BirthMonth = 'June'");
  cursor->Seek("=", "May");
  EXPECT_TRUE(cursor->NoMatch());
  cursor->Seek("=", "June");
  EXPECT_FALSE(cursor->NoMatch());
}

TEST_F(TableCursor, SeekFindsCouplesByEitherSpouse)
{
  AddCouple(7, 30);
  AddCouple(30, 7);
  AddCouple({}, {});
  const auto cursor = Open("Ann");
  const struct
  {
    const char* index;
    QVariant key;
    QVariant couple;  // none: no match
  } kCases[] = {
      {"Spouse1ID", 7, 1},  {"Spouse1ID", 30LL, 2}, {"Spouse1ID", 8, {}},  {"Spouse2ID", 7, 2},
      {"Spouse2ID", 30, 1}, {"Spouse2ID", 0, {}},   {"Spouse2ID", -7, {}},
  };
  for (const auto& [index, key, couple] : kCases) {
    cursor->SetIndex(index);
    cursor->Seek("=", key);
    EXPECT_EQ(cursor->NoMatch(), couple.isNull()) << index << " " << key.toInt();
    if (!cursor->NoMatch()) {
      EXPECT_EQ(cursor->Fields("AnnID").Value(), couple) << index << " " << key.toInt();
    }
  }
}

TEST_F(TableCursor, SeekFindsEventsByMonth)
{
  folder.Execute("INSERT INTO Reminders (Month, Event) VALUES ('May', 'Choir'), ('April', 'Concert')");
  const auto cursor = Open("Reminders");
  cursor->SetIndex("Month");
  cursor->Seek("=", "may");
  EXPECT_FALSE(cursor->NoMatch());
  EXPECT_EQ(cursor->Fields("Event").Value(), "Choir");
}

TEST_F(TableCursor, SeekWithoutAnIndexIsRefused)
{
  AddPerson("Ann", "May");
  const auto cursor = Open("People");
  EXPECT_EQ(ErrorOf([&] { cursor->Seek("=", "May"); }), StoreError::kNoIndex);
}

TEST_F(TableCursor, WhatBelongsToDynasetsIsRefused)
{
  AddAnnBobCid();
  const auto cursor = Open("People");
  EXPECT_NE(ErrorOf([&] { cursor->FindFirst("FirstName ='Bob'"); }), 0);
  EXPECT_EQ(Name(*cursor), "Ann");
}

TEST_F(TableCursor, WalksOverManyRowsByIndexGiveEveryRowOnce)
{
  constexpr int kRows = 1000;
  folder.Execute(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1000) "
      "INSERT INTO People (FirstName, BirthMonth) SELECT i, "
      "CASE WHEN i % 3 > 0 THEN NULL WHEN i % 5 = 0 THEN 'may' WHEN i % 2 = 0 THEN 'May' ELSE 'June' END FROM n");
  const auto cursor = Open("People");
  cursor->SetIndex("BirthMonth");
  EXPECT_EQ(cursor->RecordCount(), kRows);
  const QStringList forward = NamesForward(*cursor);
  cursor->MoveLast();
  QStringList backward = NamesBackward(*cursor);
  std::reverse(backward.begin(), backward.end());
  EXPECT_EQ(forward.size(), kRows);
  EXPECT_EQ(std::set<QString>(forward.begin(), forward.end()).size(), kRows);
  EXPECT_EQ(forward, backward);
}

TEST_F(TableCursor, AWalkThatDeletesEverySecondRowByIndexSeesEveryRowOnce)
{
  folder.Execute(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 200) "
      "INSERT INTO People (FirstName, BirthMonth) SELECT i, CASE WHEN i % 4 > 0 THEN NULL ELSE 'May' END FROM n");
  const auto cursor = Open("People");
  cursor->SetIndex("BirthMonth");
  std::set<QString> seen;
  for (int i = 0; !cursor->Eof(); cursor->MoveNext(), ++i) {
    EXPECT_TRUE(seen.insert(Name(*cursor)).second);
    if (i % 2 == 0) {
      cursor->Delete();
    }
  }
  EXPECT_EQ(seen.size(), 200U);
  EXPECT_EQ(cursor->RecordCount(), 100);
}
