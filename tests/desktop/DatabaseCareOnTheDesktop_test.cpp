// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "VirtualDesktop.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTest>

#include <gtest/gtest.h>

namespace {

constexpr int kPatience = 30000;
const QString kFrame = QStringLiteral("Quillmark");
const QString kNotices = QStringLiteral("Quillmark Reminders...");

class DatabaseCareOnTheDesktop : public testing::Test
{
protected:
  DatabaseCareOnTheDesktop()
  {
    desktop.RunSql(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 300) "
        "INSERT INTO People (FirstName, LastName, Notes) SELECT 'Émile ' || i, 'Lee', hex(zeroblob(i)) FROM n;"
        "INSERT INTO Ann (Spouse1ID, Spouse2ID) VALUES (1, 2);"
        "INSERT INTO Reminders (Month, Date, Event) VALUES ('May', '2004-05-01', 'Fair');");
  }

  [[nodiscard]] QString DatabasePath() const { return desktop.File("/quillmark2002.mdb"); }
  [[nodiscard]] QString CopyPath() const { return desktop.File("/Quillmark1.mdb"); }

  [[nodiscard]] QString Dump(const QString& path) const { return desktop.Run("sqlite3", {path, ".dump"}); }

  void LetABirthdayBeToday() const
  {
    const QDate today = QDate::currentDate();
    desktop.RunSql(QStringLiteral("UPDATE People SET BirthMonth='%1', BirthDate='%2' WHERE FirstName='Émile 300'")
                       .arg(QLocale::c().monthName(today.month()))
                       .arg(today.day()));
  }

  // A dialog that has the keyboard. What the window manager holds for the active window may
  // be long gone, and its number another window's.
  [[nodiscard]] std::optional<QString> AwaitDialog() const
  {
    QString window;
    const bool came = QTest::qWaitFor(
        [&] {
          window = desktop.Run("xdotool", {"getwindowfocus"});
          return !window.isEmpty() && desktop.Property(window, "_NET_WM_WINDOW_TYPE").contains("TYPE_DIALOG");
        },
        kPatience);
    return came ? std::optional(window) : std::nullopt;
  }

  void ChooseFromDatabaseMenu(const QString& key) const
  {
    const auto frame = desktop.AwaitWindow(kFrame);
    ASSERT_TRUE(frame);
    desktop.Press(*frame, "alt+d");
    desktop.Press(*frame, key);
  }

  // The start reads the rows and finds the birthday among them.
  void ExpectThatItStartsAndReminds() const
  {
    const auto program = desktop.StartProgram();
    EXPECT_TRUE(desktop.AwaitWindow(*program, kNotices));
    program->kill();
    program->waitForFinished(kPatience);
  }

  VirtualDesktop desktop;
  QTemporaryDir elsewhere;
};

}

TEST_F(DatabaseCareOnTheDesktop, ABackupInThePlaceOfTheDatabaseStartsWithEveryRow)
{
  const auto program = desktop.StartProgram();
  ChooseFromDatabaseMenu("b");
  ASSERT_TRUE(AwaitDialog());
  const QString backup = elsewhere.filePath("backup.mdb");
  desktop.Run("xdotool", {"type", backup});
  desktop.Run("xdotool", {"key", "Return"});
  ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(backup); }, kPatience));
  const QString rows = Dump(DatabasePath());
  program->kill();
  program->waitForFinished(kPatience);

  ASSERT_TRUE(QFile::remove(DatabasePath()));
  ASSERT_TRUE(QFile::rename(backup, DatabasePath()));
  EXPECT_EQ(Dump(DatabasePath()), rows);
  EXPECT_EQ(desktop.QuerySql("PRAGMA integrity_check"), "ok");
  EXPECT_EQ(desktop.QuerySql("SELECT count(*), max(FirstName) FROM People"), QStringLiteral("300|Émile 99"));
  LetABirthdayBeToday();
  ExpectThatItStartsAndReminds();
}

TEST_F(DatabaseCareOnTheDesktop, KilledBetweenTheDeleteAndTheRenameTheNextStartTellsThatTheFileIsMissing)
{
  const QString rows = Dump(DatabasePath());
  const auto program =
      desktop.StartProgram({"strace", "-f", "-o", elsewhere.filePath("log"), "-e", "trace=?rename,?renameat,?renameat2",
                            "-e", "inject=?rename,?renameat,?renameat2:signal=KILL:when=1"});
  ChooseFromDatabaseMenu("c");
  const auto question = AwaitDialog();
  ASSERT_TRUE(question);
  desktop.Press(*question, "alt+y");
  ASSERT_TRUE(program->waitForFinished(kPatience));
  EXPECT_FALSE(QFile::exists(DatabasePath()));
  ASSERT_TRUE(QFile::exists(CopyPath()));

  const auto next = desktop.StartProgram();
  const auto message = AwaitDialog();
  ASSERT_TRUE(message);
  desktop.Press(*message, "Return");
  EXPECT_TRUE(next->waitForFinished(kPatience));
  EXPECT_EQ(next->exitCode(), 1);
  EXPECT_FALSE(QFile::exists(DatabasePath()));

  ASSERT_TRUE(QFile::rename(CopyPath(), DatabasePath()));
  EXPECT_EQ(Dump(DatabasePath()), rows);
  LetABirthdayBeToday();
  ExpectThatItStartsAndReminds();
}
