// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "SoundServer.h"
#include "VirtualDesktop.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTest>

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

constexpr int kPatience = 30000;
constexpr double kAlike = 0.85;
const QString kNotices = QStringLiteral("Quillmark Reminders...");
const QString kFrame = QStringLiteral("Quillmark");
const QString kHelp = QStringLiteral("Quillmark Help");

QString InsertBirthdayToday()
{
  const QDate today = QDate::currentDate();
  return QStringLiteral(
             "INSERT INTO People (FirstName, LastName, BirthMonth, BirthDate) VALUES ('Ann','Lee','%1','%2');")
      .arg(QLocale::c().monthName(today.month()))
      .arg(today.day());
}

QString InsertAnniversaryAndEventToday()
{
  const QDate today = QDate::currentDate();
  const QString month = QLocale::c().monthName(today.month());
  return QStringLiteral(
             "INSERT INTO People (FirstName, LastName, AnnMonth, AnnDate) VALUES ('Mia','Lee','%1','%2');"
             "INSERT INTO Reminders (\"Month\", \"Date\", Event) VALUES ('%1','%3','Dentist');")
      .arg(month)
      .arg(today.day())
      .arg(today.toString(Qt::ISODate));
}

void End(QProcess& program)
{
  program.kill();
  program.waitForFinished(kPatience);
}

bool EndsWith(QProcess& program, int status)
{
  const bool ended = program.waitForFinished(kPatience);
  EXPECT_TRUE(ended);
  EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(program.exitCode(), status);
  return ended;
}

QByteArray Contents(const QString& path)
{
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.readAll();
}

// The program says one message, and ends with status 1 when it is answered.
void ExpectMessageAndEnd(const VirtualDesktop& desktop, const QStringList& launcher = {})
{
  const auto program = desktop.StartProgram(launcher);
  const auto box = desktop.AwaitWindow(*program, kFrame);
  ASSERT_TRUE(box);
  EXPECT_TRUE(desktop.Property(*box, "_NET_WM_WINDOW_TYPE").contains("_NET_WM_WINDOW_TYPE_DIALOG"));
  desktop.Press(*box, "Return");
  EndsWith(*program, 1);
}

}

TEST(Desktop, NoticesStandAboveTheMinimisedFrameUntilTheyAreLeft)
{
  VirtualDesktop desktop;
  desktop.RunSql(InsertBirthdayToday());
  const auto program = desktop.StartProgram();
  const auto notices = desktop.AwaitWindow(*program, kNotices);
  ASSERT_TRUE(notices);
  EXPECT_TRUE(desktop.Property(*notices, "_NET_WM_STATE").contains("_NET_WM_STATE_ABOVE"));
  EXPECT_FALSE(desktop.HasVisibleWindow(*program, kFrame));
  const auto isIconic = [&](const QString& window) { return desktop.Property(window, "WM_STATE").contains("Iconic"); };
  const QStringList frames = desktop.Windows(*program, kFrame);
  EXPECT_EQ(std::count_if(frames.begin(), frames.end(), isIconic), 1);

  desktop.ClickAt(*notices, 80, 142);
  const auto frame = desktop.AwaitWindow(*program, kFrame);
  ASSERT_TRUE(frame);
  EXPECT_TRUE(desktop.Property(*frame, "WM_STATE").contains("Normal"));
  EXPECT_FALSE(desktop.HasVisibleWindow(*program, kNotices));
  End(*program);
}

TEST(Desktop, NothingDueStartsWithTheFrame)
{
  VirtualDesktop desktop;
  const auto program = desktop.StartProgram();
  EXPECT_TRUE(desktop.AwaitWindow(*program, kFrame));
  EXPECT_TRUE(desktop.Windows(*program, kNotices).isEmpty());
  End(*program);
}

TEST(Desktop, AFrameDraggedTooSmallSnaps)
{
  VirtualDesktop desktop;
  const auto program = desktop.StartProgram();
  const auto frame = desktop.AwaitWindow(*program, kFrame);
  ASSERT_TRUE(frame);
  desktop.Run("xdotool", {"windowsize", *frame, "500", "400"});
  EXPECT_TRUE(QTest::qWaitFor(
      [&] {
        return desktop.Run("xdotool", {"getwindowgeometry", *frame}).contains("Geometry: 767x606");
      },
      kPatience));
  End(*program);
}

TEST(Desktop, TheWindowManagersCloseEndsTheProgramAndKeepsTheState)
{
  VirtualDesktop desktop;
  const auto program = desktop.StartProgram();
  const auto frame = desktop.AwaitWindow(*program, kFrame);
  ASSERT_TRUE(frame);
  desktop.Run("wmctrl", {"-i", "-r", *frame, "-b", "add,maximized_vert,maximized_horz"});
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return desktop.Property(*frame, "_NET_WM_STATE").contains("_NET_WM_STATE_MAXIMIZED_HORZ"); }, kPatience));
  desktop.Run("wmctrl", {"-i", "-c", *frame});
  EndsWith(*program, 0);
  EXPECT_EQ(desktop.QuerySql("SELECT WindowState FROM Options"), "1");
}

TEST(Desktop, ASecondCopyEndsAndTheFirstLivesOn)
{
  VirtualDesktop desktop;
  const auto first = desktop.StartProgram();
  ASSERT_TRUE(desktop.AwaitWindow(*first, kFrame));
  const auto second = desktop.StartProgram();
  const auto box = desktop.AwaitWindow(*second, kFrame);
  ASSERT_TRUE(box);
  desktop.Press(*box, "Return");
  EndsWith(*second, 0);
  EXPECT_EQ(first->state(), QProcess::Running);
  EXPECT_TRUE(desktop.AwaitWindow(*first, kFrame));
  End(*first);
}

TEST(Desktop, ACopyThatWasKilledDoesNotBlockTheNextStart)
{
  VirtualDesktop desktop;
  const QStringList before = QDir(desktop.Folder()).entryList();
  const auto first = desktop.StartProgram();
  ASSERT_TRUE(desktop.AwaitWindow(*first, kFrame));
  End(*first);
  EXPECT_EQ(QDir(desktop.Folder()).entryList(), before) << "nothing is left behind";
  const auto next = desktop.StartProgram();
  const auto window = desktop.AwaitWindow(*next, kFrame);
  ASSERT_TRUE(window);
  EXPECT_FALSE(desktop.Property(*window, "_NET_WM_WINDOW_TYPE").contains("_NET_WM_WINDOW_TYPE_DIALOG"));
  End(*next);
}

TEST(Desktop, AMissingDatabaseIsSaidAndEndsTheProgram)
{
  VirtualDesktop desktop;
  QFile::remove(desktop.File("/quillmark2002.mdb"));
  ExpectMessageAndEnd(desktop);
  EXPECT_FALSE(QFile::exists(desktop.File("/quillmark2002.mdb")));
}

TEST(Desktop, ADatabaseLockedByAnotherProgramIsSaidAndLeftAsItWas)
{
  VirtualDesktop desktop;
  const QByteArray before = Contents(desktop.File("/quillmark2002.mdb"));
  QProcess other;
  other.start("sqlite3", {desktop.File("/quillmark2002.mdb")});
  ASSERT_TRUE(other.waitForStarted(kPatience));
  other.write("BEGIN EXCLUSIVE;\nSELECT 'locked';\n");
  ASSERT_TRUE(other.waitForReadyRead(kPatience));
  ExpectMessageAndEnd(desktop);
  other.closeWriteChannel();
  other.waitForFinished(kPatience);
  EXPECT_EQ(Contents(desktop.File("/quillmark2002.mdb")), before);
}

TEST(Desktop, AFolderThatCannotBeWrittenIsSaid)
{
  VirtualDesktop desktop;
  desktop.Run("chmod", {"-R", "a-w,a+rX", desktop.Folder()});
  desktop.Run("chmod", {"a+rx", desktop.Folder() + "/.."});
  const QStringList asNobody =
      geteuid() == 0 ? QStringList{"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"} : QStringList();
  const QByteArray before = Contents(desktop.File("/quillmark2002.mdb"));
  ExpectMessageAndEnd(desktop, asNobody);
  EXPECT_EQ(Contents(desktop.File("/quillmark2002.mdb")), before);
}

TEST(Desktop, AScreenOf640PixelsIsWarnedOf)
{
  VirtualDesktop desktop(QStringLiteral("640x480x24"));
  const auto program = desktop.StartProgram();
  const auto box = desktop.AwaitWindow(*program, kFrame);
  ASSERT_TRUE(box);
  EXPECT_TRUE(desktop.Property(*box, "_NET_WM_WINDOW_TYPE").contains("_NET_WM_WINDOW_TYPE_DIALOG"));
  desktop.Press(*box, "Return");
  EXPECT_TRUE(QTest::qWaitFor(
      [&] {
        const auto window = desktop.AwaitWindow(*program, kFrame);
        return window && *window != *box;
      },
      kPatience));
  End(*program);
}

TEST(Desktop, ThreeClipsSoundInTheOrderOfTheirLines)
{
  SoundServer sound;
  VirtualDesktop desktop;
  desktop.SetEnvironment("PULSE_SERVER", sound.Address());
  desktop.RunSql(InsertBirthdayToday() + InsertAnniversaryAndEventToday());
  const auto program = desktop.StartProgram();
  ASSERT_TRUE(desktop.AwaitWindow(*program, kNotices));
  EXPECT_TRUE(sound.AwaitSilence(2500));
  const std::vector<float> recording = sound.TakeRecording();
  End(*program);

  double last = 0;
  for (const char* clip : {"/notices/hapbirth.wav", "/notices/wmfade2.wav", "/notices/jad0044.wav"}) {
    const Sounds::Place place = Sounds::Find(Sounds::ReadClip(desktop.File(clip)), recording);
    EXPECT_GT(place.likeness, kAlike) << clip;
    EXPECT_GT(place.seconds, last) << clip;
    last = place.seconds;
  }
}

TEST(Desktop, LeavingTheNoticesSilencesTheClipAtOnce)
{
  SoundServer sound;
  VirtualDesktop desktop;
  desktop.SetEnvironment("PULSE_SERVER", sound.Address());
  desktop.RunSql(InsertBirthdayToday());
  const auto program = desktop.StartProgram();
  const auto notices = desktop.AwaitWindow(*program, kNotices);
  ASSERT_TRUE(notices);
  EXPECT_TRUE(sound.AwaitSound());
  desktop.ClickAt(*notices, 80, 142);
  ASSERT_TRUE(desktop.AwaitWindow(*program, kFrame));
  EXPECT_TRUE(sound.AwaitSilence(1500));
  const std::vector<float> recording = sound.TakeRecording();
  End(*program);
  const Sounds::Place place = Sounds::Find(Sounds::ReadClip(desktop.File("/notices/hapbirth.wav")), recording);
  EXPECT_LT(place.likeness, kAlike) << "its middle was never heard";
}

TEST(Desktop, CloseQuillmarkEndsTheProgramWhileAClipPlays)
{
  SoundServer sound;
  VirtualDesktop desktop;
  desktop.SetEnvironment("PULSE_SERVER", sound.Address());
  desktop.RunSql(InsertBirthdayToday());
  const auto program = desktop.StartProgram();
  const auto notices = desktop.AwaitWindow(*program, kNotices);
  ASSERT_TRUE(notices);
  EXPECT_TRUE(sound.AwaitSound());
  desktop.ClickAt(*notices, 80, 200);
  EndsWith(*program, 0);
}

TEST(Desktop, ExitProgramEndsIt)
{
  VirtualDesktop desktop;
  const auto program = desktop.StartProgram();
  const auto frame = desktop.AwaitWindow(*program, kFrame);
  ASSERT_TRUE(frame);
  desktop.ClickAt(*frame, 80, 487);
  EndsWith(*program, 0);
}

TEST(Desktop, TheHelpGoesWithTheProgramAndLeavesNothingBehind)
{
  const QTemporaryDir temporary;
  VirtualDesktop desktop;
  desktop.SetEnvironment("TMPDIR", temporary.path());
  const QStringList before = QDir(desktop.Folder()).entryList();
  const auto program = desktop.StartProgram();
  const auto frame = desktop.AwaitWindow(*program, kFrame);
  ASSERT_TRUE(frame);
  desktop.Press(*frame, "F1");
  ASSERT_TRUE(desktop.AwaitWindow(*program, kHelp));
  const QStringList made = {"Quillmark-*"};
  EXPECT_EQ(QDir(temporary.path()).entryList(made, QDir::Dirs).size(), 1);
  desktop.Run("wmctrl", {"-i", "-c", *frame});
  EndsWith(*program, 0);
  EXPECT_TRUE(QDir(temporary.path()).entryList(made, QDir::Dirs).isEmpty());
  EXPECT_EQ(QDir(desktop.Folder()).entryList(), before);
}
