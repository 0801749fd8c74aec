// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "NoticePageTest.h"

namespace {

class NoticeChange : public NoticePageTest
{
};

}

TEST_F(NoticeChange, AnOptionThenANumberSavesAtTheNumber)
{
  AllOff();
  Open();
  for (const Panel& panel : kPanels) {
    ClickMark(panel.once);
    EXPECT_EQ(Rule(panel.prefix), "0 0 0 -") << "nothing yet";
    EXPECT_EQ(Text(panel.status), panel.none);
    Choose(panel.days, 0);
    EXPECT_EQ(Rule(panel.prefix), "1 1 0 0");
    EXPECT_EQ(Text(panel.status), panel.onTheDay);
    EXPECT_EQ(Text(panel.method), "Text and audio notification.");
    EXPECT_TRUE(IsShown(panel.method));
  }
  EXPECT_EQ(Rules(), "1 1 0 0 | 1 1 0 0 | 1 1 0 0");
}

TEST_F(NoticeChange, ANumberThenAnOptionSavesAtTheOption)
{
  AllOff();
  Open();
  for (const Panel& panel : kPanels) {
    Choose(panel.days, 0);
    EXPECT_EQ(Rule(panel.prefix), "0 0 0 -") << "nothing yet";
    EXPECT_EQ(Text(panel.status), panel.none);
    EXPECT_FALSE(IsShown(panel.method));
    ClickMark(panel.many);
    EXPECT_EQ(Rule(panel.prefix), "1 0 1 0");
    EXPECT_EQ(Text(panel.status), panel.onTheDay);
    EXPECT_TRUE(IsShown(panel.method));
  }
  EXPECT_EQ(Rules(), "1 0 1 0 | 1 0 1 0 | 1 0 1 0");
}

TEST_F(NoticeChange, EachFurtherChoiceIsWrittenAtOnce)
{
  Open();
  Choose("cboDays", 1);
  EXPECT_EQ(Rule("Birth"), "1 0 1 1");
  EXPECT_EQ(Text("lblCurrentBirth"), "Reminder on the day of, and the day before, a birthday.");
  ClickMark("optOneOrMany_0");
  EXPECT_EQ(Rule("Birth"), "1 1 0 1");
  EXPECT_EQ(Text("lblCurrentBirth"), "Reminder 1 day before a birthday.");
  Choose("cboDays", 30);
  EXPECT_EQ(Rule("Birth"), "1 1 0 30");
  EXPECT_EQ(Text("lblCurrentBirth"), "Reminder 30 days before a birthday.");
  ClickMark("optOneOrMany_1");
  EXPECT_EQ(Rule("Birth"), "1 0 1 30");
  EXPECT_EQ(Text("lblCurrentBirth"), "Reminder for all birthdays occurring over the next 30 days.");
  EXPECT_EQ(Rule("Ann"), "1 0 1 7");
  EXPECT_EQ(Rule("Cal"), "1 0 1 3");
  Reopen();
  EXPECT_EQ(Text("lblCurrentBirth"), "Reminder for all birthdays occurring over the next 30 days.");
}

TEST_F(NoticeChange, NumbersAndOptionsAreChosenByKeyboard)
{
  AllOff();
  Open();
  Press("cboCalDays", Qt::Key_Down);
  Press("cboCalDays", Qt::Key_Down);
  QRadioButton& once = Option("optOneOrManyCal_0");
  once.setFocus();
  QTest::keyClick(&once, Qt::Key_Space);
  EXPECT_EQ(Rule("Cal"), "1 1 0 1");
  QTest::keyClick(&once, Qt::Key_Down);
  EXPECT_TRUE(Option("optOneOrManyCal_1").isChecked());
  EXPECT_EQ(Rule("Cal"), "1 0 1 1");
  Press("cboCalDays", Qt::Key_Down);
  EXPECT_EQ(Rule("Cal"), "1 0 1 2");
  EXPECT_EQ(Text("lblCurrentCal"), "Reminder for all calendar events occurring over the next 2 days.");
}

TEST_F(NoticeChange, ATypedNumberSavesNothingUntilAnOptionIsClicked)
{
  Open();
  Press("cboDays", Qt::Key_Delete);
  Type("cboDays", "12");
  Press("cboDays", Qt::Key_Return);
  EXPECT_EQ(Rule("Birth"), "0 0 1 -");
  EXPECT_EQ(Text("lblCurrentBirth"), "No birthday notifications");
  ClickMark("optOneOrMany_1");
  EXPECT_EQ(Rule("Birth"), "1 0 1 12") << "also the option that was selected already";
  EXPECT_EQ(Text("lblCurrentBirth"), "Reminder for all birthdays occurring over the next 12 days.");
}

TEST_F(NoticeChange, OnlyNumbersOfTheListAreTyped)
{
  AllOff();
  Open();
  Type("cboDays", "x31-");
  EXPECT_EQ(Days("cboDays").Text(), "3");
  Type("cboDays", "0");
  EXPECT_EQ(Days("cboDays").Text(), "30");
}

TEST_F(NoticeChange, DeleteAndBackspaceTakeTheNumberAndLeaveTheRule)
{
  for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace}) {
    Set("BirthAudio=1, BirthOnce=1, BirthMany=0, BirthLength=12, AnnAudio=1, AnnOnce=0, AnnMany=1, AnnLength=12, "
        "CalAudio=1, CalOnce=0, CalMany=1, CalLength=12");
    Open();
    for (const Panel& panel : kPanels) {
      const bool once = Option(panel.once).isChecked();
      Press(panel.days, key);
      EXPECT_EQ(Days(panel.days).Text(), QString());
      EXPECT_EQ(Rule(panel.prefix), once ? "0 1 0 -" : "0 0 1 -");
      EXPECT_EQ(Text(panel.status), panel.none);
      EXPECT_EQ(Option(panel.once).isChecked(), once);
      EXPECT_EQ(Option(panel.many).isChecked(), !once);
      EXPECT_EQ(Text(panel.method), "Text and audio notification.") << "it stays";
      EXPECT_TRUE(IsShown(panel.method));
      Press(panel.days, key);
      EXPECT_EQ(Rule(panel.prefix), once ? "0 1 0 -" : "0 0 1 -");
    }
    Choose("cboAnnDays", 4);
    EXPECT_EQ(Rule("Ann"), "1 0 1 4");
    delete &Page();
  }
}

TEST_F(NoticeChange, DeleteLeavesASwitchThatWasNeverSetAndBackspaceSetsItToOff)
{
  Set("BirthAudio=NULL, AnnAudio=NULL, CalAudio=NULL");
  Open();
  for (const Panel& panel : kPanels) {
    const std::string many = Rule(panel.prefix).substr(2, 3);
    Press(panel.days, Qt::Key_Delete);
    EXPECT_EQ(Rule(panel.prefix), "- " + many + " -");
    EXPECT_EQ(Text(panel.status), panel.none);
    Press(panel.days, Qt::Key_Backspace);
    EXPECT_EQ(Rule(panel.prefix), "0 " + many + " -");
  }
}

TEST_F(NoticeChange, OtherKeysChangeNoSetting)
{
  Open();
  Type("cboDays", "5 x");
  for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End, Qt::Key_Return, Qt::Key_Escape}) {
    Press("cboDays", key);
  }
  EXPECT_EQ(Rules(), "1 0 1 7 | 1 0 1 7 | 1 0 1 3");
  EXPECT_EQ(Text("lblCurrentBirth"), "Reminder for all birthdays occurring over the next 7 days.");
}

TEST_F(NoticeChange, CancellingOneKindLeavesTheOthersAndTheMethodsAlone)
{
  for (const Panel& panel : kPanels) {
    Set("BirthAudio=1, BirthOnce=1, BirthMany=0, BirthLength=2, AnnAudio=1, AnnOnce=0, AnnMany=1, AnnLength=12, "
        "CalAudio=1, CalOnce=1, CalMany=0, CalLength=0");
    Open();
    ClickMark(panel.cancel);
    EXPECT_TRUE(Check(panel.cancel).isChecked());
    for (const Panel& each : kPanels) {
      const bool cancelled = &each == &panel;
      EXPECT_EQ(Rule(each.prefix) == "0 0 0 -", cancelled);
      EXPECT_EQ(Days(each.days).Text().isEmpty(), cancelled);
      EXPECT_EQ(Option(each.once).isChecked() || Option(each.many).isChecked(), !cancelled);
      EXPECT_EQ(Text(each.status) == each.none, cancelled);
      EXPECT_EQ(Text(each.method), cancelled ? "" : "Text and audio notification.");
      EXPECT_EQ(IsShown(each.method), !cancelled);
    }
    EXPECT_EQ(Setting("TextMessage"), 1);
    EXPECT_EQ(Setting("AudioMessage"), 1);
    EXPECT_EQ(Setting("ReminderOnStart"), 1);
    EXPECT_TRUE(Page().Unload()) << "a cancelled kind is in order";
  }
}

TEST_F(NoticeChange, UntickingTheCancelBoxByHandDoesNothing)
{
  Open();
  ClickMark("chkCancelAnn");
  ClickMark("chkCancelAnn");
  EXPECT_FALSE(Check("chkCancelAnn").isChecked());
  EXPECT_EQ(Rules(), "1 0 1 7 | 0 0 0 - | 1 0 1 3");
  EXPECT_EQ(Text("lblCurrentAnn"), "No anniversary notifications");
}

TEST_F(NoticeChange, UsingTheListOrAnOptionUnticksTheCancelBox)
{
  Open();
  for (const Panel& panel : kPanels) {
    ClickMark(panel.cancel);
    Choose(panel.days, 2);
    EXPECT_FALSE(Check(panel.cancel).isChecked());
    ClickMark(panel.cancel);
    EXPECT_TRUE(Check(panel.cancel).isChecked());
    ClickMark(panel.once);
    EXPECT_FALSE(Check(panel.cancel).isChecked());
    EXPECT_EQ(Rule(panel.prefix), "0 0 0 -") << "the list is empty";
    ClickMark(panel.cancel);
  }
}

TEST_F(NoticeChange, AfterCancellingTheSameRuleIsChosenAnew)
{
  Open();
  ClickMark("chkCancelBirth");
  ClickMark("optOneOrMany_1");
  Choose("cboDays", 7);
  EXPECT_EQ(Rule("Birth"), "1 0 1 7");
  EXPECT_EQ(Text("lblCurrentBirth"), "Reminder for all birthdays occurring over the next 7 days.");
  EXPECT_EQ(Text("lblTextAudio"), "Text and audio notification.");
  EXPECT_TRUE(IsShown("lblTextAudio"));
}

TEST_F(NoticeChange, MethodsAreWrittenAndToldByTheKindsThatAreOn)
{
  Open();
  ClickMark("chkCancelAnn");
  ClickMark("chkTextAudio_0");
  EXPECT_EQ(Setting("TextMessage"), 0);
  EXPECT_EQ(Setting("AudioMessage"), 1);
  EXPECT_EQ(Text("lblTextAudio"), "Audio notification.");
  EXPECT_EQ(Text("lblTextAudioCal"), "Audio notification.");
  ClickMark("chkTextAudio_0");
  ClickMark("chkTextAudio_1");
  EXPECT_EQ(Setting("TextMessage"), 1);
  EXPECT_EQ(Setting("AudioMessage"), 0);
  EXPECT_EQ(Text("lblTextAudio"), "Text notification.");
  EXPECT_EQ(Text("lblTextAudioAnn"), "");
  EXPECT_FALSE(IsShown("lblTextAudioAnn")) << "a kind that is off keeps its line";
}

TEST_F(NoticeChange, UntickingBothMethodsHidesTheLinesOfAllKindsThatAreOn)
{
  Open();
  Press("cboAnnDays", Qt::Key_Delete);
  ClickMark("chkTextAudio_0");
  ClickMark("chkTextAudio_1");
  EXPECT_EQ(Setting("TextMessage"), 0);
  EXPECT_EQ(Setting("AudioMessage"), 0);
  EXPECT_FALSE(IsShown("lblTextAudio"));
  EXPECT_FALSE(IsShown("lblTextAudioCal"));
  EXPECT_EQ(Text("lblTextAudio"), "Audio notification.") << "the caption stands";
  EXPECT_TRUE(IsShown("lblTextAudioAnn")) << "this kind is off";
  EXPECT_EQ(Text("lblTextAudioAnn"), "Text and audio notification.");
  Choose("cboDays", 2);
  EXPECT_EQ(Rule("Birth"), "1 0 1 2");
  EXPECT_FALSE(IsShown("lblTextAudio")) << "no method, no line";
  ClickMark("chkTextAudio_1");
  EXPECT_TRUE(IsShown("lblTextAudio"));
  EXPECT_TRUE(IsShown("lblTextAudioCal"));
  EXPECT_EQ(Text("lblTextAudio"), "Audio notification.");
}

TEST_F(NoticeChange, WithoutAMethodAKindThatComesOnKeepsItsLine)
{
  Open();
  Press("cboAnnDays", Qt::Key_Delete);
  ClickMark("chkTextAudio_0");
  ClickMark("chkTextAudio_1");
  Choose("cboAnnDays", 2);
  EXPECT_EQ(Rule("Ann"), "1 0 1 2");
  EXPECT_TRUE(IsShown("lblTextAudioAnn"));
  EXPECT_EQ(Text("lblTextAudioAnn"), "Text and audio notification.");
}

TEST_F(NoticeChange, TheStartIsWritten)
{
  Open();
  ClickMark("chkReminderOnStart");
  EXPECT_EQ(Setting("ReminderOnStart"), 0);
  QTest::keyClick(&Check("chkReminderOnStart"), Qt::Key_Space);
  EXPECT_EQ(Setting("ReminderOnStart"), 1);
}
