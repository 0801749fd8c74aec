// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "LookupTest.h"
#include "support/HeldDatabase.h"

namespace {

class LookupDatabase : public LookupPageTest
{
protected:
  LookupDatabase()
  {
    modID::CoupleSpouse1ID = 77;
    modID::CoupleSpouse2ID = 78;
  }

  void AddCouple(int wife, int husband) const
  {
    folder.Execute("INSERT INTO Ann (Spouse1ID, Spouse2ID, AnnMonth) VALUES (?,?,'May')", {wife, husband});
  }

  // Opens the database from the panel, as it stands for the selected line.
  static void GoTo(const QString& option)
  {
    Click("lblOptions_11");
    Tick(option);
    DropUnloaded();
  }
  void ExpectAt(const char* page, int person, int wife, int husband) const
  {
    EXPECT_FALSE(IsOpen());
    ASSERT_TRUE(IsOpen(page));
    EXPECT_TRUE(Forms::Loaded(page)->isVisible());
    EXPECT_EQ(modID::SelectedPersonID, person);
    EXPECT_EQ(modID::CoupleSpouse1ID, wife);
    EXPECT_EQ(modID::CoupleSpouse2ID, husband);
    EXPECT_TRUE(frame.careAllowed);
    EXPECT_FALSE(modImages::UnstretchEmpty);
  }
};

}

TEST_F(LookupDatabase, EachPanelOpensOnTopAndCloses)
{
  Open();
  const QList<std::array<QString, 3>> panels = {{"fraPrint", "lblOptions_1", "lblOptions_5"},
                                                {"fraLetter", "lblOptions_2", "lblOptions_9"},
                                                {"fraDatabase", "lblOptions_11", "lblOptions_12"}};
  for (int i = 0; i < 2; ++i) {
    for (const auto& [panel, open, close] : panels) {
      EXPECT_FALSE(IsShown(panel)) << panel.toStdString();
      Click(open);
      ExpectOnTop(panel);
      Click(close);
      EXPECT_FALSE(IsShown(panel)) << panel.toStdString();
    }
  }
}

TEST_F(LookupDatabase, PrintAndLetterComeToTheFront)
{
  Open();
  Click("lblOptions_11");
  Click("lblOptions_1");
  ExpectOnTop("fraPrint");
  Click("lblOptions_2");
  ExpectOnTop("fraLetter");
  Click("lblOptions_1");
  ExpectOnTop("fraPrint");
}

TEST_F(LookupDatabase, ClosingThePrintPanelClearsItsChoices)
{
  Open();
  for (const char* option : {"optPrint_0", "optPrint_1"}) {
    Click("lblOptions_1");
    Tick(option);
    Tick("chkDate");
    ASSERT_TRUE(IsTicked(option));
    ASSERT_TRUE(IsTicked("chkDate"));
    Click("lblOptions_5");
    Click("lblOptions_1");
    for (const char* choice : {"optPrint_0", "optPrint_1", "chkDate"}) {
      EXPECT_FALSE(IsTicked(choice)) << choice;
    }
    Click("lblOptions_5");
  }
}

TEST_F(LookupDatabase, ClosingTheLetterPanelClearsItsChoice)
{
  Open();
  Click("lblOptions_2");
  Tick("chkAddress");
  ASSERT_TRUE(IsTicked("chkAddress"));
  Click("lblOptions_9");
  EXPECT_FALSE(IsTicked("chkAddress"));
}

TEST_F(LookupDatabase, PanelsLeaveTheSelectionAlone)
{
  const int ann = AddAnn();
  Open();
  Click(kCheckAll);
  ClickLine(0);
  for (const char* command :
       {"lblOptions_1", "lblOptions_5", "lblOptions_2", "lblOptions_9", "lblOptions_11", "lblOptions_12"}) {
    Click(command);
  }
  EXPECT_EQ(modID::SelectedPersonID, ann);
  ExpectTicks(true);
  EXPECT_EQ(Shown("txtPhoneInfo"), "555-1000");
}

TEST_F(LookupDatabase, TheEditorsGetTheCoupleOfTheSelectedPerson)
{
  for (const auto& [option, page] : {std::pair("optData_0", "frmNew"), std::pair("optData_1", "frmAnn")}) {
    folder.Execute("DELETE FROM People");
    folder.Execute("DELETE FROM Ann");
    const int ann = AddPerson("Ann", "Wood");
    const int bob = AddPerson("Bob", "Wood");
    AddCouple(31, 32);
    AddCouple(ann, bob);
    AddCouple(33, 34);
    for (const int line : {0, 1}) {
      modID::CoupleSpouse1ID = 77;
      modID::CoupleSpouse2ID = 78;
      Open();
      ClickLine(line);
      GoTo(option);
      ExpectAt(page, line == 0 ? ann : bob, ann, bob);
      Forms::Unload(page);
      DropUnloaded();
    }
  }
}

TEST_F(LookupDatabase, WithoutACoupleTheSpousesStayAsTheyAre)
{
  const int ann = AddPerson("Ann", "Wood");
  AddCouple(31, 32);
  for (const auto& [option, page] : {std::pair("optData_0", "frmNew"), std::pair("optData_1", "frmAnn")}) {
    Open();
    ClickLine(0);
    GoTo(option);
    ExpectAt(page, ann, 77, 78);
    Forms::Unload(page);
    DropUnloaded();
  }
}

TEST_F(LookupDatabase, WithoutANameTheSpousesStayAsTheyAre)
{
  AddPerson("Ann", "Wood");
  AddCouple(1, 32);
  for (const auto& [option, page] : {std::pair("optData_0", "frmNew"), std::pair("optData_1", "frmAnn")}) {
    Open();
    GoTo(option);
    ExpectAt(page, 0, 77, 78);
    Forms::Unload(page);
    DropUnloaded();
  }
}

TEST_F(LookupDatabase, WithoutPeopleOrCouplesTheEditorsOpen)
{
  for (const auto& [option, page] : {std::pair("optData_0", "frmNew"), std::pair("optData_1", "frmAnn")}) {
    Open();
    GoTo(option);
    ExpectAt(page, 0, 77, 78);
    Forms::Unload(page);
    DropUnloaded();
  }
}

TEST_F(LookupDatabase, InADamagedTableTheLastCoupleWins)
{
  folder.Execute("DROP INDEX Spouse1ID");
  folder.Execute("DROP INDEX Spouse2ID");
  const int ann = AddPerson("Ann", "Wood");
  AddCouple(ann, 41);
  AddCouple(42, ann);
  AddCouple(ann, 43);
  AddCouple(51, 52);
  for (const auto& [option, page] : {std::pair("optData_0", "frmNew"), std::pair("optData_1", "frmAnn")}) {
    Open();
    ClickLine(0);
    GoTo(option);
    ExpectAt(page, ann, ann, 43);
    Forms::Unload(page);
    DropUnloaded();
  }
  AddCouple(44, ann);
  Open();
  ClickLine(0);
  GoTo("optData_1");
  ExpectAt("frmAnn", ann, 44, ann);
}

TEST_F(LookupDatabase, WithIndexesThatAreNotUniqueTheLastCoupleWins)
{
  for (const char* index : {"Spouse1ID", "Spouse2ID"}) {
    folder.Execute(QStringLiteral("DROP INDEX %1").arg(index));
    folder.Execute(QStringLiteral("CREATE INDEX %1 ON Ann (%1)").arg(index));
  }
  const int ann = AddPerson("Ann", "Wood");
  AddCouple(ann, 41);
  AddCouple(42, ann);
  AddCouple(ann, 43);
  AddCouple(51, 52);
  Open();
  ClickLine(0);
  GoTo("optData_1");
  ExpectAt("frmAnn", ann, ann, 43);
}

TEST_F(LookupDatabase, WithUniqueIndexesTheLaterOfTwoCouplesWins)
{
  const int ann = AddPerson("Ann", "Wood");
  AddCouple(ann, 41);
  AddCouple(42, ann);
  Open();
  ClickLine(0);
  GoTo("optData_1");
  ExpectAt("frmAnn", ann, 42, ann);
}

TEST_F(LookupDatabase, TheEditorsOpenByKeyboard)
{
  const int ann = AddPerson("Ann", "Wood");
  AddCouple(ann, 41);
  Open();
  ClickLine(0);
  Click("lblOptions_11");
  Press("optData_1", Qt::Key_Space);
  DropUnloaded();
  ExpectAt("frmAnn", ann, ann, 41);
}

TEST_F(LookupDatabase, WithTheDatabaseLockedTheProgramReportsIt)
{
  const int ann = AddPerson("Ann", "Wood");
  Open();
  ClickLine(0);
  Click("lblOptions_11");
  const DatabaseTaken taken(folder.DatabasePath());
  ExpectEnding(3260, [] { Tick("optData_1"); });
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(modID::SelectedPersonID, ann);
}

TEST_F(LookupDatabase, AfterALoadThatFailedTheEditorsOpenOnceTheDatabaseIsFree)
{
  AddPerson("Ann", "Wood");
  {
    const DatabaseTaken taken(folder.DatabasePath());
    Open();
  }
  GoTo("optData_1");
  ExpectAt("frmAnn", 0, 77, 78);
}

TEST_F(LookupDatabase, MainForgetsTheSelectedPerson)
{
  const int ann = AddPerson("Ann", "Wood");
  AddCouple(ann, 41);
  Open();
  ClickLine(0);
  ASSERT_EQ(modID::SelectedPersonID, ann);
  Click(kMain);
  DropUnloaded();
  ExpectAt("frmIntro", 0, 77, 78);
}

TEST_F(LookupDatabase, MainWhileDoneStands)
{
  AddAnn();
  Open();
  Tick("chkInfo_0");
  ClickLine(0);
  Click(kCopy);
  ASSERT_TRUE(IsShown("lblDone"));
  Click(kMain);
  DropUnloaded();
  ExpectAt("frmIntro", 0, 77, 78);
}
