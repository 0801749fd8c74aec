// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/DBEngine.h"
#include "store/Queries.h"
#include "store/StoreError.h"
#include "support/ErrorOf.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

#include <QDate>

namespace {

// What holds for every cursor, over a table as over a query.
class EveryCursor : public testing::TestWithParam<int>
{
protected:
  EveryCursor() { folder.Execute("INSERT INTO People (LastName, City) VALUES ('Adams', 'Ayr'), ('Brown', NULL)"); }

  std::unique_ptr<Recordset> Open()
  {
    const bool isTable = GetParam() == Database::kTable;
    return database.OpenRecordset(isTable ? QStringLiteral("People") : Queries::kRecords, GetParam());
  }

  [[nodiscard]] QVariantList LastNames() const
  {
    QVariantList names;
    for (const QVariantList& row : folder.Rows("SELECT LastName FROM People ORDER BY PeopleID")) {
      names.append(row.value(0));
    }
    return names;
  }

  ProgramFolder folder;
  Database database = DBEngine::OpenDatabase();
};

INSTANTIATE_TEST_SUITE_P(Cursor, EveryCursor, testing::Values(Database::kTable, Database::kDynaset),
                         [](const auto& suite) { return suite.param == Database::kTable ? "Table" : "Dynaset"; });

class RecordsetEdits : public testing::Test
{
protected:
  std::unique_ptr<Recordset> OpenTable(const QString& table) { return database.OpenRecordset(table, Database::kTable); }

  ProgramFolder folder;
  Database database = DBEngine::OpenDatabase();
};

}

TEST_P(EveryCursor, FieldNamesDoNotRegardCase)
{
  const auto cursor = Open();
  for (const QString name : {"LastName", "Lastname", "lastname", "LASTNAME"}) {
    EXPECT_EQ(cursor->Fields(name).Value(), "Adams") << name.toStdString();
  }
}

TEST_P(EveryCursor, AFieldOfUnknownNameIsRefused)
{
  const auto cursor = Open();
  for (const QString name : {"", "Nickname", "People.LastName", "LastName ", "0"}) {
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(cursor->Fields(name)); }), StoreError::kUnknownItem)
        << name.toStdString();
  }
}

TEST_P(EveryCursor, AFieldFollowsTheCursor)
{
  const auto cursor = Open();
  const Field& field = cursor->Fields("LastName");
  cursor->MoveNext();
  EXPECT_EQ(field.Value(), "Brown");
  cursor->MovePrevious();
  EXPECT_EQ(field.Value(), "Adams");
}

TEST_P(EveryCursor, PeekGivesTheValue)
{
  const auto cursor = Open();
  const Field& name = cursor->Fields("LastName");
  EXPECT_EQ(name.Peek(), "Adams");
  cursor->MoveNext();
  EXPECT_EQ(name.Peek(), "Brown");
  EXPECT_TRUE(cursor->Fields("City").Peek().isNull());
  cursor->Delete();
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(name.Peek()); }), StoreError::kRecordDeleted);
  cursor->MoveNext();
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(name.Peek()); }), StoreError::kNoCurrentRecord);
}

TEST_P(EveryCursor, APeekedValueStaysGoodWhileOtherColumnsAreRead)
{
  const auto cursor = Open();
  const QVariant& name = cursor->Fields("LastName").Peek();
  for (const QString column : {"PeopleID", "FirstName", "City", "Notes", "BirthMonth", "AnnYear"}) {
    static_cast<void>(cursor->Fields(column).Value());
  }
  EXPECT_TRUE(name.isValid());
  EXPECT_EQ(name, "Adams");
}

TEST_P(EveryCursor, APeekedValueStaysGoodWhileAnotherCursorWrites)
{
  const auto cursor = Open();
  const auto other = Open();
  const QVariant& name = cursor->Fields("LastName").Peek();
  other->MoveNext();
  other->Edit();
  other->Fields("LastName").SetValue("Burns");
  other->Update();
  static_cast<void>(cursor->Fields("LastName").Value());
  EXPECT_TRUE(name.isValid());
  EXPECT_EQ(name, "Adams");
}

TEST_P(EveryCursor, NothingIsWrittenBeforeUpdate)
{
  const auto cursor = Open();
  cursor->Edit();
  cursor->Fields("LastName").SetValue("Aaron");
  EXPECT_EQ(LastNames(), QVariantList({"Adams", "Brown"}));
  cursor->Update();
  EXPECT_EQ(LastNames(), QVariantList({"Aaron", "Brown"}));
}

TEST_P(EveryCursor, UpdateWritesOnlyWhatWasAssigned)
{
  const auto cursor = Open();
  cursor->Edit();
  cursor->Fields("LastName").SetValue("Aaron");
  folder.Execute("UPDATE People SET City = 'Bonn', Notes = 'moved'");
  cursor->Update();
  EXPECT_EQ(folder.Rows("SELECT LastName, City, Notes FROM People WHERE PeopleID = 1"),
            std::vector<QVariantList>({{"Aaron", "Bonn", "moved"}}));
  EXPECT_EQ(cursor->Fields("City").Value(), "Bonn");
}

TEST_P(EveryCursor, UpdateWithNothingAssignedChangesNothing)
{
  const auto before = folder.Rows("SELECT * FROM People");
  const auto cursor = Open();
  cursor->Edit();
  cursor->Update();
  EXPECT_EQ(folder.Rows("SELECT * FROM People"), before);
}

TEST_P(EveryCursor, ARowIsAddedWithNothingAssigned)
{
  const auto cursor = Open();
  cursor->AddNew();
  cursor->Update();
  EXPECT_EQ(folder.Rows("SELECT PeopleID, LastName, Gender, Convert FROM People WHERE PeopleID > 2"),
            std::vector<QVariantList>({{3, {}, {}, 0}}));
}

TEST_P(EveryCursor, TheLastAssignmentCounts)
{
  const auto cursor = Open();
  cursor->Edit();
  cursor->Fields("LastName").SetValue("Aaron");
  cursor->Fields("lastname").SetValue("Abbot");
  cursor->Update();
  EXPECT_EQ(LastNames(), QVariantList({"Abbot", "Brown"}));
}

TEST_P(EveryCursor, CancelUpdateDropsAnEdit)
{
  const auto cursor = Open();
  cursor->Edit();
  cursor->Fields("LastName").SetValue("Aaron");
  cursor->CancelUpdate();
  EXPECT_EQ(cursor->Fields("LastName").Value(), "Adams");
  EXPECT_EQ(ErrorOf([&] { cursor->Update(); }), StoreError::kNoEdit);
  EXPECT_EQ(LastNames(), QVariantList({"Adams", "Brown"}));
}

TEST_P(EveryCursor, CancelUpdateDropsAnAddition)
{
  const auto cursor = Open();
  cursor->MoveNext();
  cursor->AddNew();
  cursor->Fields("LastName").SetValue("Clark");
  cursor->CancelUpdate();
  EXPECT_EQ(cursor->Fields("LastName").Value(), "Brown");
  EXPECT_EQ(LastNames(), QVariantList({"Adams", "Brown"}));
}

TEST_P(EveryCursor, ACancelledEditLeavesNothingToTheNext)
{
  const auto cursor = Open();
  cursor->Edit();
  cursor->Fields("LastName").SetValue("Aaron");
  cursor->CancelUpdate();
  cursor->Edit();
  cursor->Fields("City").SetValue("Bonn");
  cursor->Update();
  EXPECT_EQ(folder.Rows("SELECT LastName, City FROM People WHERE PeopleID = 1"),
            std::vector<QVariantList>({{"Adams", "Bonn"}}));
}

TEST_P(EveryCursor, UpdateWithoutAnEditIsRefused)
{
  const auto cursor = Open();
  EXPECT_EQ(ErrorOf([&] { cursor->Update(); }), StoreError::kNoEdit);
  cursor->Edit();
  cursor->Update();
  EXPECT_EQ(ErrorOf([&] { cursor->Update(); }), StoreError::kNoEdit);
}

TEST_P(EveryCursor, AssigningWithoutAnEditIsRefused)
{
  const auto cursor = Open();
  EXPECT_EQ(ErrorOf([&] { cursor->Fields("LastName").SetValue("Aaron"); }), StoreError::kNoEdit);
  EXPECT_EQ(cursor->Fields("LastName").Value(), "Adams");
}

TEST_P(EveryCursor, AMoveDropsAnOpenEdit)
{
  using Move = void (*)(Recordset&);
  const Move moves[] = {
      [](Recordset& cursor) { cursor.MoveFirst(); },
      [](Recordset& cursor) { cursor.MoveLast(); },
      [](Recordset& cursor) { cursor.MoveNext(); },
      [](Recordset& cursor) { cursor.MovePrevious(); },
      [](Recordset& cursor) { cursor.SetBookmark(cursor.GetBookmark()); },
  };
  for (const Move move : moves) {
    for (const bool adds : {false, true}) {
      const auto cursor = Open();
      adds ? cursor->AddNew() : cursor->Edit();
      cursor->Fields("LastName").SetValue("Aaron");
      move(*cursor);
      EXPECT_EQ(ErrorOf([&] { cursor->Update(); }), StoreError::kNoEdit);
      EXPECT_EQ(LastNames(), QVariantList({"Adams", "Brown"}));
    }
  }
}

TEST_P(EveryCursor, EditingARowThatAnotherDeletedIsRefused)
{
  const auto cursor = Open();
  cursor->Edit();
  cursor->Fields("LastName").SetValue("Aaron");
  folder.Execute("DELETE FROM People WHERE PeopleID = 1");
  EXPECT_EQ(ErrorOf([&] { cursor->Update(); }), StoreError::kRecordDeleted);
  EXPECT_EQ(LastNames(), QVariantList({"Brown"}));
}

TEST_P(EveryCursor, NullAndEmptyTextDiffer)
{
  const auto cursor = Open();
  Field& city = cursor->Fields("City");
  const struct
  {
    QVariant value;
    const char* kind;
  } kCases[] = {{QString(""), "text"}, {QVariant(), "null"}, {QString(), "text"}, {QString("Ayr"), "text"}};
  for (const auto& [value, kind] : kCases) {
    cursor->Edit();
    city.SetValue(value);
    cursor->Update();
    EXPECT_EQ(folder.Value("SELECT typeof(City) FROM People WHERE PeopleID = 1"), kind);
    EXPECT_EQ(city.Value().isNull(), value.isNull());
    EXPECT_EQ(city.Value().toString(), value.toString());
  }
  cursor->MoveNext();
  EXPECT_TRUE(city.Value().isNull());
}

TEST_P(EveryCursor, TextsComeBackAsTheyWere)
{
  const auto cursor = Open();
  const QStringList texts{"O'Neil",
                          "\"quoted\"",
                          "two\nlines\r\n",
                          "  blanks  ",
                          "100%",
                          "%1 %2",
                          "Ωµé",
                          "茶",
                          "🎂",
                          "; --",
                          QString("a") + QChar(u'\0') + "b"};
  for (const QString& text : texts) {
    cursor->Edit();
    cursor->Fields("Notes").SetValue(text);
    cursor->Update();
    EXPECT_EQ(cursor->Fields("Notes").Value(), text);
    EXPECT_EQ(folder.Value("SELECT lower(hex(Notes)) FROM People WHERE PeopleID = 1"), QString(text.toUtf8().toHex()));
  }
}

TEST_P(EveryCursor, AMarkAtTheStartOfATextComesBack)
{
  const QString text = QChar(0xFEFF) + QString("mark");
  const auto cursor = Open();
  cursor->Edit();
  cursor->Fields("Notes").SetValue(text);
  cursor->Update();
  EXPECT_EQ(cursor->Fields("Notes").Value(), text);
}

TEST_P(EveryCursor, AVeryLongTextComesBackWhole)
{
  const QString text(1'000'000, u'é');
  const auto cursor = Open();
  cursor->Edit();
  cursor->Fields("Notes").SetValue(text);
  cursor->Update();
  EXPECT_EQ(cursor->Fields("Notes").Value().toString(), text);
}

TEST_P(EveryCursor, KeysOfDeletedRowsAreNeverUsedAgain)
{
  const auto cursor = Open();
  cursor->MoveLast();
  cursor->Delete();
  cursor->AddNew();
  cursor->Update();
  cursor->MoveLast();
  EXPECT_EQ(cursor->Fields("PeopleID").Value(), 3);
  folder.Execute("DELETE FROM People");
  const auto again = Open();
  again->AddNew();
  again->Update();
  EXPECT_EQ(folder.Value("SELECT PeopleID FROM People"), 4);
}

TEST_P(EveryCursor, AnAdditionIsNotOpenAgainAfterUpdate)
{
  const auto cursor = Open();
  cursor->AddNew();
  cursor->Fields("LastName").SetValue("Clark");
  cursor->Update();
  EXPECT_EQ(ErrorOf([&] { cursor->Update(); }), StoreError::kNoEdit);
  EXPECT_EQ(ErrorOf([&] { cursor->Fields("LastName").SetValue("Dent"); }), StoreError::kNoEdit);
  EXPECT_EQ(LastNames(), QVariantList({"Adams", "Brown", "Clark"}));
}

TEST_P(EveryCursor, ItOutlivesTheDatabaseItWasOpenedOn)
{
  const auto cursor = Open();
  database.Close();
  cursor->MoveNext();
  cursor->Edit();
  cursor->Fields("LastName").SetValue("Burns");
  cursor->Update();
  EXPECT_EQ(LastNames(), QVariantList({"Adams", "Burns"}));
}

TEST_F(RecordsetEdits, AssigningAJoinedColumnIsRefused)
{
  folder.Execute("INSERT INTO People (LastName, FirstName) VALUES ('Adams', 'Ann')");
  const auto cursor = database.OpenRecordset(Queries::kRecords, Database::kDynaset);
  for (const QString name : {"FullName", "Fullname", "fullname", "CompleteAnn"}) {
    cursor->Edit();
    EXPECT_EQ(ErrorOf([&] { cursor->Fields(name).SetValue("x"); }), StoreError::kReadOnly) << name.toStdString();
    cursor->CancelUpdate();
    cursor->AddNew();
    EXPECT_EQ(ErrorOf([&] { cursor->Fields(name).SetValue("x"); }), StoreError::kReadOnly) << name.toStdString();
    cursor->CancelUpdate();
  }
  EXPECT_EQ(cursor->Fields("FullName").Value(), "Adams, Ann");
}

TEST_F(RecordsetEdits, AColumnThatTheQueryLeavesOutIsUnknown)
{
  folder.Execute("INSERT INTO People (LastName, Gender) VALUES ('Adams', 'Female')");
  const auto cursor = database.OpenRecordset(Queries::kPeople, Database::kDynaset);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(cursor->Fields("Gender")); }), StoreError::kUnknownItem);
}

TEST_F(RecordsetEdits, DatesAndTimesTravelAsSuch)
{
  const auto cursor = OpenTable("Reminders");
  cursor->AddNew();
  cursor->Fields("Date").SetValue(QDate(2004, 2, 29));
  cursor->Fields("Time").SetValue(QTime(16, 5));
  cursor->Update();
  cursor->MoveFirst();
  EXPECT_EQ(cursor->Fields("Date").Value().typeId(), QMetaType::QDate);
  EXPECT_EQ(cursor->Fields("Date").Value(), QDate(2004, 2, 29));
  EXPECT_EQ(cursor->Fields("Time").Value().typeId(), QMetaType::QTime);
  EXPECT_EQ(cursor->Fields("Time").Value(), QTime(16, 5));
  EXPECT_EQ(folder.Rows("SELECT Date, Time FROM Reminders"), std::vector<QVariantList>({{"2004-02-29", "16:05:00"}}));
}

TEST_F(RecordsetEdits, DatesAndTimesCanBeTakenAway)
{
  folder.Execute("INSERT INTO Reminders (Date, Time) VALUES ('1999-12-31', '23:59:00')");
  const auto cursor = OpenTable("Reminders");
  EXPECT_EQ(cursor->Fields("Date").Value(), QDate(1999, 12, 31));
  EXPECT_EQ(cursor->Fields("Time").Value(), QTime(23, 59));
  cursor->Edit();
  cursor->Fields("Date").SetValue({});
  cursor->Fields("Time").SetValue({});
  cursor->Update();
  EXPECT_TRUE(cursor->Fields("Date").Value().isNull());
  EXPECT_TRUE(cursor->Fields("Time").Value().isNull());
  EXPECT_EQ(folder.Rows("SELECT Date, Time FROM Reminders"), std::vector<QVariantList>({{{}, {}}}));
}

TEST_F(RecordsetEdits, EventsTravelThroughTheirQueries)
{
  const auto cursor = database.OpenRecordset(Queries::kEventChanges, Database::kDynaset);
  cursor->AddNew();
  cursor->Fields("Month").SetValue("May");
  cursor->Fields("Date").SetValue(QDate(2003, 5, 9));
  cursor->Fields("Time").SetValue(QTime(8, 30));
  cursor->Fields("Event").SetValue("Choir");
  cursor->Update();
  cursor->MoveLast();
  EXPECT_EQ(cursor->Fields("ID").Value(), 1);
  EXPECT_EQ(cursor->Fields("Date").Value(), QDate(2003, 5, 9));
  EXPECT_EQ(cursor->Fields("Time").Value(), QTime(8, 30));
}

TEST_F(RecordsetEdits, YesAndNoAreZeroAndOneInTheFile)
{
  const auto cursor = OpenTable("Options");
  Field& field = cursor->Fields("ToolTips");
  EXPECT_EQ(field.Value().typeId(), QMetaType::Bool);
  EXPECT_EQ(field.Value(), false);
  for (const bool yes : {true, false}) {
    cursor->Edit();
    field.SetValue(yes);
    cursor->Update();
    EXPECT_EQ(field.Value().typeId(), QMetaType::Bool);
    EXPECT_EQ(field.Value(), yes);
    EXPECT_EQ(folder.Rows("SELECT typeof(ToolTips), ToolTips FROM Options"),
              std::vector<QVariantList>({{"integer", yes ? 1 : 0}}));
  }
}

TEST_F(RecordsetEdits, ThemesAreNumbers)
{
  const auto cursor = OpenTable("Options");
  Field& theme = cursor->Fields("Theme");
  EXPECT_EQ(theme.Value().typeId(), QMetaType::LongLong);
  EXPECT_EQ(theme.Value(), 1);
  cursor->Edit();
  theme.SetValue(27);
  cursor->Update();
  EXPECT_EQ(theme.Value(), 27);
  EXPECT_EQ(folder.Rows("SELECT typeof(Theme), Theme FROM Options"), std::vector<QVariantList>({{"integer", 27}}));
}

TEST_F(RecordsetEdits, TalliesAreWrittenThroughTheirQueries)
{
  const struct
  {
    const QString& query;
    const char* criteria;
    const char* total;
  } kCases[] = {
      {Queries::kTotalBirthdays, "Month ='Jan'", "SELECT Total FROM TotalBirthdays WHERE Month = 'Jan'"},
      {Queries::kTotalAnn, "Month ='Dec'", "SELECT Total FROM TotalAnn WHERE Month = 'Dec'"},
      {Queries::kTotalAge, "Age ='<10'", "SELECT Total FROM TotalAge WHERE Age = '<10'"},
  };
  for (const auto& [query, criteria, total] : kCases) {
    const auto cursor = database.OpenRecordset(query, Database::kDynaset);
    cursor->FindFirst(criteria);
    cursor->Edit();
    cursor->Fields("Total").SetValue(cursor->Fields("Total").Value().toInt() + 3);
    cursor->Update();
    EXPECT_EQ(folder.Value(total), 3) << criteria;
    EXPECT_EQ(cursor->Fields("Total").Value(), 3) << criteria;
  }
}

TEST_F(RecordsetEdits, ASpouseIsOneOfASingleCouple)
{
  for (const QString spouse : {"Spouse1ID", "Spouse2ID"}) {
    folder.Execute("DELETE FROM Ann");
    folder.Execute("INSERT INTO Ann (Spouse1ID, Spouse2ID) VALUES (1, 2), (3, 4)");
    const auto before = folder.Rows("SELECT * FROM Ann");
    const auto cursor = OpenTable("Ann");
    const QVariant taken = cursor->Fields(spouse).Value();

    cursor->AddNew();
    cursor->Fields("AnnMonth").SetValue("May");
    cursor->Fields(spouse).SetValue(taken);
    EXPECT_EQ(ErrorOf([&] { cursor->Update(); }), StoreError::kDuplicate);
    EXPECT_EQ(folder.Rows("SELECT * FROM Ann"), before);
    cursor->CancelUpdate();

    cursor->MoveNext();
    cursor->Edit();
    cursor->Fields("AnnMonth").SetValue("May");
    cursor->Fields(spouse).SetValue(taken);
    EXPECT_EQ(ErrorOf([&] { cursor->Update(); }), StoreError::kDuplicate);
    EXPECT_EQ(folder.Rows("SELECT * FROM Ann"), before);
    cursor->CancelUpdate();
    EXPECT_TRUE(cursor->Fields("AnnMonth").Value().isNull());
    EXPECT_EQ(cursor->RecordCount(), 2);
  }
}

TEST_F(RecordsetEdits, ARefusedUpdateCanBeMended)
{
  folder.Execute("INSERT INTO Ann (Spouse1ID, Spouse2ID) VALUES (1, 2)");
  const auto cursor = database.OpenRecordset(Queries::kAnniversariesByMonth, Database::kDynaset);
  cursor->AddNew();
  cursor->Fields("AnnMonth").SetValue("May");
  cursor->Fields("Spouse1ID").SetValue(1);
  EXPECT_EQ(ErrorOf([&] { cursor->Update(); }), StoreError::kDuplicate);
  cursor->Fields("Spouse1ID").SetValue(3);
  cursor->Update();
  EXPECT_EQ(folder.Rows("SELECT Spouse1ID, Spouse2ID, AnnMonth FROM Ann ORDER BY AnnID"),
            std::vector<QVariantList>({{1, 2, {}}, {3, {}, "May"}}));
}

TEST_F(RecordsetEdits, CouplesWithoutSpousesMayBeMany)
{
  const auto cursor = OpenTable("Ann");
  for (int i = 0; i < 3; ++i) {
    cursor->AddNew();
    cursor->Fields("Spouse1ID").SetValue({});
    cursor->Update();
  }
  EXPECT_EQ(cursor->RecordCount(), 3);
}

TEST_F(RecordsetEdits, ATableAndAQueryOverItAgree)
{
  folder.Execute("INSERT INTO People (LastName) VALUES ('Adams'), ('Brown')");
  const auto table = OpenTable("People");
  const auto query = database.OpenRecordset(Queries::kRecords, Database::kDynaset);
  table->MoveNext();
  table->Edit();
  table->Fields("LastName").SetValue("Burns");
  table->Update();
  query->MoveNext();
  EXPECT_EQ(query->Fields("LastName").Value(), "Burns");
  query->Delete();
  EXPECT_EQ(table->RecordCount(), 1);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(table->Fields("LastName").Value()); }), StoreError::kRecordDeleted);
}
