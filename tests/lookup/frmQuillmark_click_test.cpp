// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "LookupTest.h"
#include "support/HeldDatabase.h"

#include <algorithm>
#include <map>

namespace {

class LookupClick : public LookupPageTest
{
protected:
  // Somebody with one thing known of each kind, told apart by the number.
  int AddSomebody(const QString& first, int number) const
  {
    const QString n = QString::number(number);
    return AddPerson(first, "Wood",
                     {{"Phone", "phone " + n},
                      {"Mobile", "mobile " + n},
                      {"Business", "business " + n},
                      {"Email", "email " + n},
                      {"Country", "country " + n},
                      {"BirthMonth", "March"},
                      {"BirthDate", n},
                      {"AnnMonth", "June"},
                      {"AnnDate", n},
                      {"Notes", "notes " + n}});
  }
  static std::string ItemOf(const LookupItem& item, int number)
  {
    const std::string n = std::to_string(number);
    const std::map<std::string, std::string> texts = {
        {"chkInfo_0", "phone " + n},
        {"chkInfo_1", "email " + n},
        {"chkInfo_2", "street address unavailable\r\ncity and province/state not available\r\ncountry " + n},
        {"chkInfo_3", "mobile " + n},
        {"chkInfo_4", "business " + n},
        {"chkPersonal_0", "March " + n},
        {"chkPersonal_1", "June " + n},
        {"chkNotes", "notes " + n}};
    return texts.at(item.check);
  }
};

// What is ticked here fails without a word.
class LookupClickOnADateOrTheNotes : public LookupClick, public testing::WithParamInterface<const char*>
{
protected:
  // Shows the item and hides it again, which keeps its text.
  static void TickTwice()
  {
    Tick(GetParam());
    Tick(GetParam());
  }
  static const LookupItem* Item()
  {
    return std::find_if(kItems.begin(), kItems.end(),
                        [](const LookupItem& item) { return QLatin1String(item.check) == QLatin1String(GetParam()); });
  }
};

}

TEST_F(LookupClick, WithoutTicksANameShowsOnlyItself)
{
  const int ann = AddSomebody("Ann", 1);
  Open();
  ClickLine(0);
  EXPECT_EQ(modID::SelectedPersonID, ann);
  EXPECT_EQ(Name(), "Ann Wood");
  ExpectNothingShown();
  ExpectPlainTitles();
}

TEST_F(LookupClick, EachTickShowsItsOwnItemAlone)
{
  AddSomebody("Ann", 1);
  Open();
  ClickLine(0);
  for (const LookupItem& ticked : kItems) {
    Tick(ticked.check);
    for (const LookupItem& item : kItems) {
      if (&item == &ticked) {
        ExpectShown(item, ItemOf(item, 1));
      } else {
        ExpectHidden(item);
      }
    }
    Tick(ticked.check);
    ExpectNothingShown();
  }
}

TEST_F(LookupClick, TickingBeforeANameShowsNothingUntilTheNextName)
{
  AddSomebody("Ann", 1);
  Open();
  for (const LookupItem& ticked : kItems) {
    Tick(ticked.check);
    ASSERT_TRUE(IsTicked(ticked.check));
    ExpectNothingShown();
    ExpectPlainTitles();
    EXPECT_FALSE(IsShown("lblExplain"));
  }
  ClickLine(0);
  for (const LookupItem& item : kItems) {
    ExpectShown(item, ItemOf(item, 1));
  }
}

TEST_F(LookupClick, EachTickAloneIsFollowedFromNameToName)
{
  AddSomebody("Ann", 1);
  AddSomebody("Bob", 2);
  Open();
  for (const LookupItem& ticked : kItems) {
    Tick(ticked.check);
    for (const int line : {0, 1, 0}) {
      ClickLine(line);
      for (const LookupItem& item : kItems) {
        if (&item == &ticked) {
          ExpectShown(item, ItemOf(item, line + 1));
        } else {
          ExpectHidden(item);
        }
      }
    }
    Tick(ticked.check);
  }
}

TEST_F(LookupClick, EveryNameShowsItsOwnItems)
{
  const int ann = AddSomebody("Ann", 1);
  const int bob = AddSomebody("Bob", 2);
  const int eve = AddSomebody("Eve", 3);
  Open();
  Click(kCheckAll);
  const std::array<int, 3> keys = {ann, bob, eve};
  const std::array<const char*, 3> names = {"Ann Wood", "Bob Wood", "Eve Wood"};
  for (const int line : {2, 0, 1, 1, 2}) {
    ClickLine(line);
    EXPECT_EQ(modID::SelectedPersonID, keys.at(static_cast<std::size_t>(line)));
    EXPECT_EQ(Name(), names.at(static_cast<std::size_t>(line)));
    for (const LookupItem& item : kItems) {
      ExpectShown(item, ItemOf(item, line + 1));
    }
  }
}

TEST_F(LookupClick, TheNameStandsFirstNameFirstInBothOrders)
{
  AddPerson("Ann", "Wood");
  Open();
  Click(kLastNameOrder);
  ClickLine(0);
  EXPECT_EQ(Name(), "Ann Wood");
}

TEST_F(LookupClick, TheArrowKeysChoosePeople)
{
  AddSomebody("Ann", 1);
  AddSomebody("Bob", 2);
  AddSomebody("Eve", 3);
  Open();
  Click(kCheckAll);
  Names().setFocus();
  Press("lstNames", Qt::Key_Down);
  EXPECT_EQ(Name(), "Ann Wood");
  Press("lstNames", Qt::Key_Down);
  EXPECT_EQ(Name(), "Bob Wood");
  EXPECT_EQ(Shown("txtPhoneInfo"), "phone 2");
  EXPECT_EQ(Shown("txtNotes"), "notes 2");
  Press("lstNames", Qt::Key_End);
  EXPECT_EQ(Name(), "Eve Wood");
  Press("lstNames", Qt::Key_Up);
  EXPECT_EQ(Name(), "Bob Wood");
  Press("lstNames", Qt::Key_Home);
  EXPECT_EQ(Shown("txtBirthInfo"), "March 1");
  EXPECT_TRUE(Names().hasFocus());
}

TEST_F(LookupClick, TabGoesThroughThePageInTheOrderOfReading)
{
  AddSomebody("Ann", 1);
  Open();
  const std::vector<std::string> wanted = {
      "lblNames_1",   "lstNames",     "lblAll_0",     "lblAll_1",      "chkInfo_0",     "chkInfo_3",
      "chkInfo_4",    "chkInfo_1",    "chkInfo_2",    "chkPersonal_0", "chkPersonal_1", "chkNotes",
      "lblOptions_0", "lblOptions_1", "lblOptions_2", "lblOptions_3",  "lblOptions_4",  "lblOptions_11"};
  Control("lblNames_0").setFocus(Qt::TabFocusReason);
  std::vector<std::string> walked;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    QTest::keyClick(frame.window.focusWidget(), Qt::Key_Tab);
    walked.push_back(frame.window.focusWidget()->objectName().toStdString());
  }
  EXPECT_EQ(walked, wanted);
  for (std::size_t i = wanted.size() - 1; i > 0; --i) {
    QTest::keyClick(frame.window.focusWidget(), Qt::Key_Backtab);
    EXPECT_EQ(frame.window.focusWidget()->objectName().toStdString(), wanted[i - 1]);
  }
}

TEST_F(LookupClick, TabReachesTheBoxesThatAreShown)
{
  AddSomebody("Ann", 1);
  Open();
  Click(kCheckAll);
  ClickLine(0);
  Control("chkInfo_0").setFocus(Qt::TabFocusReason);
  const std::vector<std::string> wanted = {"txtPhoneInfo", "chkInfo_3",     "txtMobileInfo", "chkInfo_4",
                                           "txtBusInfo",   "chkInfo_1",     "txtEmailInfo",  "chkInfo_2",
                                           "txtAddress",   "chkPersonal_0", "txtBirthInfo",  "chkPersonal_1",
                                           "txtAnnInfo",   "chkNotes",      "txtNotes",      "lblOptions_0"};
  std::vector<std::string> walked;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    QTest::keyClick(frame.window.focusWidget(), Qt::Key_Tab);
    walked.push_back(frame.window.focusWidget()->objectName().toStdString());
  }
  EXPECT_EQ(walked, wanted);
}

TEST_F(LookupClick, SpaceTicksAndUnticks)
{
  AddSomebody("Ann", 1);
  Open();
  ClickLine(0);
  for (const LookupItem& item : kItems) {
    Control(item.check).setFocus(Qt::TabFocusReason);
    Press(item.check, Qt::Key_Space);
    ExpectShown(item, ItemOf(item, 1));
    Press(item.check, Qt::Key_Space);
    ExpectHidden(item);
  }
}

TEST_F(LookupClick, NothingCanBeTypedIntoAnyBox)
{
  AddSomebody("Ann", 1);
  Open();
  Click(kCheckAll);
  ClickLine(0);
  QApplication::clipboard()->setText("pasted");
  QStringList names = {"txtContact", "txtSpecial"};
  for (const LookupItem& item : kItems) {
    names.append(item.box);
  }
  for (const QString& name : names) {
    const std::string before = TextOf(name);
    Control(name).setFocus();
    QTest::keyClicks(&Control(name), "x1 ");
    for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Return}) {
      Press(name, key);
    }
    Press(name, Qt::Key_V, Qt::ControlModifier);
    Press(name, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(TextOf(name), before) << name.toStdString();
  }
}

TEST_F(LookupClick, WhatAnotherProgramChangedIsSeenAtTheNextClick)
{
  const int ann = AddSomebody("Ann", 1);
  AddSomebody("Bob", 2);
  Open();
  Click(kCheckAll);
  ClickLine(0);
  Change(ann, "Phone", "555");
  Change(ann, "Notes", {});
  ClickLine(1);
  ClickLine(0);
  EXPECT_EQ(Shown("txtPhoneInfo"), "555");
  EXPECT_EQ(Shown("txtNotes"), "unavailable");
}

TEST_F(LookupClick, SomebodyDeletedByAnotherProgramIsNotShown)
{
  const int ann = AddSomebody("Ann", 1);
  const int bob = AddSomebody("Bob", 2);
  const int eve = AddSomebody("Eve", 3);
  Open();
  Click(kCheckAll);
  ClickLine(0);
  Remove(bob);
  ClickLine(1);
  EXPECT_NE(modID::SelectedPersonID, bob);
  EXPECT_NE(Shown("txtPhoneInfo"), "phone 2");
  EXPECT_TRUE(modID::SelectedPersonID == 0 || modID::SelectedPersonID == ann) << modID::SelectedPersonID;
  ClickLine(2);
  EXPECT_EQ(modID::SelectedPersonID, eve);
  EXPECT_EQ(Shown("txtPhoneInfo"), "phone 3");
  ClickLine(0);
  EXPECT_EQ(Shown("txtPhoneInfo"), "phone 1");
}

TEST_F(LookupClick, TheLastOfAllDeletedByAnotherProgramIsNotShown)
{
  const int ann = AddSomebody("Ann", 1);
  Open();
  Click(kCheckAll);
  Remove(ann);
  ClickLine(0);
  EXPECT_EQ(modID::SelectedPersonID, 0);
  ExpectNothingShown();
  EXPECT_EQ(Name(), "");
}

TEST_F(LookupClick, ADeletedPersonsNameIsNotCopiedWithAnothersItems)
{
  AddSomebody("Ann", 1);
  const int bob = AddSomebody("Bob", 2);
  Open();
  Tick("chkInfo_0");
  ClickLine(0);
  Remove(bob);
  ClickLine(1);
  QApplication::clipboard()->setText("before");
  if (modID::SelectedPersonID == 0) {
    boxes.Expect("Please select a name");
  }
  Click(kCopy);
  EXPECT_NE(Clipboard(), "Bob Wood\n\nphone 1");
}

TEST_P(LookupClickOnADateOrTheNotes, ShowsAndCopiesNothingOfAnotherForSomebodyDeletedMeanwhile)
{
  AddSomebody("Ann", 1);
  const int bob = AddSomebody("Bob", 2);
  Open();
  ClickLine(0);
  TickTwice();
  ClickLine(1);
  Remove(bob);
  Tick(GetParam());
  ExpectNothingShown();
  Click(kCopy);
  EXPECT_EQ(Clipboard(), "Bob Wood\n\n");
}

TEST_P(LookupClickOnADateOrTheNotes, ShowsAndCopiesNothingOfAnotherWhileTheDatabaseIsLocked)
{
  AddSomebody("Ann", 1);
  AddSomebody("Bob", 2);
  Open();
  ClickLine(0);
  Tick(GetParam());
  Click(kFirstNameOrder);
  ClickLine(1);
  {
    const DatabaseTaken taken(folder.DatabasePath());
    Tick(GetParam());
  }
  ExpectNothingShown();
  Click(kCopy);
  EXPECT_EQ(Clipboard(), "Bob Wood\n\n");
  ClickLine(1);
  Click(kCopy);
  EXPECT_EQ(Clipboard(), "Bob Wood\n\n" + ItemOf(*Item(), 2));
}

INSTANTIATE_TEST_SUITE_P(Items, LookupClickOnADateOrTheNotes,
                         testing::Values("chkPersonal_0", "chkPersonal_1", "chkNotes"),
                         [](const auto& check) { return std::string(check.param); });

TEST_F(LookupClick, UntickingADateOfSomebodyDeletedMeanwhileHidesIt)
{
  const int ann = AddSomebody("Ann", 1);
  Open();
  ClickLine(0);
  TickAll({"chkPersonal_0", "chkPersonal_1"});
  Remove(ann);
  Tick("chkPersonal_0");
  EXPECT_EQ(Shown("txtBirthInfo"), "-");
}

TEST_F(LookupClick, TickingAContactOfSomebodyDeletedByAnotherProgramSaysSo)
{
  const int ann = AddSomebody("Ann", 1);
  Open();
  ClickLine(0);
  Remove(ann);
  boxes.Expect("Unexpected error... please try again");
  Tick("chkInfo_0");
  EXPECT_EQ(boxes.Count(), 1U);
}

TEST_F(LookupClick, TickingADateOrTheNotesOfSomebodyDeletedByAnotherProgramEndsNothing)
{
  const int ann = AddSomebody("Ann", 1);
  Open();
  ClickLine(0);
  Remove(ann);
  for (const char* check : {"chkPersonal_0", "chkPersonal_1", "chkNotes"}) {
    Tick(check);
    Tick(check);
  }
  EXPECT_TRUE(IsOpen());
}

TEST_F(LookupClick, AfterSomebodyDeletedAnUntickStillHides)
{
  AddSomebody("Ann", 1);
  const int bob = AddSomebody("Bob", 2);
  Open();
  Click(kCheckAll);
  ClickLine(0);
  Remove(bob);
  ClickLine(1);
  for (const LookupItem& item : kItems) {
    Tick(item.check);
    ASSERT_FALSE(IsTicked(item.check));
    EXPECT_FALSE(IsShown(item.box)) << item.box;
  }
}

TEST_F(LookupClick, WithTheDatabaseLockedATickOfAContactSaysSo)
{
  AddSomebody("Ann", 1);
  Open();
  ClickLine(0);
  {
    const DatabaseTaken taken(folder.DatabasePath());
    boxes.Expect("Unexpected error... please try again");
    Tick("chkInfo_0");
  }
  ClickLine(0);
  EXPECT_EQ(Shown("txtPhoneInfo"), "phone 1");
}

TEST_F(LookupClick, PeopleWithoutNamesAreShown)
{
  AddPerson({}, {}, {{"Phone", "1"}, {"BirthMonth", "May"}, {"Notes", "n"}});
  AddPerson({}, "Wood", {{"Phone", "2"}});
  AddPerson("Ann", {}, {{"Phone", "3"}});
  Open();
  Click(kCheckAll);
  const std::array<const char*, 3> names = {"", "Ann", "Wood"};
  const std::array<const char*, 3> phones = {"1", "3", "2"};
  const std::array<const char*, 3> firsts = {"", "Ann", ""};
  for (int line = 0; line < 3; ++line) {
    const auto i = static_cast<std::size_t>(line);
    ClickLine(line);
    EXPECT_EQ(LabelOf("lblName").text().trimmed().toStdString(), names.at(i));
    EXPECT_EQ(Shown("txtPhoneInfo"), phones.at(i));
    EXPECT_EQ(TextOf("txtContact"), std::string("Contact records for ") + firsts.at(i));
    EXPECT_EQ(TextOf("txtSpecial"), std::string("Special occasions for ") + firsts.at(i));
    EXPECT_EQ(NotesTitle(), std::string("Notes for ") + firsts.at(i));
  }
}
