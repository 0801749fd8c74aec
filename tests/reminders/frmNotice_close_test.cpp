// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "NoticePageTest.h"

namespace {

class NoticeClose : public NoticePageTest
{
protected:
  static void ClickDone() { Drive::Click(Page(), "lblOptions_0"); }

  static void ExpectAllPanelsEmpty()
  {
    for (const Panel& panel : kPanels) {
      EXPECT_EQ(Days(panel.days).Text(), QString());
      EXPECT_FALSE(Option(panel.once).isChecked());
      EXPECT_FALSE(Option(panel.many).isChecked());
      EXPECT_FALSE(Check(panel.cancel).isChecked());
      EXPECT_EQ(Text(panel.status), panel.none);
      EXPECT_EQ(Text(panel.method), "");
      EXPECT_FALSE(IsShown(panel.method));
    }
  }
};

}

TEST_F(NoticeClose, DoneClosesAPageInOrder)
{
  Open();
  ClickDone();
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Rules(), "1 0 1 7 | 1 0 1 7 | 1 0 1 3");
}

TEST_F(NoticeClose, DoneIsPressedByKeyboard)
{
  QWidget& done = Drive::Control(Open(), "lblOptions_0");
  done.setFocus();
  QTest::keyClick(&done, Qt::Key_Return);
  EXPECT_FALSE(IsOpen());
}

TEST_F(NoticeClose, ANumberWithoutAnOptionIsAskedFor)
{
  for (const Panel& panel : kPanels) {
    AllOff();
    Open();
    Choose(panel.days, 3);
    ExpectQuestion(QLatin1String(panel.askType), QMessageBox::Ok);
    ClickDone();
    ASSERT_TRUE(IsOpen());
    EXPECT_TRUE(Page().isVisible());
    EXPECT_EQ(Days(panel.days).Text(), "3") << "the page stays as it is";
    ClickMark(panel.once);
    EXPECT_EQ(Rule(panel.prefix), "1 1 0 3");
    ClickDone();
    EXPECT_FALSE(IsOpen());
  }
}

TEST_F(NoticeClose, AnOptionWithoutANumberIsAskedFor)
{
  for (const Panel& panel : kPanels) {
    AllOff();
    Open();
    ClickMark(panel.many);
    ExpectQuestion(QLatin1String(panel.askDuration), QMessageBox::Ok);
    ClickDone();
    ASSERT_TRUE(IsOpen());
    EXPECT_TRUE(Option(panel.many).isChecked());
    Choose(panel.days, 9);
    ClickDone();
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Rule(panel.prefix), "1 0 1 9");
  }
}

TEST_F(NoticeClose, DeletingTheNumberLeavesTheOptionAndTheClosingAsksForTheDuration)
{
  Open();
  Press("cboDays", Qt::Key_Delete);
  EXPECT_TRUE(Option("optOneOrMany_1").isChecked());
  EXPECT_EQ(Rule("Birth"), "0 0 1 -");
  ExpectQuestion("Please select duration of birthday notification", QMessageBox::Cancel);
  ClickDone();
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Rules(), "0 0 0 - | 0 0 0 - | 0 0 0 -");
  EXPECT_EQ(Setting("TextMessage"), 1);
  EXPECT_EQ(Setting("AudioMessage"), 1);
  EXPECT_EQ(Setting("ReminderOnStart"), 1);
}

TEST_F(NoticeClose, AKindWithoutAMethodIsNotLeftWithoutAMessage)
{
  for (const Panel& panel : kPanels) {
    AllOff();
    Set(QStringLiteral("TextMessage=0, AudioMessage=0, %1Audio=1, %1Once=1, %1Length=5")
            .arg(QLatin1String(panel.prefix)));
    Open();
    ExpectQuestion(kAskMethod, QMessageBox::Ok);
    ClickDone();
    ASSERT_TRUE(IsOpen());
    ExpectQuestion(kAskMethod, QMessageBox::Cancel);
    ClickDone();
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Rules(), "0 0 0 - | 0 0 0 - | 0 0 0 -");
    EXPECT_EQ(Setting("TextMessage"), 0);
  }
}

TEST_F(NoticeClose, WithoutAMethodAPageWithAllKindsOffIsLeft)
{
  AllOff();
  Set("TextMessage=0, AudioMessage=0");
  Open();
  ClickDone();
  EXPECT_FALSE(IsOpen());
}

TEST_F(NoticeClose, AfterCancelNoFurtherMessageComes)
{
  AllOff();
  Set("CalAudio=1, CalOnce=1, CalLength=5, TextMessage=0, AudioMessage=0");
  Open();
  Choose("cboDays", 3);
  ClickMark("optOneOrManyAnn_0");
  ExpectQuestion(QLatin1String(kPanels[0].askType), QMessageBox::Cancel);
  ClickDone();
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(boxes.Count(), 1U);
  EXPECT_EQ(Rules(), "0 0 0 - | 0 0 0 - | 0 0 0 -");
}

TEST_F(NoticeClose, OkStopsAtTheFirstMessageInTheOrderOfThePanels)
{
  AllOff();
  Set("CalAudio=1, CalOnce=1, CalLength=5, TextMessage=0, AudioMessage=0");
  Open();
  Choose("cboDays", 3);
  ClickMark("optOneOrManyAnn_0");
  ExpectQuestion(QLatin1String(kPanels[0].askType), QMessageBox::Ok);
  ClickDone();
  Press("cboDays", Qt::Key_Delete);
  ExpectQuestion(QLatin1String(kPanels[1].askDuration), QMessageBox::Ok);
  ClickDone();
  ClickMark("chkCancelAnn");
  ExpectQuestion(kAskMethod, QMessageBox::Ok);
  ClickDone();
  ASSERT_TRUE(IsOpen());
  EXPECT_EQ(Rules(), "0 0 0 - | 0 0 0 - | 1 1 0 5");
  ClickMark("chkTextAudio_0");
  ClickDone();
  EXPECT_FALSE(IsOpen());
}

TEST_F(NoticeClose, TypingANumberAndLeavingSavesNothing)
{
  AllOff();
  Open();
  Type("cboDays", "5");
  Days("cboAnnDays").setFocus();
  EXPECT_EQ(Days("cboDays").Text(), "5");
  EXPECT_EQ(Rules(), "0 0 0 - | 0 0 0 - | 0 0 0 -");
  EXPECT_EQ(Text("lblCurrentBirth"), "No birthday notifications");
  ExpectQuestion("Please select type of birthday notification (one day only or repeated over several days)",
                 QMessageBox::Ok);
  ClickDone();
  ASSERT_TRUE(IsOpen());
  EXPECT_EQ(Days("cboDays").Text(), "5");
}

TEST_F(NoticeClose, TheCloseBoxAsksTheSame)
{
  Open();
  Press("cboCalDays", Qt::Key_Backspace);
  ExpectQuestion(QLatin1String(kPanels[2].askDuration), QMessageBox::Ok);
  Page().close();
  ASSERT_TRUE(IsOpen());
  EXPECT_TRUE(Page().isVisible());
  ExpectQuestion(QLatin1String(kPanels[2].askDuration), QMessageBox::Cancel);
  Page().close();
  EXPECT_FALSE(IsOpen());
}

TEST_F(NoticeClose, AModalPageComesBackOnceItIsClosed)
{
  bool asked = false;
  Drive::WhenShown(QStringLiteral("frmNotice"), [&](QWidget& page) {
    EXPECT_TRUE(page.isModal());
    Press("cboDays", Qt::Key_Delete);
    ExpectQuestion(QLatin1String(kPanels[0].askDuration), QMessageBox::Ok);
    ClickDone();
    asked = IsOpen();
    ClickMark("chkCancelBirth");
    ClickDone();
  });
  Forms::Load("frmNotice").ShowModal();
  EXPECT_TRUE(asked);
  EXPECT_FALSE(IsOpen());
}

TEST_F(NoticeClose, CloseWarningsResetsAllPanelsOnCancelAlone)
{
  Open();
  ClickMark("chkCancelBirth");
  Page().CloseWarnings(MsgBoxAnswer::kOk);
  Page().CloseWarnings(MsgBoxAnswer::kYes);
  Page().CloseWarnings(MsgBoxAnswer::kNo);
  EXPECT_EQ(Rules(), "0 0 0 - | 1 0 1 7 | 1 0 1 3");
  EXPECT_EQ(Days("cboAnnDays").Text(), "7");
  EXPECT_TRUE(Check("chkCancelBirth").isChecked());
  Page().CloseWarnings(MsgBoxAnswer::kCancel);
  EXPECT_EQ(Rules(), "0 0 0 - | 0 0 0 - | 0 0 0 -");
  ExpectAllPanelsEmpty();
  EXPECT_TRUE(Check("chkTextAudio_0").isChecked());
  EXPECT_TRUE(Check("chkReminderOnStart").isChecked());
}
