// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "NoticePageTest.h"

#include "platform/Screen.h"
#include "support/ErrorOf.h"

#include <QAccessible>
#include <QGroupBox>
#include <QTimer>

#include <set>

namespace {

class NoticeLoad : public NoticePageTest
{
protected:
  // What a screen reader calls a control: its name. That of a box is the text it shows, so
  // its label speaks for it.
  static QString SpokenName(QWidget& control)
  {
    const QAccessibleInterface& spoken = *QAccessible::queryAccessibleInterface(&control);
    if (qobject_cast<ComboBox*>(&control) == nullptr) {
      return spoken.text(QAccessible::Name);
    }
    for (const auto& [label, relation] : spoken.relations(QAccessible::Label)) {
      if (label->role() == QAccessible::StaticText) {
        return label->text(QAccessible::Name);
      }
    }
    return {};
  }

  static std::string Title(const char* box)
  {
    return static_cast<QGroupBox&>(Drive::Control(Page(), box)).title().toStdString();
  }
  static std::string ButtonText(const char* name)
  {
    return static_cast<QAbstractButton&>(Drive::Control(Page(), name)).text().toStdString();
  }
};

}

TEST_F(NoticeLoad, BearsItsCaptions)
{
  Open();
  EXPECT_EQ(Page().windowTitle(), "Set reminders");
  EXPECT_EQ(Title("fraBirth"), "Birthday options");
  EXPECT_EQ(Title("fraAnn"), "Anniversary options");
  EXPECT_EQ(Title("fraCal"), "Calendar options");
  EXPECT_EQ(Title("fraTextAudio"), "How would you like to be notified?");
  for (const Panel& panel : kPanels) {
    EXPECT_EQ(ButtonText(panel.once), "occurring");
    EXPECT_EQ(ButtonText(panel.many), "occurring over the next");
  }
  EXPECT_EQ(ButtonText("chkCancelBirth"), "Cancel birthday notices");
  EXPECT_EQ(ButtonText("chkCancelAnn"), "Cancel anniversary notices");
  EXPECT_EQ(ButtonText("chkCancelCal"), "Cancel calendar notices");
  EXPECT_EQ(ButtonText("chkTextAudio_0"), "by text message");
  EXPECT_EQ(ButtonText("chkTextAudio_1"), "by audio clip");
  EXPECT_EQ(ButtonText("chkReminderOnStart"), "on Quillmark start-up ");
  const std::pair<const char*, const char*> labels[] = {
      {"lblNotify_0", "Notify me of birthdays..."},
      {"lblNotify_1", "Notify me of anniversaries..."},
      {"lblNotify_2", "Notify me of calendar events..."},
      {"lblFromNow_0", "days from now."},
      {"lblOverNext_0", "days."},
      {"lblStatus_0", "Current status:"},
      {"lblFromNow_1", "days from now."},
      {"lblOverNext_1", "days."},
      {"lblStatus_1", "Current status:"},
      {"lblFromNow_2", "days from now."},
      {"lblOverNext_2", "days."},
      {"lblStatus_2", "Current status:"},
      {"lblReminded", "I would like to be reminded..."},
      {"lblBirthAlert", "Birthday reminder"},
      {"lblAnnAlert", "Anniversary reminder"},
      {"lblCalAlert", "Calendar reminder"},
      {"lblOptions_0", "Done"},
      {"lblOptions_1", "Listen"},
      {"lblOptions_2", "Listen"},
      {"lblOptions_3", "Listen"},
      {"lblOptions_4", "Why use reminders?"},
  };
  for (const auto& [name, text] : labels) {
    EXPECT_EQ(Text(name), text) << name;
  }
}

TEST_F(NoticeLoad, IsAWindowOfItsOwnSizeUnderTheIconInTheMiddleOfTheScreen)
{
  Screen::Pretend(QRect(0, 0, 1600, 1200));
  const frmNotice& page = Open();
  Screen::Pretend({});
  EXPECT_TRUE(page.isWindow());
  EXPECT_FALSE(page.windowIcon().isNull());
  EXPECT_EQ(page.minimumSize(), page.maximumSize());
  EXPECT_EQ(page.pos(), QPoint((1600 - page.width()) / 2, (1200 - page.height()) / 2));
  EXPECT_LE(page.width(), 790) << "fits a screen of 800 by 600";
  EXPECT_LE(page.height(), 540);
}

TEST_F(NoticeLoad, PreviewTimerIsOff)
{
  const auto* timer = Open().findChild<QTimer*>(QStringLiteral("tmrTimerPreview"));
  ASSERT_NE(timer, nullptr);
  EXPECT_EQ(timer->interval(), 250);
  EXPECT_FALSE(timer->isActive());
}

TEST_F(NoticeLoad, ListsHoldTheNumbersFrom0To30AndShowNoneAtFirst)
{
  AllOff();
  Open();
  for (const Panel& panel : kPanels) {
    const ComboBox& days = Days(panel.days);
    ASSERT_EQ(days.ListCount(), 31);
    for (int number = 0; number <= 30; ++number) {
      EXPECT_EQ(days.List(number), QString::number(number));
    }
    EXPECT_EQ(days.Text(), QString());
    EXPECT_FALSE(Option(panel.once).isChecked());
    EXPECT_FALSE(Option(panel.many).isChecked());
    EXPECT_FALSE(Check(panel.cancel).isChecked());
    EXPECT_EQ(Text(panel.status), panel.none);
    EXPECT_FALSE(IsShown(panel.method));
  }
}

TEST_F(NoticeLoad, ShowsWhatIsDelivered)
{
  Open();
  for (const Panel& panel : kPanels) {
    EXPECT_FALSE(Option(panel.once).isChecked());
    EXPECT_TRUE(Option(panel.many).isChecked());
    EXPECT_EQ(Text(panel.method), "Text and audio notification.");
    EXPECT_TRUE(IsShown(panel.method));
  }
  EXPECT_EQ(Days("cboDays").Text(), "7");
  EXPECT_EQ(Days("cboAnnDays").Text(), "7");
  EXPECT_EQ(Days("cboCalDays").Text(), "3");
  EXPECT_EQ(Text("lblCurrentBirth"), "Reminder for all birthdays occurring over the next 7 days.");
  EXPECT_EQ(Text("lblCurrentAnn"), "Reminder for all anniversaries occurring over the next 7 days.");
  EXPECT_EQ(Text("lblCurrentCal"), "Reminder for all calendar events occurring over the next 3 days.");
  EXPECT_TRUE(Check("chkTextAudio_0").isChecked());
  EXPECT_TRUE(Check("chkTextAudio_1").isChecked());
  EXPECT_TRUE(Check("chkReminderOnStart").isChecked());
  EXPECT_EQ(Rules(), "1 0 1 7 | 1 0 1 7 | 1 0 1 3") << "looking changes nothing";
}

TEST_F(NoticeLoad, ReloadingShowsTheRuleWithItsDays)
{
  struct Case
  {
    const char* once;
    const char* length;
    const char* status;
  };
  const Case cases[] = {
      {"1", "0", "Reminder on the day of a birthday."},
      {"1", "1", "Reminder 1 day before a birthday."},
      {"1", "30", "Reminder 30 days before a birthday."},
      {"0", "0", "Reminder on the day of a birthday."},
      {"0", "1", "Reminder on the day of, and the day before, a birthday."},
      {"0", "2", "Reminder for all birthdays occurring over the next 2 days."},
  };
  for (const Case& c : cases) {
    Set(QStringLiteral("BirthAudio=1, BirthOnce=%1, BirthMany=1-%1, BirthLength=%2").arg(c.once, c.length));
    Open();
    EXPECT_EQ(Text("lblCurrentBirth"), c.status);
    EXPECT_EQ(Days("cboDays").Text(), c.length);
    EXPECT_EQ(Option("optOneOrMany_0").isChecked(), *c.once == '1');
    EXPECT_EQ(Option("optOneOrMany_1").isChecked(), *c.once == '0');
    EXPECT_TRUE(Page().Unload());
  }
}

TEST_F(NoticeLoad, ARuleWithoutNumberShowsItsOptionAndNothingElse)
{
  Set("BirthAudio=0, BirthOnce=1, BirthMany=0, BirthLength=NULL, CalAudio=0, CalOnce=0, CalMany=1, CalLength=NULL");
  Open();
  EXPECT_TRUE(Option("optOneOrMany_0").isChecked());
  EXPECT_EQ(Days("cboDays").Text(), QString());
  EXPECT_EQ(Text("lblCurrentBirth"), "No birthday notifications");
  EXPECT_TRUE(Option("optOneOrManyCal_1").isChecked());
  EXPECT_EQ(Days("cboCalDays").Text(), QString());
  EXPECT_EQ(Text("lblCurrentCal"), "No calendar notifications");
}

TEST_F(NoticeLoad, OnlyAKindThatIsOnTellsItsMethod)
{
  struct Case
  {
    const char* methods;
    const char* line;
  };
  for (const Case& c : {Case{"TextMessage=1, AudioMessage=0", "Text notification."},
                        Case{"TextMessage=0, AudioMessage=1", "Audio notification."},
                        Case{"TextMessage=1, AudioMessage=1", "Text and audio notification."},
                        Case{"TextMessage=0, AudioMessage=0", ""}}) {
    Set(QStringLiteral("AnnAudio=0, AnnOnce=0, AnnMany=0, AnnLength=NULL, ") + QLatin1String(c.methods));
    Open();
    EXPECT_EQ(Text("lblTextAudio"), c.line);
    EXPECT_EQ(IsShown("lblTextAudio"), *c.line != '\0');
    EXPECT_EQ(Text("lblTextAudioCal"), c.line);
    EXPECT_EQ(Text("lblTextAudioAnn"), "");
    EXPECT_FALSE(IsShown("lblTextAudioAnn"));
    delete &Page();
  }
}

TEST_F(NoticeLoad, BoxesShowTheMethodsAndTheStart)
{
  Set("TextMessage=0, AudioMessage=1, ReminderOnStart=0");
  Open();
  EXPECT_FALSE(Check("chkTextAudio_0").isChecked());
  EXPECT_TRUE(Check("chkTextAudio_1").isChecked());
  EXPECT_FALSE(Check("chkReminderOnStart").isChecked());
}

TEST_F(NoticeLoad, WhatIsMissingIsNamedByItsNumberAndThePageNotLoaded)
{
  QFile::remove(folder.File("/animp.ico"));
  EXPECT_EQ(ErrorOf([] { Forms::Load("frmNotice"); }), 53);
  EXPECT_FALSE(IsOpen());
  folder.Execute("DELETE FROM Options");
  EXPECT_NE(ErrorOf([] { Forms::Load("frmNotice"); }), 0);
  EXPECT_FALSE(IsOpen());
}

TEST_F(NoticeLoad, TipsStandUnlessTheyAreOff)
{
  Open();
  const auto tip = [](const char* name) { return Drive::Control(Page(), name).toolTip().toStdString(); };
  EXPECT_EQ(tip("lblOptions_0"), "Go back to main page");
  for (const Panel& panel : kPanels) {
    EXPECT_EQ(tip(panel.once), "Reminder is given only on the day chosen");
    EXPECT_EQ(tip(panel.many), "Reminder starts on the day chosen and continues until the event arrives");
    EXPECT_EQ(tip(panel.days), "Select the number of days in advance for a reminder");
  }
  EXPECT_EQ(tip("chkCancelBirth"), "Cancel all birthday reminders");
  EXPECT_EQ(tip("chkCancelAnn"), "Cancel all anniversary reminders");
  EXPECT_EQ(tip("chkCancelCal"), "Cancel all calendar event reminders");
  EXPECT_EQ(tip("lblOptions_1"), "");
  modToolTips::SetTipsOff(true);
  Reopen();
  for (const QWidget* control : Page().Controls()) {
    EXPECT_EQ(control->toolTip(), QString()) << control->objectName().toStdString();
  }
}

TEST_F(NoticeLoad, TakesTheBackgroundOfTheTheme)
{
  Set("Theme=5");
  EXPECT_EQ(Open().BackColor(), QColor(0xFF, 0xF9, 0xE9));
  Set("Theme=1");
  EXPECT_EQ(Reopen().BackColor(), QColor(Qt::white));
}

TEST_F(NoticeLoad, CommandsLightUpUnderTheMouseAndGoOutOverThePanels)
{
  Open();
  const auto& done = static_cast<Label&>(Drive::Control(Page(), "lblOptions_0"));
  const auto& listen = static_cast<Label&>(Drive::Control(Page(), "lblOptions_2"));
  for (const char* elsewhere : {"fraBirth", "fraAnn", "fraCal", "fraTextAudio", ""}) {
    Drive::MoveOver(Page(), "lblOptions_0");
    EXPECT_EQ(done.BackStyle(), Label::kOpaque);
    Drive::MoveOver(Page(), "lblOptions_2");
    EXPECT_EQ(listen.BackStyle(), Label::kOpaque);
    EXPECT_EQ(done.BackStyle(), Label::kTransparent);
    Drive::MoveOver(Page(), QLatin1String(elsewhere));
    EXPECT_EQ(listen.BackStyle(), Label::kTransparent) << elsewhere;
    EXPECT_EQ(done.ForeColor(), QColor(Qt::black)) << "its text stays as it is";
  }
}

TEST_F(NoticeLoad, TabGoesDownThePanelsToTheCommands)
{
  AllOff();
  Open();
  Drive::Control(Page(), "optOneOrMany_0").setFocus();
  QStringList order;
  for (int step = 0; step < 16; ++step) {
    order.append(QApplication::focusWidget()->objectName());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(order.join(u' ').toStdString(),
            "optOneOrMany_0 cboDays chkCancelBirth optOneOrManyAnn_0 cboAnnDays chkCancelAnn "
            "optOneOrManyCal_0 cboCalDays chkCancelCal chkTextAudio_0 chkTextAudio_1 chkReminderOnStart "
            "lblOptions_1 lblOptions_2 lblOptions_3 lblOptions_0")
      << "the arrow keys go from one option to the other";
}

TEST_F(NoticeLoad, TabComesToTheSelectedOption)
{
  Set("AnnOnce=1, AnnMany=0");
  Open();
  QStringList order;
  Drive::Control(Page(), "chkCancelBirth").setFocus();
  for (int step = 0; step < 4; ++step) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    order.append(QApplication::focusWidget()->objectName());
  }
  EXPECT_EQ(order.join(u' ').toStdString(), "optOneOrManyAnn_0 cboAnnDays chkCancelAnn optOneOrManyCal_1");
}

TEST_F(NoticeLoad, EveryControlHasANameOfItsOwnForAScreenReader)
{
  Open();
  std::set<QString> names;
  int count = 0;
  for (QWidget* control : Page().Controls()) {
    if (control->focusPolicy() != Qt::NoFocus && control->isVisible()) {
      const QString name = SpokenName(*control);
      EXPECT_FALSE(name.isEmpty()) << control->objectName().toStdString();
      EXPECT_TRUE(names.insert(name).second) << name.toStdString();
      ++count;
    }
  }
  EXPECT_EQ(count, 20);
}
