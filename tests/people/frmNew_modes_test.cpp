// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "PeopleTest.h"

#include "platform/HelpViewer.h"
#include "support/HelpOnScreen.h"

using namespace PeopleTexts;

namespace {

const std::string kYellow = "#fff7d3";
const std::string kWhite = "#ffffff";

enum class Mode
{
  kBrowse,
  kAdding,
  kEditing,
};

class EditorModes : public PeopleTest
{
protected:
  // Every line of what a mode shows.
  static void ExpectMode(Mode mode)
  {
    const bool browses = mode == Mode::kBrowse;
    EXPECT_EQ(IsShown("fraAdd"), mode == Mode::kAdding);
    EXPECT_EQ(IsShown("fraEdit"), mode == Mode::kEditing);
    for (const char* name : {"fraNav", "cmdFirst", "cmdPrevious", "cmdNext", "cmdLast", "lblOptions_3", "lblOptions_6",
                             "lblOptions_7", "lblOptions_8"}) {
      EXPECT_EQ(Control(name).isEnabled(), browses) << name;
    }
    for (const QString& name : {kMain, kAnniversary, kHelp}) {
      EXPECT_TRUE(Control(name).isEnabled()) << name.toStdString();
    }
    for (const char* name : {"cmdAddPic", "cmdDeletePic"}) {
      EXPECT_NE(Control(name).isEnabled(), browses) << name;
    }
    for (const QString& name : kAllBoxes) {
      EXPECT_EQ(Box(name).Locked(), browses) << name.toStdString();
      EXPECT_EQ(Background(name), browses ? kYellow : kWhite) << name.toStdString();
    }
    const auto& values = dynamic_cast<Label&>(Control("lblValues"));
    EXPECT_EQ(values.BackColor().name().toStdString(), browses ? kWhite : kYellow);
    EXPECT_EQ(values.BackStyle(), Label::kOpaque);
  }

  void OpenWithThree()
  {
    AddPerson("Ann", "Adams", {{"Street", "1 High St"}, {"BirthMonth", "March"}});
    AddPerson("Bob", "Brown", {{"Gender", "Male"}});
    AddPerson("Cy", "Cole", {{"Gender", "Male"}});
    Open();
  }

  static void FillNames(const QString& first, const QString& last)
  {
    Type("txtFirst", first);
    Type("txtLast", last);
    Pick("cboSex", "Male");
  }
};

}

TEST_F(EditorModes, BrowsingShowsWhatItsTableSays)
{
  OpenWithThree();
  ExpectMode(Mode::kBrowse);
}

TEST_F(EditorModes, AddingShowsWhatItsTableSays)
{
  OpenWithThree();
  Click(kAdd);
  ExpectMode(Mode::kAdding);
}

TEST_F(EditorModes, EditingShowsWhatItsTableSays)
{
  OpenWithThree();
  Click(kEdit);
  ExpectMode(Mode::kEditing);
}

TEST_F(EditorModes, TheTwoPanelsStandAtOnePlace)
{
  OpenWithThree();
  EXPECT_EQ(Control("fraAdd").geometry(), Control("fraEdit").geometry());
}

TEST_F(EditorModes, TheOpenPanelLiesOnTopAndLeavesThePictureOfTheThemeInSight)
{
  OpenWithThree();
  for (const auto& [begin, name, cancel] :
       {std::tuple(kAdd, "fraAdd", "lblOptions_1"), std::tuple(kEdit, "fraEdit", "lblOptions_4")}) {
    Click(begin);
    QWidget& panel = Control(name);
    for (const QPoint& corner : {panel.rect().topLeft(), panel.rect().bottomRight(), panel.rect().center()}) {
      QWidget* seen = Page().childAt(panel.mapTo(&Page(), corner));
      EXPECT_TRUE(seen == &panel || panel.isAncestorOf(seen)) << name;
    }
    EXPECT_FALSE(panel.geometry().intersects(Page().PicturePlace())) << name;
    Click(cancel);
  }
}

TEST_F(EditorModes, TheHelpOpensAtQuickFillInEveryMode)
{
  HelpOnScreen::Lay(folder.Path());
  OpenWithThree();
  for (const auto& [begin, mode] :
       {std::pair(QString(), Mode::kBrowse), std::pair(kAdd, Mode::kAdding), std::pair(kEdit, Mode::kEditing)}) {
    if (!begin.isEmpty()) {
      Click(begin);
    }
    Click(kHelp);
    EXPECT_EQ(HelpOnScreen::Page(), "quick-fill.html");
    ExpectMode(mode);
    HelpViewer::Quit();
    if (mode == Mode::kAdding) {
      Click(kCancelAdd);
    }
  }
}

TEST_F(EditorModes, WithoutAHelpFileTheModeAndTheTextStand)
{
  OpenWithThree();
  Click(kAdd);
  FillNames("Dan", "Dunn");
  boxes.Expect("Sorry, the help cannot be shown, because its file is missing or damaged.");
  Click(kHelp);
  ExpectMode(Mode::kAdding);
  EXPECT_EQ(Name(), "Dan Dunn");
}

TEST_F(EditorModes, AFinishedAdditionBrowses)
{
  OpenWithThree();
  Click(kAdd);
  FillNames("Dan", "Dunn");
  Click(kFinishAdd);
  ExpectMode(Mode::kBrowse);
}

TEST_F(EditorModes, ACancelledAdditionBrowses)
{
  OpenWithThree();
  Click(kAdd);
  Click(kCancelAdd);
  ExpectMode(Mode::kBrowse);
}

TEST_F(EditorModes, AFinishedEditBrowses)
{
  OpenWithThree();
  Click(kEdit);
  Click(kFinishEdit);
  ExpectMode(Mode::kBrowse);
}

TEST_F(EditorModes, ACancelledEditBrowses)
{
  OpenWithThree();
  Click(kEdit);
  Click(kCancelEdit);
  ExpectMode(Mode::kBrowse);
}

TEST_F(EditorModes, ARefusedAdditionGoesOnWithItsText)
{
  OpenWithThree();
  const auto before = People();
  Click(kAdd);
  FillNames("Dan", "   ");
  boxes.Expect("A last name must be entered, or click Cancel");
  Click(kFinishAdd);
  ExpectMode(Mode::kAdding);
  EXPECT_EQ(Name(), "Dan    ");
  EXPECT_EQ(Shown("cboSex"), "Male");
  EXPECT_EQ(People(), before);
}

TEST_F(EditorModes, ARefusedEditGoesOnWithItsText)
{
  OpenWithThree();
  const auto before = People();
  Click(kEdit);
  Empty("txtFirst");
  boxes.Expect("A first name must be entered, or click Cancel");
  Click(kFinishEdit);
  ExpectMode(Mode::kEditing);
  EXPECT_EQ(Name(), " Adams");
  EXPECT_EQ(People(), before);
}

TEST_F(EditorModes, DisabledCommandsDoNothing)
{
  OpenWithThree();
  Click(kEdit);
  for (const QString& name : {kSearch, kAdd, kEdit, kDelete, QStringLiteral("cmdNext"), QStringLiteral("cmdLast")}) {
    Click(name);
  }
  ExpectMode(Mode::kEditing);
  EXPECT_EQ(Name(), "Ann Adams");
  EXPECT_EQ(Counter(), " 1 of 1 people");
}

TEST_F(EditorModes, LockedBoxesTakeTheFocusButNoKeys)
{
  OpenWithThree();
  for (const QString& name : kAllBoxes) {
    const std::string before = Shown(name);
    Control(name).setFocus();
    EXPECT_TRUE(HasFocus(name)) << name.toStdString();
    QTest::keyClicks(&Control(name), "x");
    Press(name, Qt::Key_Backspace);
    Insert(name, "pasted");
    EXPECT_EQ(Shown(name), before) << name.toStdString();
  }
}

TEST_F(EditorModes, UnlockedTextBoxesTakeKeys)
{
  OpenWithThree();
  Click(kEdit);
  for (const QString& name : kTextBoxes) {
    Type(name, "abc");
    EXPECT_EQ(Shown(name), "abc") << name.toStdString();
  }
}

TEST_F(EditorModes, AddingStartsBlankWithTheFocusInTheFirstName)
{
  const int ann = AddPerson("Ann", "Adams", {{"Street", "1 High St"}, {"Notes", "n"}, {"BirthYear", "1980"}});
  AddCouple(ann, AddPerson("Bob", "Brown"));
  Open();
  EXPECT_EQ(Caption("lblCompleteAnn"), "June 12 1999");
  const auto before = People();
  Click(kAdd);
  for (const QString& name : kAllBoxes) {
    EXPECT_EQ(Shown(name), "") << name.toStdString();
  }
  EXPECT_EQ(Caption("lblCompleteAnn"), "");
  EXPECT_TRUE(HasFocus("txtFirst"));
  EXPECT_EQ(Counter(), " 1 of 1 people");
  EXPECT_EQ(People(), before);
}

TEST_F(EditorModes, TheBeginningCommandLosesItsHighlight)
{
  OpenWithThree();
  for (const QString& command : {kAdd, kEdit}) {
    Drive::MoveOver(Page(), command);
    Click(command);
    EXPECT_EQ(dynamic_cast<Label&>(Control(command)).BackStyle(), Label::kTransparent) << command.toStdString();
    Click(command == kAdd ? kCancelAdd : kCancelEdit);
  }
}

TEST_F(EditorModes, EditingLeavesTheTextAndTheFocusAlone)
{
  OpenWithThree();
  Control("txtCity").setFocus();
  Click(kEdit);
  EXPECT_EQ(Name(), "Ann Adams");
  EXPECT_EQ(Shown("txtStreet"), "1 High St");
  EXPECT_EQ(Focus(), "txtCity");
}

TEST_F(EditorModes, NothingCanBeEditedDeletedOrSearchedInAnEmptyTable)
{
  Open();
  for (const QString& command : {kEdit, kDelete, kSearch}) {
    Click(command);
    ExpectMode(Mode::kBrowse);
  }
  EXPECT_EQ(boxes.Count(), 0U);
  EXPECT_EQ(questions.Count(), 0U);
  EXPECT_FALSE(modID::RecordDeleted);
}

TEST_F(EditorModes, ACancelledAdditionToAnEmptyTableShowsNobody)
{
  Open();
  Click(kAdd);
  FillNames("Dan", "Dunn");
  Click(kCancelAdd);
  ExpectMode(Mode::kBrowse);
  for (const QString& name : kAllBoxes) {
    EXPECT_EQ(Shown(name), "") << name.toStdString();
  }
  EXPECT_EQ(Counter(), " 0 of 0 people");
  EXPECT_TRUE(People().empty());
}

TEST_F(EditorModes, TheFirstPersonIsAddedToAnEmptyTable)
{
  Open();
  Click(kAdd);
  FillNames("Dan", "Dunn");
  Click(kFinishAdd);
  EXPECT_EQ(Counter(), " 1 of 1 people");
  EXPECT_EQ(Dump("SELECT FirstName, LastName, Gender FROM People"), std::vector<std::string>{"Dan|Dunn|Male|"});
  EXPECT_EQ(Lines("cboStreet"), QStringList{"Dunn, Dan"});
}

TEST_F(EditorModes, TheMainPageIsRefusedWhileAddingOrEditing)
{
  OpenWithThree();
  for (const auto& [begin, end] : {std::pair(kAdd, kCancelAdd), std::pair(kEdit, kCancelEdit)}) {
    Click(begin);
    boxes.Expect("Please finish adding or editing your record before exiting");
    Click(kMain);
    ExpectMode(begin == kAdd ? Mode::kAdding : Mode::kEditing);
    EXPECT_FALSE(IsOpen("frmIntro"));
    Click(end);
  }
}

TEST_F(EditorModes, TheMainPageTakesThePlaceOfTheEditor)
{
  OpenWithThree();
  Click(kMain);
  EXPECT_FALSE(IsOpen());
  ASSERT_TRUE(IsOpen("frmIntro"));
  EXPECT_TRUE(Forms::Loaded("frmIntro")->isVisible());
}

TEST_F(EditorModes, TheAnniversaryIsRefusedWhileAddingOrEditing)
{
  const int ann = AddPerson("Ann", "Adams");
  AddCouple(ann, AddPerson("Bob", "Brown"));
  Open();
  for (const auto& [begin, end] : {std::pair(kAdd, kCancelAdd), std::pair(kEdit, kCancelEdit)}) {
    Click(begin);
    boxes.Expect("Please finish adding or editing your record before editing anniversary information");
    Click(kAnniversary);
    ExpectMode(begin == kAdd ? Mode::kAdding : Mode::kEditing);
    EXPECT_FALSE(IsOpen("frmAnn"));
    EXPECT_EQ(modID::CoupleSpouse1ID, 0);
    Click(end);
  }
}

TEST_F(EditorModes, TheAnniversaryPageIsHandedTheCouple)
{
  const int husband = AddPerson("Abe", "Adams");
  AddCouple(AddPerson("Eve", "Evans"), AddPerson("Fred", "Fox"));
  const int wife = AddPerson("Bea", "Brown");
  AddCouple(wife, husband);
  for (const int person : {husband, wife}) {
    modID::CoupleSpouse1ID = modID::CoupleSpouse2ID = 0;
    Open(person);
    Click(kAnniversary);
    EXPECT_EQ(modID::CoupleSpouse1ID, wife);
    EXPECT_EQ(modID::CoupleSpouse2ID, husband);
    EXPECT_FALSE(IsOpen());
    ASSERT_TRUE(IsOpen("frmAnn"));
    EXPECT_TRUE(Forms::Loaded("frmAnn")->isVisible());
  }
}

TEST_F(EditorModes, SomebodyWithoutACoupleHandsOverWhatStoodThere)
{
  OpenWithThree();
  modID::CoupleSpouse1ID = 77;
  modID::CoupleSpouse2ID = 78;
  Click(kAnniversary);
  EXPECT_EQ(modID::CoupleSpouse1ID, 77);
  EXPECT_EQ(modID::CoupleSpouse2ID, 78);
  EXPECT_TRUE(IsOpen("frmAnn"));
}

// The frame asks in this way before it leaves the page.
TEST_F(EditorModes, OtherPagesSeeTheModeByThePanels)
{
  OpenWithThree();
  Click(kEdit);
  EXPECT_TRUE(Page().Control("fraEdit")->isVisibleTo(&Page()));
  Click(kCancelEdit);
  EXPECT_FALSE(Page().Control("fraEdit")->isVisibleTo(&Page()));
  Click(kAdd);
  EXPECT_TRUE(Page().Control("fraAdd")->isVisibleTo(&Page()));
}

TEST_F(EditorModes, ControlEnterFinishesAnAddition)
{
  OpenWithThree();
  Click(kAdd);
  FillNames("Dan", "Dunn");
  Control("txtNotes").setFocus();
  Press("txtNotes", Qt::Key_Return, Qt::ControlModifier);
  ExpectMode(Mode::kBrowse);
  EXPECT_EQ(Counter(), " 4 of 4 people");
  EXPECT_EQ(Dump("SELECT FirstName, Notes FROM People WHERE LastName='Dunn'"), std::vector<std::string>{"Dan|NULL|"});
}

TEST_F(EditorModes, ControlEnterFinishesAnEditFromAnyBox)
{
  OpenWithThree();
  for (const QString& name : kAllBoxes) {
    Click(kEdit);
    Control(name).setFocus();
    Press(name, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(IsShown("fraEdit")) << name.toStdString();
    EXPECT_EQ(Name(), "Ann Adams");
  }
}

TEST_F(EditorModes, ControlEnterDoesNothingWhileBrowsing)
{
  OpenWithThree();
  const auto before = People();
  Press("txtFirst", Qt::Key_Return, Qt::ControlModifier);
  ExpectMode(Mode::kBrowse);
  EXPECT_EQ(People(), before);
}
