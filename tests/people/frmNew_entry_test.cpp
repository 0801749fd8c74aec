// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "PeopleTest.h"

using namespace PeopleTexts;

namespace {

const QString kThirty = QString(30, 'x');
const QStringList kLimited = {"txtFirst", "txtLast", "txtStreet",  "txtSecondAddress",
                              "txtCity",  "txtProv", "txtCountry", "txtPostal"};
const QStringList kUnlimited = {"txtPhone", "txtMobile", "txtBus", "txtEmail", "txtNotes"};
const QStringList kDateCombos = {"cboBirthMonth", "cboBirthDate", "cboBirthYear"};

class EntryKeyboard : public PeopleTest
{
protected:
  void OpenForEntry()
  {
    AddPerson("Ann", "Adams", {{"BirthMonth", "May"}, {"BirthDate", "12"}, {"BirthYear", "1980"}});
    AddPerson("Bob", "Brown");
    Open();
    Click(kEdit);
  }

  // Letters with accents come in this way, into boxes that say that they take them.
  static void Compose(const QString& box, const QString& letters)
  {
    QInputMethodQueryEvent query(Qt::ImEnabled);
    QCoreApplication::sendEvent(&Control(box), &query);
    if (query.value(Qt::ImEnabled).toBool()) {
      QInputMethodEvent event;
      event.setCommitString(letters);
      QCoreApplication::sendEvent(&Control(box), &event);
    }
  }

  // Goes from box to box by one key, from the box that has the focus.
  static void ExpectWalk(Qt::Key key, const QStringList& path)
  {
    Control(path.first()).setFocus();
    for (qsizetype i = 1; i < path.size(); ++i) {
      Press(path[i - 1], key);
      EXPECT_TRUE(HasFocus(path[i])) << "from " << path[i - 1].toStdString() << " to " << Focus();
    }
  }
};

}

TEST_F(EntryKeyboard, TypingStopsAtThirtyCharacters)
{
  OpenForEntry();
  for (const QString& box : kLimited) {
    Type(box, kThirty.left(29) + "abc");
    EXPECT_EQ(Shown(box), (kThirty.left(29) + "a").toStdString()) << box.toStdString();
    Press(box, Qt::Key_Backspace);
    EXPECT_EQ(Shown(box), kThirty.left(29).toStdString()) << box.toStdString();
    QTest::keyClicks(&Control(box), "yz");
    EXPECT_EQ(Shown(box), (kThirty.left(29) + "y").toStdString()) << box.toStdString();
  }
  EXPECT_EQ(boxes.Count(), 0U);
}

TEST_F(EntryKeyboard, AFullBoxIsLeftByEveryUsualKey)
{
  OpenForEntry();
  for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Down}) {
    Type("txtFirst", kThirty);
    Press("txtFirst", key);
    EXPECT_TRUE(HasFocus("txtLast")) << key;
  }
  Type("txtLast", kThirty);
  QTest::keyClick(&Control("txtLast"), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(HasFocus("txtFirst"));
  Press("txtFirst", Qt::Key_Return, Qt::ControlModifier);
  EXPECT_FALSE(IsShown("fraEdit"));
  EXPECT_EQ(Stored(1, "FirstName"), kThirty.toStdString());
}

TEST_F(EntryKeyboard, AFullBoxCanBeCopiedAndShortened)
{
  OpenForEntry();
  Type("txtCity", kThirty);
  Press("txtCity", Qt::Key_A, Qt::ControlModifier);
  QApplication::clipboard()->clear();
  Press("txtCity", Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), kThirty.toStdString());
  Press("txtCity", Qt::Key_Home);
  Press("txtCity", Qt::Key_Delete);
  EXPECT_EQ(Shown("txtCity"), kThirty.left(29).toStdString());
}

TEST_F(EntryKeyboard, ComposedLettersStopAtTheLimitToo)
{
  OpenForEntry();
  Type("txtCity", kThirty.left(29));
  Compose("txtCity", "é");
  Compose("txtCity", "é");
  EXPECT_EQ(Shown("txtCity"), (kThirty.left(29) + QStringLiteral("é")).toStdString());
}

TEST_F(EntryKeyboard, CombosThrowAwayComposedLettersToo)
{
  OpenForEntry();
  for (const QString& box : kCombos) {
    const std::string before = Shown(box);
    Compose(box, "é");
    EXPECT_EQ(Shown(box), before) << box.toStdString();
  }
}

TEST_F(EntryKeyboard, OtherBoxesTakeAnyLength)
{
  OpenForEntry();
  for (const QString& box : kUnlimited) {
    Type(box, kThirty + "abc");
    EXPECT_EQ(Shown(box), (kThirty + "abc").toStdString()) << box.toStdString();
  }
}

TEST_F(EntryKeyboard, ASelectionDoesNotMakeRoom)
{
  OpenForEntry();
  Type("txtCity", kThirty);
  Press("txtCity", Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(&Control("txtCity"), "y");
  EXPECT_EQ(Shown("txtCity"), kThirty.toStdString());
  Press("txtCity", Qt::Key_Delete);
  EXPECT_EQ(Shown("txtCity"), "");
}

TEST_F(EntryKeyboard, APasteGoesOverTheLimit)
{
  OpenForEntry();
  for (const QString& box : kLimited) {
    Paste(box, kThirty);
    Insert(box, "ab");
    EXPECT_EQ(Shown(box), (kThirty + "ab").toStdString()) << box.toStdString();
    QTest::keyClicks(&Control(box), "y");
    EXPECT_EQ(Shown(box), (kThirty + "ab").toStdString()) << box.toStdString();
    Press(box, Qt::Key_Backspace);
    EXPECT_EQ(Shown(box), (kThirty + "a").toStdString()) << box.toStdString();
  }
}

TEST_F(EntryKeyboard, TypedTextIsNotChanged)
{
  OpenForEntry();
  Type("txtLast", "  mcDonald  o'");
  EXPECT_EQ(Shown("txtLast"), "  mcDonald  o'");
  Type("txtPhone", "not a number");
  EXPECT_EQ(Shown("txtPhone"), "not a number");
}

TEST_F(EntryKeyboard, EnterWalksThroughAllBoxes)
{
  OpenForEntry();
  const QStringList path = {"txtFirst",   "txtLast",   "txtStreet",     "txtSecondAddress", "txtCity",      "txtProv",
                            "txtCountry", "txtPostal", "cboBirthMonth", "cboBirthDate",     "cboBirthYear", "cboSex",
                            "txtPhone",   "txtMobile", "txtBus",        "txtEmail",         "txtNotes"};
  ExpectWalk(Qt::Key_Return, path);
  ExpectWalk(Qt::Key_Enter, path);
  EXPECT_TRUE(IsShown("fraEdit"));
  EXPECT_EQ(Name(), "Ann Adams");
  EXPECT_EQ(Shown("cboBirthMonth"), "May");
}

TEST_F(EntryKeyboard, DownWalksLikeEnterThroughTheTextBoxes)
{
  OpenForEntry();
  ExpectWalk(Qt::Key_Down, {"txtFirst", "txtLast", "txtStreet", "txtSecondAddress", "txtCity", "txtProv", "txtCountry",
                            "txtPostal", "cboBirthMonth"});
  ExpectWalk(Qt::Key_Down, {"txtPhone", "txtMobile", "txtBus", "txtEmail", "txtNotes"});
}

TEST_F(EntryKeyboard, UpWalksBack)
{
  OpenForEntry();
  ExpectWalk(Qt::Key_Up, {"txtEmail", "txtBus", "txtMobile", "txtPhone", "txtPostal", "txtCountry", "txtProv",
                          "txtCity", "txtSecondAddress", "txtStreet", "txtLast", "txtFirst"});
  Press("txtFirst", Qt::Key_Up);
  EXPECT_EQ(Focus(), "txtFirst");
}

TEST_F(EntryKeyboard, TheNotesKeepTheirKeys)
{
  OpenForEntry();
  Type("txtNotes", "a");
  Press("txtNotes", Qt::Key_Return);
  QTest::keyClicks(&Control("txtNotes"), "b");
  EXPECT_EQ(Shown("txtNotes"), "a\nb");
  for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Down, Qt::Key_Down}) {
    Press("txtNotes", key);
    EXPECT_EQ(Focus(), "txtNotes");
  }
}

TEST_F(EntryKeyboard, TheWalkGoesThroughLockedBoxesToo)
{
  AddPerson("Ann", "Adams");
  Open();
  ExpectWalk(Qt::Key_Return, {"txtFirst", "txtLast", "txtStreet", "txtSecondAddress", "txtCity", "txtProv",
                              "txtCountry", "txtPostal", "cboBirthMonth", "cboBirthDate", "cboBirthYear", "cboSex",
                              "txtPhone", "txtMobile", "txtBus", "txtEmail", "txtNotes"});
  ExpectWalk(Qt::Key_Up, {"txtPhone", "txtPostal", "txtCountry"});
  Press("txtNotes", Qt::Key_Return);
  EXPECT_EQ(Shown("txtNotes"), "");
}

TEST_F(EntryKeyboard, CombosThrowAwayWhatIsTyped)
{
  OpenForEntry();
  for (const QString& box : kCombos) {
    const std::string before = Shown(box);
    Control(box).setFocus();
    QTest::keyClicks(&Control(box), "Ma1 x");
    Insert(box, "pasted");
    Press(box, Qt::Key_Delete);
    EXPECT_EQ(Shown(box), before) << box.toStdString();
    EXPECT_EQ(Focus(), box.toStdString());
  }
}

TEST_F(EntryKeyboard, BackspaceShortensADate)
{
  OpenForEntry();
  for (const QString& box : kDateCombos) {
    std::string text = Shown(box);
    Control(box).setFocus();
    Press(box, Qt::Key_End);
    while (!text.empty()) {
      text.pop_back();
      Press(box, Qt::Key_Backspace);
      EXPECT_EQ(Shown(box), text) << box.toStdString();
    }
    Press(box, Qt::Key_Backspace);
    EXPECT_EQ(Shown(box), "") << box.toStdString();
  }
}

TEST_F(EntryKeyboard, BackspaceLeavesTheGenderAndTheQuickFillAlone)
{
  OpenForEntry();
  Pick("cboSex", "Male");
  Pick("cboStreet", "Brown, Bob");
  for (const char* box : {"cboSex", "cboStreet"}) {
    const std::string before = Shown(box);
    Control(box).setFocus();
    Press(box, Qt::Key_Backspace);
    EXPECT_EQ(Shown(box), before) << box;
  }
}

TEST_F(EntryKeyboard, EnterInTheQuickFillDoesNothing)
{
  OpenForEntry();
  Control("cboStreet").setFocus();
  Press("cboStreet", Qt::Key_Return);
  EXPECT_EQ(Focus(), "cboStreet");
  EXPECT_TRUE(IsShown("fraEdit"));
}

TEST_F(EntryKeyboard, AShortenedDateCanBeChosenAnew)
{
  OpenForEntry();
  Press("cboBirthYear", Qt::Key_End);
  Press("cboBirthYear", Qt::Key_Backspace);
  EXPECT_EQ(Shown("cboBirthYear"), "198");
  Pick("cboBirthYear", "1980");
  EXPECT_EQ(Shown("cboBirthYear"), "1980");
}
