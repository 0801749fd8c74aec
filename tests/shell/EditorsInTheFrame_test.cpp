// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ShellTest.h"

#include "platform/Command.h"
#include "support/ErrorOf.h"

namespace {

const QString kFinishFirst = QStringLiteral("Please finish adding or editing your record before exiting");

// The real editors in the real frame.
class EditorsInTheFrame : public ShellTest
{
protected:
  void OpenEditor()
  {
    Start();
    Menu("mnuPersonal").trigger();
    ASSERT_NE(Forms::Loaded("frmNew"), nullptr);
  }
  [[nodiscard]] static QWidget& Editor() { return *Forms::Loaded("frmNew"); }
};

}

TEST_F(EditorsInTheFrame, AnOpenEditRefusesEveryWayOut)
{
  folder.Execute("INSERT INTO People (FirstName, LastName, Gender) VALUES ('Ann', 'Adams', 'Female')");
  OpenEditor();
  for (const auto& [begin, cancel] :
       {std::pair("lblOptions_6", "lblOptions_1"), std::pair("lblOptions_7", "lblOptions_4")}) {
    Drive::Click(Editor(), begin);
    boxes.Expect(kFinishFirst);
    Menu("mnuAnn").trigger();
    boxes.Expect(kFinishFirst);
    Menu("mnuPersonal").trigger();
    boxes.Expect(kFinishFirst);
    EXPECT_FALSE(frame->Unload());
    boxes.Expect(kFinishFirst);
    Drive::Click(Editor(), "lblOptions_2");
    EXPECT_NE(Forms::Loaded("frmNew"), nullptr);
    EXPECT_EQ(Forms::Loaded("frmAnn"), nullptr);
    EXPECT_TRUE(frame->isVisible());
    Drive::Click(Editor(), cancel);
  }
  EXPECT_EQ(boxes.Count(), 8U);
}

TEST_F(EditorsInTheFrame, ATallyThatFailsAtTheCloseLeavesTheWindowStateWritten)
{
  OpenEditor();
  folder.Execute("DROP TABLE TotalAge");
  frame->SetState(WindowState::kMaximised);
  EXPECT_EQ(ErrorOf([&] { Command::Run([&] { frame->Unload(); }); }), 3078);
  EXPECT_EQ(Option("WindowState"), 1);
}

TEST_F(EditorsInTheFrame, ASwitchOfTheTipsTakesEffectOnTheOpenEditorAtOnce)
{
  OpenEditor();
  const QWidget& next = Drive::Control(Editor(), "cmdNext");
  const QWidget& street = Drive::Control(Editor(), "txtStreet");
  EXPECT_EQ(next.toolTip(), "Click to go to the next record");
  EXPECT_EQ(street.toolTip(), "First line of street address");
  Menu("mnuToolTips_0").trigger();
  EXPECT_EQ(next.toolTip(), "");
  EXPECT_EQ(street.toolTip(), "");
  Menu("mnuToolTips_1").trigger();
  EXPECT_EQ(next.toolTip(), "Click to go to the next record");
}

TEST_F(EditorsInTheFrame, EditAnniversaryOpensTheCoupleAndComesBackToTheMainPage)
{
  folder.Execute(
      "INSERT INTO People (PeopleID, FirstName, LastName, Gender) VALUES (1, 'Ann', 'Adams', 'Female'), "
      "(2, 'Bob', 'Adams', 'Male')");
  folder.Execute(
      "INSERT INTO Ann (Spouse1ID, Spouse1First, Spouse1Last, Spouse2ID, Spouse2First, Spouse2Last) "
      "VALUES (1, 'Ann', 'Adams', 2, 'Bob', 'Adams')");
  OpenEditor();
  Drive::Click(Editor(), "lblOptions_9");
  EXPECT_EQ(Forms::Loaded("frmNew"), nullptr);
  Form* couples = Forms::Loaded("frmAnn");
  ASSERT_NE(couples, nullptr);
  EXPECT_EQ(static_cast<Label&>(Drive::Control(*couples, "lblPartner1")).text(), "Adams, Ann");
  EXPECT_EQ(static_cast<Label&>(Drive::Control(*couples, "lblPartner2")).text(), "Adams, Bob");
  Drive::Click(*couples, "lblOptions_1");
  EXPECT_EQ(Forms::Loaded("frmAnn"), nullptr);
  EXPECT_TRUE(Forms::Loaded("frmIntro")->isVisible());
}
