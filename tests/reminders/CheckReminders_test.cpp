// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ReminderTest.h"

using modTextNotices::CheckReminders;
using modTextNotices::ClipFiles;

namespace {

class CheckRemindersTest : public ReminderTest
{
protected:
  [[nodiscard]] QString Clip(const QString& name) const
  {
    return QFileInfo(folder.Path()).canonicalFilePath() + QStringLiteral("/notices/") + name;
  }

  // What the start-up run shows: its lines, or nothing.
  static QStringList LinesAtStart()
  {
    CheckReminders(false);
    return Window() == nullptr ? QStringList() : Lines(*Window(), QStringLiteral("lstNotices"));
  }

  const QString birthdayLine = QStringLiteral(" Birthday coming up");
  const QString anniversaryLine = QStringLiteral(" Wedding anniversary coming up");
  const QString eventLine = QStringLiteral(" Calendar event coming up");
};

}

TEST_F(CheckRemindersTest, StartUpNoticesStandTopmostOverTheMinimisedFrame)
{
  AddPerson("Ann", "Lee", "May", "7");
  EXPECT_EQ(LinesAtStart(), QStringList{birthdayLine});
  frmTextNotice& window = *Window();
  EXPECT_TRUE(window.isVisible());
  EXPECT_FALSE(window.isModal());
  EXPECT_TRUE(window.windowFlags() & Qt::WindowStaysOnTopHint);
  EXPECT_EQ(frame.state, WindowState::kMinimised);
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Quillmark Reminders..."));
  EXPECT_EQ(Caption(window, "lblNotice"), QStringLiteral("Click on a reminder for more information..."));
  EXPECT_EQ(Caption(window, "lblOptions_0"), QStringLiteral("View Quillmark"));
  EXPECT_EQ(Caption(window, "lblOptions_1"), QStringLiteral("Minimize Quillmark"));
  EXPECT_EQ(Caption(window, "lblOptions_2"), QStringLiteral("Close Quillmark"));
  EXPECT_TRUE(Drive::Control(window, "lblOptions_1").isVisible());
  EXPECT_TRUE(Drive::Control(window, "lblOptions_2").isVisible());
  EXPECT_EQ(Drive::Control(window, "lblOptions_0").toolTip(), QStringLiteral("Open Quillmark"));
  EXPECT_EQ(Drive::Control(window, "lblOptions_1").toolTip(), QStringLiteral("Minimize Quillmark on your taskbar"));
  EXPECT_EQ(Drive::Control(window, "lblOptions_2").toolTip(), QStringLiteral("Close Quillmark"));
  EXPECT_EQ(Drive::Control(window, "lstNotices").toolTip(), QStringLiteral("Click for more information"));
  EXPECT_FALSE(modTextNotices::ManualCheck);
}

TEST_F(CheckRemindersTest, WindowIsCentredAcrossAndAQuarterDown)
{
  AddPerson("Ann", "Lee", "May", "7");
  CheckReminders(false);
  const QRect screen = QGuiApplication::primaryScreen()->geometry();
  EXPECT_EQ(Window()->pos(), QPoint(screen.width() / 2 - 125, screen.height() / 4));
}

TEST_F(CheckRemindersTest, WithTipsOffTheWindowHasNone)
{
  AddPerson("Ann", "Lee", "May", "7");
  Set("ToolTips=1");
  CheckReminders(false);
  for (const QWidget* control : Window()->Controls()) {
    EXPECT_EQ(control->toolTip(), QString()) << control->objectName().toStdString();
  }
  EXPECT_TRUE(
      CheckAndSee([&](QWidget& form) { EXPECT_EQ(Drive::Control(form, "lblOptions_0").toolTip(), QString()); }));
  Set("ToolTips=0");
}

TEST_F(CheckRemindersTest, ManualNoticesAreModalAndOfferOnlyToClose)
{
  AddPerson("Ann", "Lee", "May", "7");
  AddCouple("Mia", "Tom", "May", "5");
  AddEvent("Dentist", "May", "2026-05-08");
  const bool seen = CheckAndSee([&](QWidget& form) {
    EXPECT_EQ(Lines(form, "lstNotices"), QStringList({birthdayLine, anniversaryLine, eventLine}));
    EXPECT_EQ(Caption(form, "lblOptions_0"), QStringLiteral("Close window"));
    EXPECT_EQ(Drive::Control(form, "lblOptions_0").toolTip(), QStringLiteral("Close window"));
    EXPECT_FALSE(Drive::Control(form, "lblOptions_1").isVisible());
    EXPECT_FALSE(Drive::Control(form, "lblOptions_2").isVisible());
    EXPECT_FALSE(form.windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_TRUE(modTextNotices::ManualCheck);
  });
  EXPECT_TRUE(seen);
  EXPECT_EQ(frame.state, WindowState::kNormal) << "the frame was never minimised";
  EXPECT_FALSE(modTextNotices::ManualCheck);
}

TEST_F(CheckRemindersTest, NothingComingUpIsSaidWhenAsked)
{
  const bool seen = CheckAndSee([&](QWidget& form) {
    EXPECT_EQ(Caption(form, "lblNotice"),
              QStringLiteral("According to your reminder settings, you have no events coming up"));
    EXPECT_EQ(Drive::Control(form, "lblNotice").font().pointSize(), 10);
    EXPECT_FALSE(Drive::Control(form, "lstNotices").isVisible());
    EXPECT_FALSE(Drive::Control(form, "lblOptions_1").isVisible());
    EXPECT_FALSE(Drive::Control(form, "lblOptions_2").isVisible());
    EXPECT_EQ(Caption(form, "lblOptions_0"), QStringLiteral("Close window"));
    EXPECT_EQ(Drive::Control(form, "lblOptions_0").toolTip(), QStringLiteral("Close window"));
  });
  EXPECT_TRUE(seen);
  EXPECT_FALSE(frame.timer) << "no clip plays";
}

TEST_F(CheckRemindersTest, RemindersThatAreAllOffAreNotActiveWhateverElseIsSet)
{
  AddPerson("Ann", "Lee", "May", "5");
  for (const char* settings : {"TextMessage=1, AudioMessage=1", "TextMessage=0, AudioMessage=0"}) {
    Set(QStringLiteral("BirthAudio=0, AnnAudio=0, CalAudio=0, ") + settings);
    const bool seen = CheckAndSee([&](QWidget& form) {
      EXPECT_EQ(Caption(form, "lblNotice"),
                QStringLiteral("Reminders are not active. Go to the Reminders Set-up page to format reminders."));
      EXPECT_EQ(Drive::Control(form, "lblNotice").font().pointSize(), 10);
      EXPECT_FALSE(Drive::Control(form, "lstNotices").isVisible());
      EXPECT_FALSE(Drive::Control(form, "lblOptions_1").isVisible());
      EXPECT_FALSE(Drive::Control(form, "lblOptions_2").isVisible());
      EXPECT_EQ(Drive::Control(form, "lblOptions_0").toolTip(), QStringLiteral("Close window"));
    });
    EXPECT_TRUE(seen);
    EXPECT_EQ(LinesAtStart(), QStringList()) << "the start-up run is silent";
    EXPECT_EQ(frame.state, WindowState::kNormal);
  }
}

TEST_F(CheckRemindersTest, WithoutTextAndSoundAManualRunShowsNothing)
{
  Set("TextMessage=0, AudioMessage=0");
  CheckReminders(true);
  EXPECT_EQ(Window(), nullptr);
  AddPerson("Ann", "Lee", "May", "5");
  CheckReminders(true);
  EXPECT_EQ(Window(), nullptr);
  EXPECT_TRUE(modTextNotices::BirthdayHit);
  EXPECT_FALSE(frame.timer);
}

TEST_F(CheckRemindersTest, WithoutReminderOnStartTheStartIsSilentAndAManualRunWorks)
{
  AddPerson("Ann", "Lee", "May", "5");
  Set("ReminderOnStart=0");
  CheckReminders(false);
  EXPECT_EQ(Window(), nullptr);
  EXPECT_EQ(frame.state, WindowState::kNormal);
  EXPECT_FALSE(frame.timer);
  EXPECT_TRUE(modTextNotices::BirthdayHit) << "it has looked";
  EXPECT_TRUE(CheckAndSee([&](QWidget& form) { EXPECT_EQ(Lines(form, "lstNotices"), QStringList{birthdayLine}); }));
}

TEST_F(CheckRemindersTest, ClipsOnlyWhenTextIsOff)
{
  AddPerson("Ann", "Lee", "May", "5");
  Set("TextMessage=0");
  for (const bool manual : {true, false}) {
    frame.timer = false;
    modTextNotices::ClipIndex = 0;
    CheckReminders(manual);
    EXPECT_EQ(Window(), nullptr);
    EXPECT_TRUE(frame.timer);
    EXPECT_EQ(modTextNotices::ClipIndex, 1);
  }
}

TEST_F(CheckRemindersTest, HitsOfTwoKindsGiveTwoLinesAndTheirClipsInOrder)
{
  AddPerson("Ann", "Lee", "May", "7");
  AddEvent("Dentist", "May", "2026-05-06");
  EXPECT_EQ(LinesAtStart(), QStringList({birthdayLine, eventLine}));
  EXPECT_EQ(ClipFiles, QStringList({Clip("hapbirth.wav"), Clip("jad0044.wav")}));
}

TEST_F(CheckRemindersTest, AllThreeKindsQueueThreeClips)
{
  AddPerson("Ann", "Lee", "May", "7");
  AddCouple("Mia", "Tom", "May", "5");
  AddEvent("Dentist", "May", "2026-05-06");
  EXPECT_EQ(LinesAtStart(), QStringList({birthdayLine, anniversaryLine, eventLine}));
  EXPECT_EQ(ClipFiles, QStringList({Clip("hapbirth.wav"), Clip("wmfade2.wav"), Clip("jad0044.wav")}));
}

TEST_F(CheckRemindersTest, ALaterRunCutsTheQueueToItsOwnClips)
{
  ClipFiles = {"a", "b", "c"};
  Set("AudioMessage=0");
  CheckReminders(false);
  EXPECT_EQ(ClipFiles, QStringList({"a", "b", "c"})) << "a run that queues nothing leaves it";
  AddEvent("Dentist", "May", "2026-05-06");
  CheckReminders(false);
  EXPECT_EQ(ClipFiles, QStringList{Clip("jad0044.wav")}) << "queued although sound is off";
}

TEST_F(CheckRemindersTest, TwoHitsOfOneKindGiveOneLineAndOneClip)
{
  AddPerson("Ann", "Lee", "May", "7");
  AddPerson("Ben", "Lee", "May", "7");
  EXPECT_EQ(LinesAtStart(), QStringList{birthdayLine});
  EXPECT_EQ(ClipFiles.size(), 1);
}

TEST_F(CheckRemindersTest, RowsWithUnknownMonthOrDayArePassedOver)
{
  AddPerson("A", "B", {}, {});
  folder.Execute("INSERT INTO People (FirstName, BirthMonth) VALUES ('C', 'May')");
  folder.Execute("INSERT INTO People (FirstName, BirthDate) VALUES ('D', '5')");
  folder.Execute("INSERT INTO People (FirstName) VALUES ('E')");
  folder.Execute("INSERT INTO Reminders (Event, \"Date\") VALUES ('x', '2026-05-05')");
  EXPECT_EQ(LinesAtStart(), QStringList());
  AddPerson("Ann", "Lee", "May", "5");
  EXPECT_EQ(LinesAtStart(), QStringList{birthdayLine});
}

TEST_F(CheckRemindersTest, OnceWithThreeDaysIsSilentOnTheDayItself)
{
  AddPerson("Ann", "Lee", "May", "5");
  Set("BirthOnce=1, BirthMany=0, BirthLength=3");
  EXPECT_EQ(LinesAtStart(), QStringList());
  Clock::StopOn(QDate(2026, 5, 2));
  EXPECT_EQ(LinesAtStart(), QStringList{birthdayLine});
}

TEST_F(CheckRemindersTest, ManyWithNoDaysComesUpOnTheDayOnly)
{
  AddPerson("Ann", "Lee", "May", "5");
  Set("BirthLength=0");
  Clock::StopOn(QDate(2026, 5, 4));
  EXPECT_EQ(LinesAtStart(), QStringList());
  Clock::StopOn(QDate(2026, 5, 5));
  EXPECT_EQ(LinesAtStart(), QStringList{birthdayLine});
}

TEST_F(CheckRemindersTest, LeapDayBirthdayIsRemindedOfInACommonYear)
{
  AddPerson("Lea", "Marchetti", "February", "29");
  Set("BirthLength=3");
  Clock::StopOn(QDate(2026, 2, 25));
  EXPECT_EQ(LinesAtStart(), QStringList());
  Clock::StopOn(QDate(2026, 2, 26));
  EXPECT_EQ(LinesAtStart(), QStringList{birthdayLine});
}

TEST_F(CheckRemindersTest, PastEventsAreNoHits)
{
  AddEvent("Old", "May", "2025-05-05");
  AddEvent("Gone", "May", "2026-05-04");
  EXPECT_EQ(LinesAtStart(), QStringList());
}

TEST_F(CheckRemindersTest, EachScanStartsWithoutAMonth)
{
  AddPerson("Ann", "Lee", "May", "20");
  folder.Execute("INSERT INTO People (FirstName, AnnMonth, AnnDate) VALUES ('X', 'Mai', '5')");
  EXPECT_EQ(LinesAtStart(), QStringList()) << "the month of the birthday scan must not reach the anniversaries";
}

TEST_F(CheckRemindersTest, ADamagedDayEndsTheCheckInSilence)
{
  AddPerson("Ann", "Lee", "May", "5");
  AddCouple("Mia", "Tom", "April", "first");
  AddEvent("Dentist", "May", "2026-05-06");
  EXPECT_EQ(LinesAtStart(), QStringList());
  EXPECT_TRUE(modTextNotices::BirthdayHit) << "what was set so far stays";
  EXPECT_FALSE(modTextNotices::CalendarHit);
}

TEST_F(CheckRemindersTest, AMissingDatabaseOrRowEndsInSilence)
{
  folder.Execute("DELETE FROM Options");
  CheckReminders(true);
  EXPECT_EQ(Window(), nullptr);
  QFile::remove(folder.DatabasePath());
  CheckReminders(true);
  CheckReminders(false);
  EXPECT_EQ(Window(), nullptr);
  EXPECT_FALSE(QFile::exists(folder.DatabasePath()));
}

TEST_F(CheckRemindersTest, NullSettingsOnlyFailTheRule)
{
  AddPerson("Ann", "Lee", "May", "5");
  Set("BirthAudio=NULL, BirthOnce=NULL, BirthMany=NULL, BirthLength=NULL");
  EXPECT_EQ(LinesAtStart(), QStringList());
  Set("TextMessage=NULL, AudioMessage=NULL, ReminderOnStart=NULL");
  CheckReminders(true);
  EXPECT_EQ(Window(), nullptr);
}

TEST_F(CheckRemindersTest, TheCheckWritesNothing)
{
  AddPerson("Ann", "Lee", "May", "5");
  QFile file(folder.DatabasePath());
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray before = file.readAll();
  CheckReminders(false);
  file.seek(0);
  EXPECT_EQ(file.readAll(), before);
}

TEST_F(CheckRemindersTest, ACheckOverStandingStartUpNoticesBecomesModal)
{
  AddPerson("Ann", "Lee", "May", "5");
  CheckReminders(false);
  ASSERT_NE(Window(), nullptr);
  frame.state = WindowState::kNormal;
  EXPECT_TRUE(CheckAndSee([&](QWidget& form) { EXPECT_EQ(Lines(form, "lstNotices"), QStringList{birthdayLine}); }));
  EXPECT_EQ(Window(), nullptr);
}

TEST_F(CheckRemindersTest, ACheckOverStandingStartUpNoticesBeginsWithTheFirstClip)
{
  AddPerson("Ann", "Lee", "May", "5");
  AddEvent("Dentist", "May", "2026-05-06");
  CheckReminders(false);
  ASSERT_NE(Window(), nullptr);
  ASSERT_EQ(modTextNotices::ClipIndex, 1);
  EXPECT_TRUE(CheckAndSee([&](QWidget& form) {
    EXPECT_EQ(modTextNotices::ClipIndex, 1) << "the first clip has been started";
    EXPECT_TRUE(Drive::Control(form, "imgNote_0").isVisible());
    EXPECT_FALSE(Drive::Control(form, "imgNote_1").isVisible());
  }));
}

TEST_F(CheckRemindersTest, ACheckWithoutHitsOverStandingNoticesEndsTheirClips)
{
  AddPerson("Ann", "Lee", "May", "5");
  CheckReminders(false);
  ASSERT_EQ(modTextNotices::ClipIndex, 1);
  folder.Execute("DELETE FROM People");
  EXPECT_TRUE(CheckAndSee([&](QWidget&) { EXPECT_EQ(modTextNotices::ClipIndex, 0); }));
}

TEST_F(CheckRemindersTest, AStartUpRunAfterAManualOneIsNoManualCheck)
{
  AddPerson("Ann", "Lee", "May", "5");
  EXPECT_TRUE(CheckAndSee([](QWidget&) { EXPECT_TRUE(modTextNotices::ManualCheck); }));
  CheckReminders(false);
  ASSERT_NE(Window(), nullptr);
  EXPECT_FALSE(modTextNotices::ManualCheck);
  EXPECT_EQ(Caption(*Window(), "lblOptions_0"), QStringLiteral("View Quillmark"));
}

TEST_F(CheckRemindersTest, EachKindReadsItsOwnColumns)
{
  AddCouple("Mia", "Tom", "May", "10");
  Set("AnnLength=2");
  EXPECT_EQ(LinesAtStart(), QStringList());
  Set("AnnLength=5, BirthAudio=0, CalAudio=0");
  EXPECT_EQ(LinesAtStart(), QStringList{anniversaryLine});
  Set("AnnAudio=0, BirthAudio=1");
  EXPECT_EQ((CheckReminders(false), modTextNotices::AnniversaryHit), false);
}

TEST_F(CheckRemindersTest, AnniversariesAreDecidedOnThePeople)
{
  folder.Execute("INSERT INTO Ann (Spouse1First, Spouse2First, AnnMonth, AnnDate) VALUES ('Mia','Tom','May','5')");
  EXPECT_EQ(LinesAtStart(), QStringList());
}

TEST_F(CheckRemindersTest, AMissingTableEndsTheCheckBeforeAnythingIsSaid)
{
  AddPerson("Ann", "Lee", "May", "5");
  folder.Execute("DROP TABLE Reminders");
  CheckReminders(true);
  EXPECT_EQ(Window(), nullptr);
  EXPECT_FALSE(modTextNotices::BirthdayHit);
  Set("BirthAudio=0, AnnAudio=0, CalAudio=0");
  CheckReminders(true);
  EXPECT_EQ(Window(), nullptr);
}

TEST_F(CheckRemindersTest, WithSoundOffNoClipStarts)
{
  AddPerson("Ann", "Lee", "May", "5");
  Set("AudioMessage=0");
  CheckReminders(false);
  EXPECT_NE(Window(), nullptr);
  EXPECT_TRUE(CheckAndSee([](QWidget&) {}));
  EXPECT_FALSE(frame.timer);
  EXPECT_EQ(modTextNotices::ClipIndex, 0);
}

TEST_F(CheckRemindersTest, TheCheckItselfDoesNotGoBackToTheFirstClip)
{
  AddPerson("Ann", "Lee", "May", "5");
  AddEvent("Dentist", "May", "2026-05-06");
  Set("TextMessage=0");
  modTextNotices::ClipIndex = 1;
  CheckReminders(true);
  EXPECT_EQ(modTextNotices::ClipIndex, 2);
}

TEST_F(CheckRemindersTest, MessagesAreManualChecksAndLeaveTheFrameAlone)
{
  const QPoint centred(QGuiApplication::primaryScreen()->geometry().width() / 2 - 125,
                       QGuiApplication::primaryScreen()->geometry().height() / 4);
  frame.state = WindowState::kMaximised;
  const auto see = [&](QWidget& form) {
    EXPECT_TRUE(modTextNotices::ManualCheck);
    EXPECT_EQ(Caption(form, "lblOptions_0"), QStringLiteral("Close window"));
  };
  EXPECT_TRUE(CheckAndSee([&](QWidget& form) {
    see(form);
    EXPECT_EQ(form.pos(), centred);
  }));
  EXPECT_EQ(frame.state, WindowState::kMaximised);
  Set("BirthAudio=0, AnnAudio=0, CalAudio=0");
  EXPECT_TRUE(CheckAndSee([&](QWidget& form) {
    see(form);
    EXPECT_NE(form.pos(), centred) << "it is not centred";
  }));
  EXPECT_EQ(frame.state, WindowState::kMaximised);
  EXPECT_FALSE(modTextNotices::ManualCheck);
}
