// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "VirtualDesktop.h"

#include "support/EntryReader.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QTest>

#include <gtest/gtest.h>

#include <csignal>

namespace {

constexpr int kPatience = 30000;
const QString kNotices = QStringLiteral("Quillmark Reminders...");

class AutostartOnTheDesktop : public testing::Test
{
protected:
  AutostartOnTheDesktop()
  {
    desktop.SetEnvironment("XDG_CONFIG_HOME", settings.path());
    desktop.SetEnvironment("XDG_CONFIG_DIRS", settings.path() + "/none");
  }

  [[nodiscard]] QString EntryPath() const { return settings.path() + "/autostart/Quillmark.desktop"; }

  // Starts the program and chooses to have it started, as its user would.
  void ChooseToStart() const
  {
    const auto program = desktop.StartProgram();
    const auto frame = desktop.AwaitWindow(*program, "Quillmark");
    ASSERT_TRUE(frame);
    desktop.Press(*frame, "alt+o");
    desktop.Press(*frame, "a");
    const auto dialog = desktop.AwaitWindow(*program, "AutoStart");
    ASSERT_TRUE(dialog);
    desktop.ClickAt(*dialog, 468, 52);
    EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(EntryPath()); }, kPatience));
    program->kill();
    program->waitForFinished(kPatience);
  }

  void LetABirthdayBeToday() const
  {
    const QDate today = QDate::currentDate();
    desktop.RunSql(QStringLiteral("INSERT INTO People (FirstName, BirthMonth, BirthDate) VALUES ('Ann','%1','%2')")
                       .arg(QLocale::c().monthName(today.month()))
                       .arg(today.day()));
  }

  // Runs what starts the program and ends before it.
  void Launch(const QStringList& launcher) const
  {
    const auto process = desktop.Start(launcher);
    ASSERT_TRUE(process->waitForFinished(kPatience));
    EXPECT_EQ(process->exitCode(), 0);
  }

  // The program comes up in its folder, reminds, and is ended.
  void ExpectThatItReminds() const
  {
    const auto notices = desktop.AwaitWindow(kNotices);
    ASSERT_TRUE(notices);
    const QString process = desktop.Run("xdotool", {"getwindowpid", *notices});
    ASSERT_GT(process.toInt(), 1);
    EXPECT_EQ(QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(process)), desktop.File("/quillmark"));
    EXPECT_EQ(QFile::symLinkTarget(QStringLiteral("/proc/%1/cwd").arg(process)), desktop.Folder());
    kill(process.toInt(), SIGKILL);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
          return desktop.Run("xdotool", {"search", "--onlyvisible", "--name", "Quillmark"}).isEmpty();
        },
        kPatience));
  }

  void ExpectThatAnyLauncherStartsIt() const
  {
    EXPECT_EQ(desktop.Run("desktop-file-validate", {EntryPath()}), "");
    {
      SCOPED_TRACE("by the rules");
      const EntryReader entry = EntryReader::OfFile(EntryPath());
      const auto program = desktop.Start(entry.Command(), entry.Value("Path"));
      ExpectThatItReminds();
      program->waitForFinished(kPatience);
    }
    SCOPED_TRACE("by a launcher");
    Launch({"gio", "launch", EntryPath()});
    ExpectThatItReminds();
  }

  QTemporaryDir settings;
  VirtualDesktop desktop;
};

// What a session of the window manager runs for its user's entries.
QString SessionStarter()
{
  for (const QFileInfo& folder : QDir("/usr/lib").entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    const QString starter = folder.filePath() + "/openbox-xdg-autostart";
    if (QFile::exists(starter)) {
      return starter;
    }
  }
  return {};
}

}

TEST_F(AutostartOnTheDesktop, ALoginStartsTheProgramAndItReminds)
{
  desktop.RenameFolder("The book of people");
  ChooseToStart();
  LetABirthdayBeToday();
  ASSERT_NE(SessionStarter(), "");
  Launch({SessionStarter()});
  ExpectThatItReminds();
}

TEST_F(AutostartOnTheDesktop, AFolderWithAnyCharactersWorks)
{
  desktop.RenameFolder(QStringLiteral("Émile's \"book\" of $HOME `date` back\\slash #?&;🎂 "));
  ChooseToStart();
  LetABirthdayBeToday();
  ExpectThatAnyLauncherStartsIt();
}

TEST_F(AutostartOnTheDesktop, AFolderThatLaunchersCannotTakeForAProgramWorks)
{
  desktop.RenameFolder(QStringLiteral("100%f \"$HOME\" a=b "));
  ChooseToStart();
  LetABirthdayBeToday();
  ExpectThatAnyLauncherStartsIt();
}
