// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "NoticePageTest.h"

namespace {

// What is set on the page by hand is what the next check goes by. Today is 5 May 2026.
class NoticeThenCheck : public NoticePageTest
{
protected:
  static void Done()
  {
    Drive::Click(Page(), "lblOptions_0");
    ASSERT_FALSE(IsOpen());
  }

  // The lines of a check that the user asks for, or the message in their place.
  static std::string Check()
  {
    std::string seen;
    CheckAndSee([&](QWidget& form) {
      seen = Drive::Control(form, "lstNotices").isVisible() ? Lines(form, "lstNotices").join(u',').toStdString()
                                                            : Caption(form, "lblNotice").toStdString();
    });
    return seen;
  }

  // The same for a check at the start of the program; empty if nothing is shown.
  static std::string CheckAtStart()
  {
    modTextNotices::CheckReminders(false);
    return Window() == nullptr ? std::string() : Lines(*Window(), "lstNotices").join(u',').toStdString();
  }

  // Sets one kind by its option and number.
  static void SetKind(const char* option, const char* list, int number)
  {
    ClickMark(option);
    Choose(list, number);
  }

  static constexpr auto kNothing = "According to your reminder settings, you have no events coming up";
  static constexpr auto kNotActive = "Reminders are not active. Go to the Reminders Set-up page to format reminders.";
};

}

TEST_F(NoticeThenCheck, OnceAndThreeDaysRemindsOnThatDayAlone)
{
  AllOff();
  Open();
  SetKind("optOneOrMany_0", "cboDays", 3);
  Done();
  AddPerson("Ann", "Lee", "May", "8");
  EXPECT_EQ(Check(), " Birthday coming up");
  for (const QDate day : {QDate(2026, 5, 4), QDate(2026, 5, 6), QDate(2026, 5, 7), QDate(2026, 5, 8)}) {
    Clock::StopOn(day);
    EXPECT_EQ(Check(), kNothing) << day.day();
  }
}

TEST_F(NoticeThenCheck, ManyAndThreeDaysRemindsUpToTheDay)
{
  AllOff();
  Open();
  SetKind("optOneOrManyCal_1", "cboCalDays", 3);
  Done();
  AddEvent("Dentist", "May", "2026-05-08");
  for (int day = 5; day <= 8; ++day) {
    Clock::StopOn(QDate(2026, 5, day));
    EXPECT_EQ(Check(), " Calendar event coming up") << day;
  }
  for (const int day : {4, 9}) {
    Clock::StopOn(QDate(2026, 5, day));
    EXPECT_EQ(Check(), kNothing) << day;
  }
}

TEST_F(NoticeThenCheck, ManyAndNoDaysRemindsOnTheDayAlone)
{
  AllOff();
  Open();
  SetKind("optOneOrMany_1", "cboDays", 0);
  Done();
  AddPerson("Ann", "Lee", "May", "6");
  EXPECT_EQ(Check(), kNothing);
  Clock::StopOn(QDate(2026, 5, 6));
  EXPECT_EQ(Check(), " Birthday coming up");
  Clock::StopOn(QDate(2026, 5, 7));
  EXPECT_EQ(Check(), kNothing);
}

TEST_F(NoticeThenCheck, WithAllKindsCancelledRemindersAreNotActiveWhateverTheMethod)
{
  AddPerson("Ann", "Lee", "May", "5");
  Open();
  for (const Panel& panel : kPanels) {
    ClickMark(panel.cancel);
  }
  Done();
  EXPECT_EQ(Check(), kNotActive);
  EXPECT_EQ(CheckAtStart(), "");
  Open();
  ClickMark("chkTextAudio_0");
  ClickMark("chkTextAudio_1");
  Done();
  EXPECT_EQ(Check(), kNotActive);
  EXPECT_EQ(CheckAtStart(), "");
  EXPECT_EQ(frame.state, WindowState::kNormal);
}

TEST_F(NoticeThenCheck, ResetByTheClosingRemindersAreNotActive)
{
  AddPerson("Ann", "Lee", "May", "5");
  Open();
  Press("cboAnnDays", Qt::Key_Delete);
  ExpectQuestion(QLatin1String(kPanels[1].askDuration), QMessageBox::Cancel);
  Done();
  EXPECT_EQ(Check(), kNotActive);
}

TEST_F(NoticeThenCheck, AKindWithoutANumberRemindsOfNothing)
{
  AddPerson("Ann", "Lee", "May", "5");
  Open();
  EXPECT_EQ(Check(), " Birthday coming up");
  Press("cboDays", Qt::Key_Delete);
  EXPECT_EQ(Check(), kNothing);
}

TEST_F(NoticeThenCheck, WithoutAMethodNothingIsShown)
{
  Open();
  ClickMark("chkTextAudio_0");
  ClickMark("chkTextAudio_1");
  modTextNotices::CheckReminders(true);
  EXPECT_EQ(Window(), nullptr) << "with nothing coming up";
  AddPerson("Ann", "Lee", "May", "5");
  modTextNotices::CheckReminders(true);
  EXPECT_EQ(Window(), nullptr) << "with something coming up";
  EXPECT_TRUE(modTextNotices::BirthdayHit);
  EXPECT_FALSE(frame.timer);
  ClickMark("chkTextAudio_0");
  EXPECT_EQ(Check(), " Birthday coming up");
}

TEST_F(NoticeThenCheck, ByAudioClipAloneOnlyAClipPlays)
{
  AddPerson("Ann", "Lee", "May", "5");
  Open();
  ClickMark("chkTextAudio_0");
  Done();
  modTextNotices::CheckReminders(true);
  EXPECT_EQ(Window(), nullptr);
  EXPECT_TRUE(frame.timer);
  EXPECT_EQ(modTextNotices::ClipIndex, 1);
}

TEST_F(NoticeThenCheck, WithoutTheStartTheProgramStartsInSilenceAndAnAskedCheckWorks)
{
  AddPerson("Ann", "Lee", "May", "5");
  Open();
  ClickMark("chkReminderOnStart");
  Done();
  EXPECT_EQ(CheckAtStart(), "");
  EXPECT_EQ(frame.state, WindowState::kNormal);
  EXPECT_FALSE(frame.timer);
  EXPECT_EQ(Check(), " Birthday coming up");
  Open();
  ClickMark("chkReminderOnStart");
  Done();
  EXPECT_EQ(CheckAtStart(), " Birthday coming up");
  EXPECT_EQ(frame.state, WindowState::kMinimised);
}

TEST_F(NoticeThenCheck, ACancelledKindHasNeitherLineNorClip)
{
  AddPerson("Ann", "Lee", "May", "5");
  AddCouple("Mia", "Tom", "May", "5");
  AddEvent("Dentist", "May", "2026-05-05");
  Open();
  ClickMark("chkCancelAnn");
  Done();
  EXPECT_EQ(Check(), " Birthday coming up, Calendar event coming up");
  const QString folderName = QFileInfo(folder.Path()).canonicalFilePath();
  EXPECT_EQ(modTextNotices::ClipFiles,
            QStringList({folderName + "/notices/hapbirth.wav", folderName + "/notices/jad0044.wav"}));
}

TEST_F(NoticeThenCheck, TheDetailsGoByTheRuleOfThePage)
{
  AddPerson("Zoe", "Far", "May", "17");
  AddPerson("Yan", "Near", "May", "8");
  AddPerson("Xia", "Today", "May", "5");
  AddPerson("Bo", "Today", "May", "5");
  struct Case
  {
    const char* option;
    int days;
    QStringList details;
    const char* sentence;
  };
  const Case cases[] = {
      {"optOneOrMany_1",
       14,
       {"In  0 days (today) - Bo Today", "In  0 days (today) - Xia Today", "In  3 days - Yan Near",
        "In 12 days - Zoe Far"},
       "You've chosen to be notified of all birthdays occurring within the next 14 days:"},
      {"optOneOrMany_1", 0, {"Bo Today", "Xia Today"}, "You've chosen to be notified of birthdays occurring today:"},
      {"optOneOrMany_0", 12, {"Zoe Far"}, "You've chosen to be notified of birthdays occurring 12 days from now:"},
  };
  for (const Case& c : cases) {
    Open();
    SetKind(c.option, "cboDays", c.days);
    Done();
    EXPECT_TRUE(CheckAndSee([&](QWidget& form) {
      ClickLine(form, "lstNotices", 0);
      EXPECT_EQ(Lines(form, "lstMoreInfo"), c.details);
      EXPECT_EQ(Caption(form, "lblExplain").toStdString(), c.sentence);
    }));
  }
}
