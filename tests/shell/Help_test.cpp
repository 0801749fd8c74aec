// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ShellTest.h"

#include "platform/Command.h"
#include "platform/HelpViewer.h"
#include "reminders/Clips.h"
#include "support/ErrorOf.h"
#include "support/HelpOnScreen.h"
#include "support/SilentClip.h"

#include <QPushButton>
#include <QTextBrowser>
#include <QWindow>

namespace {

// The real frame in a folder with the help file.
class HelpOfTheFrame : public ShellTest
{
protected:
  HelpOfTheFrame() { HelpOnScreen::Lay(folder.Path()); }
  ~HelpOfTheFrame() override
  {
    HelpViewer::Quit();
    MediaDevice::Close();
  }

  // Starts with all that a close has to stop: the timer, the help and a clip.
  void StartInFullSwing()
  {
    WriteSilentClips(folder, 60'000);
    Start();
    Menu("mnuContents").trigger();
    MediaDevice::Open(Clips::FileFor(ReminderKind::kBirthday));
    MediaDevice::Play();
    frame->SetTimerEnabled(true);
    ASSERT_NE(HelpOnScreen::Window(), nullptr);
    ASSERT_EQ(MediaDevice::Mode(), "playing");
  }
};

}

TEST_F(HelpOfTheFrame, ContentsOpensTheHelpAtItsFirstPage)
{
  Start();
  EXPECT_TRUE(Menu("mnuContents").isEnabled());
  Menu("mnuContents").trigger();
  EXPECT_EQ(HelpOnScreen::Page(), "index.html");
  Menu("mnuContents").trigger();
  EXPECT_EQ(HelpOnScreen::WindowCount(), 1);
}

TEST_F(HelpOfTheFrame, TheHelpKeyOpensTheHelpFromTheMainPageAndFromAPage)
{
  Start();
  ASSERT_TRUE(QTest::qWaitForWindowActive(frame.get()));
  QTest::keyClick(frame->windowHandle(), Qt::Key_F1);
  EXPECT_EQ(HelpOnScreen::Page(), "index.html");
  HelpViewer::Quit();
  frame->OpenPage("frmNew");
  frame->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(frame.get()));
  QTest::keyClick(frame->windowHandle(), Qt::Key_F1);
  EXPECT_EQ(HelpOnScreen::Page(), "index.html");
}

TEST_F(HelpOfTheFrame, ContentsHidesTheCalendarOfTheOccasions)
{
  Start();
  frame->OpenPage("frmSpecial");
  Form& page = *Forms::Loaded("frmSpecial");
  Drive::Click(page, "lblOptions_1");
  ASSERT_TRUE(page.Control("fraCalendar")->isVisible());
  Menu("mnuContents").trigger();
  EXPECT_FALSE(page.Control("fraCalendar")->isVisible());
  EXPECT_TRUE(page.isVisible());
  EXPECT_EQ(HelpOnScreen::Page(), "index.html");
}

TEST_F(HelpOfTheFrame, ViewCalendarOnTheOccasionsClosesTheHelp)
{
  Start();
  frame->OpenPage("frmSpecial");
  Menu("mnuContents").trigger();
  ASSERT_NE(HelpOnScreen::Window(), nullptr);
  Drive::Click(*Forms::Loaded("frmSpecial"), "lblOptions_1");
  EXPECT_EQ(HelpOnScreen::Window(), nullptr);
  EXPECT_TRUE(Forms::Loaded("frmSpecial")->Control("fraCalendar")->isVisible());
}

TEST_F(HelpOfTheFrame, ContentsOnAPageWithoutACalendarOpensTheHelp)
{
  RegisterPage("frmSpecial");
  Start();
  frame->OpenPage("frmSpecial");
  Menu("mnuContents").trigger();
  EXPECT_EQ(HelpOnScreen::Page(), "index.html");
}

TEST_F(HelpOfTheFrame, TheHelpStaysOpenWhilePagesChange)
{
  Start();
  Menu("mnuContents").trigger();
  frame->OpenPage("frmNew");
  frame->OpenPage("frmAnn");
  EXPECT_EQ(HelpOnScreen::WindowCount(), 1);
}

TEST_F(HelpOfTheFrame, TheHelpClosesWithTheFrame)
{
  Start();
  Menu("mnuContents").trigger();
  ASSERT_NE(HelpOnScreen::Window(), nullptr);
  frame->close();
  EXPECT_TRUE(frame->HasEnded());
  EXPECT_EQ(HelpOnScreen::Window(), nullptr);
}

TEST_F(HelpOfTheFrame, ARefusedExitLeavesTheHelpOpen)
{
  Start();
  frame->OpenPage("frmNew");
  Drive::Click(*Forms::Loaded("frmNew"), "lblOptions_6");
  Drive::Click(*Forms::Loaded("frmNew"), "lblOptions_10");
  EXPECT_EQ(HelpOnScreen::Page(), "quick-fill.html");
  boxes.Expect("Please finish adding or editing your record before exiting");
  frame->close();
  EXPECT_FALSE(frame->HasEnded());
  EXPECT_EQ(HelpOnScreen::Page(), "quick-fill.html");
}

TEST_F(HelpOfTheFrame, AFrameWithoutHelpClosesAsEver)
{
  Start();
  frame->close();
  EXPECT_TRUE(frame->HasEnded());
}

// The close is stopped at the settings; the help and the clip are gone by then.
TEST_F(HelpOfTheFrame, AnExitStopsTheTimerThenTheHelpThenTheClipAndThenWritesTheSettings)
{
  StartInFullSwing();
  bool timerAtTheHelpsEnd = true;
  QString clipAtTheHelpsEnd;
  QObject::connect(HelpOnScreen::Window(), &QObject::destroyed, [&] {
    timerAtTheHelpsEnd = frame->TimerEnabled();
    clipAtTheHelpsEnd = MediaDevice::Mode();
  });
  folder.Execute("CREATE TRIGGER stop BEFORE UPDATE ON Options BEGIN SELECT RAISE(ABORT, 'stopped'); END");
  EXPECT_NE(ErrorOf([&] { Command::Run([&] { frame->Unload(); }); }), 0);
  EXPECT_EQ(HelpOnScreen::Window(), nullptr);
  EXPECT_FALSE(timerAtTheHelpsEnd);
  EXPECT_EQ(clipAtTheHelpsEnd, "playing");
  EXPECT_FALSE(frame->TimerEnabled());
  EXPECT_EQ(MediaDevice::Mode(), QString());
  folder.Execute("DROP TRIGGER stop");
}

TEST_F(HelpOfTheFrame, AnExitWithoutADatabaseStopsNothing)
{
  StartInFullSwing();
  ASSERT_TRUE(QFile::rename(folder.DatabasePath(), folder.File("/away.mdb")));
  EXPECT_EQ(ErrorOf([&] { Command::Run([&] { frame->Unload(); }); }), 3024);
  EXPECT_FALSE(frame->HasEnded());
  EXPECT_TRUE(frame->TimerEnabled());
  EXPECT_NE(HelpOnScreen::Window(), nullptr);
  EXPECT_EQ(MediaDevice::Mode(), "playing");
  ASSERT_TRUE(QFile::rename(folder.File("/away.mdb"), folder.DatabasePath()));
  EXPECT_TRUE(frame->Unload());
  EXPECT_EQ(MediaDevice::Mode(), QString());
}

TEST_F(HelpOfTheFrame, TheHelpCanBeReadWhileTheNoticesWaitForTheirUser)
{
  Start();
  bool used = false;
  Drive::WhenShown("frmTextNotice", [&](QWidget& form) {
    HelpViewer::ShowContext(HelpViewer::kQuickFill);
    QWidget& window = *HelpOnScreen::Window();
    auto& home = *window.findChild<QPushButton*>("cmdHome");
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, home.mapTo(&window, home.rect().center()));
    used = HelpOnScreen::Page() == "index.html";
    Drive::Click(form, "lblOptions_0");
  });
  Menu("mnuReminderCheck").trigger();
  EXPECT_TRUE(used);
  EXPECT_EQ(HelpOnScreen::WindowCount(), 1);
}

TEST_F(ShellTest, ContentsWithoutAHelpFileSaysSo)
{
  Start();
  boxes.Expect("Sorry, the help cannot be shown, because its file is missing or damaged.");
  Menu("mnuContents").trigger();
  EXPECT_EQ(HelpOnScreen::Window(), nullptr);
  EXPECT_FALSE(QFile::exists(folder.File("/Help.hlp")));
}
