// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/Form.h"
#include "controls/Forms.h"
#include "looks/Style.h"
#include "platform/Clock.h"
#include "platform/Command.h"
#include "platform/Files.h"
#include "shell/DatabaseCare.h"
#include "shell/StartUp.h"
#include "shell/mdiQuillmark.h"
#include "store/DBEngine.h"
#include "store/StoreError.h"
#include "support/ErrorOf.h"
#include "support/ProgramFolder.h"
#include "support/Tampering.h"
#include "support/YesMan.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <functional>
#include <sqlite3.h>

namespace {

using Tampering::Outcome;
using Tampering::Step;

const QString kSorry = QStringLiteral("Sorry, your database could not be compacted.");

constexpr QFile::Permissions kOfOthers =
    QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;

void Compact(const Tampering::Say& say)
{
  const YesMan yesMan(say);
  Command::Run(DatabaseCare::Compact);
}

// Everything in a file that is sound, as text; empty for any other.
QString Dump(const QString& path)
{
  sqlite3* handle = nullptr;
  QString dump;
  const auto collect = [](void* target, int count, char** values, char**) {
    for (int i = 0; i < count; ++i) {
      *static_cast<QString*>(target) += QString::fromUtf8(values[i] != nullptr ? values[i] : "NULL") + u'|';
    }
    *static_cast<QString*>(target) += u'\n';
    return 0;
  };
  const auto query = [&](const char* sql) { return sqlite3_exec(handle, sql, collect, &dump, nullptr) == SQLITE_OK; };
  const bool sound = sqlite3_open_v2(path.toUtf8().constData(), &handle, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK &&
                     query("PRAGMA integrity_check") && dump == "ok|\n" &&
                     query("SELECT sql FROM sqlite_master ORDER BY name") &&
                     query("SELECT * FROM People ORDER BY PeopleID") && query("SELECT * FROM Ann ORDER BY 1, 2") &&
                     query("SELECT * FROM Reminders ORDER BY 1, 2, 3") && query("SELECT * FROM Options") &&
                     query("SELECT * FROM sqlite_sequence ORDER BY name");
  sqlite3_close(handle);
  return sound ? dump : QString();
}

// The failure hit a step in the folder, and not another one of the same number.
bool WasTamperedWith(const Outcome& outcome)
{
  return std::any_of(outcome.steps.begin(), outcome.steps.end(),
                     [](const Step& step) { return step.line.endsWith("(INJECTED)"); });
}

// What is at the path, or below it, is written: a failure may not be passed over.
bool WritesInto(const QString& path, const Step& step)
{
  static const QRegularExpression writing("^p?write|^fsync");
  return step.line.contains(writing) && step.line.contains('<' + path);
}

// Few of the many writes that are alike.
std::vector<Step> Thinned(const std::vector<Step>& steps)
{
  std::vector<Step> thinned;
  std::copy_if(steps.begin(), steps.end(), std::back_inserter(thinned),
               [](const Step& step) { return !step.call.startsWith("pwrite") || step.number % 6 == 1; });
  return thinned;
}

QByteArray Contents(const QString& path)
{
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
}

class DatabaseCareFaults : public testing::Test
{
protected:
  DatabaseCareFaults()
  {
    Style::Apply(*qApp);
    RegisterForms();
    Clock::StopOn(QDate(2026, 5, 5));
    QFile::copy(QStringLiteral(QUILLMARK_LAID_FOLDER "/animp.ico"), folder.File("/animp.ico"));
    folder.Execute(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 100) "
        "INSERT INTO People (FirstName, LastName, Notes) SELECT 'Émile ' || i, 'Lee', hex(zeroblob(150)) FROM n");
    folder.Execute("INSERT INTO Ann (Spouse1ID, Spouse2ID) VALUES (1, 2)");
    folder.Execute("INSERT INTO Reminders (Month, Date, Event) VALUES ('May', '2004-05-01', 'Fair')");
    Compact([](const QString&) {});  // the fonts and pictures of a box are loaded only once
    folder.Execute("DELETE FROM People WHERE PeopleID BETWEEN 31 AND 60");
    before = Contents(DatabasePath());
    rows = Dump(DatabasePath());
  }

  ~DatabaseCareFaults() override
  {
    Forms::UnregisterAll();
    Clock::StopOn({});
  }

  [[nodiscard]] QString DatabasePath() const { return folder.DatabasePath(); }
  [[nodiscard]] QString CopyPath() const { return folder.File("/Quillmark1.mdb"); }

  static void Write(const QString& path, const QByteArray& contents)
  {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
  }

  void LayAnew() const
  {
    for (const QString& name : QDir(folder.Path()).entryList({"*.mdb*"}, QDir::Files)) {
      QFile::remove(folder.File("/") + name);
    }
    Write(DatabasePath(), before);
    QFile::setPermissions(DatabasePath(), QFile::ReadOwner | QFile::WriteOwner);
  }

  // What the next start says: 0 if the main page comes up.
  static int ErrorOfStarting()
  {
    mdiQuillmark frame;
    const int error = ErrorOf([&] { StartUp(frame); });
    EXPECT_EQ(error == 0, Forms::Loaded("frmIntro") != nullptr);
    if (error == 0) {
      frame.Unload();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return error;
  }

  // The rows are all in the database, or it is gone and they are all in the copy.
  void ExpectAllRows() const
  {
    const bool inPlace = QFile::exists(DatabasePath());
    EXPECT_TRUE(Dump(inPlace ? DatabasePath() : CopyPath()) == rows);
    EXPECT_EQ(ErrorOfStarting(), inPlace ? 0 : StoreError::kFileNotFound);
    EXPECT_EQ(QFile::exists(DatabasePath()), inPlace);
    if (!inPlace) {
      ASSERT_TRUE(QFile::rename(CopyPath(), DatabasePath()));
      EXPECT_EQ(ErrorOfStarting(), 0) << "the copy in its place helps";
    }
  }

  ProgramFolder folder;
  QByteArray before;
  QString rows;
};

}

TEST_F(DatabaseCareFaults, TheCopyIsOnTheDiskBeforeTheOldFileIsDeleted)
{
  const Outcome outcome = Tampering::Watch(Compact, folder.Path());
  ASSERT_EQ(outcome.said.size(), 2);
  const auto last = [&](const QString& calls, const QString& path) {
    const QRegularExpression pattern(QString("^(%1)\\(.*%2[\">]").arg(calls, QRegularExpression::escape(path)));
    const auto found = std::find_if(outcome.steps.rbegin(), outcome.steps.rend(),
                                    [&](const Step& step) { return pattern.match(step.line).hasMatch(); });
    return outcome.steps.rend() - found;
  };
  const std::vector<std::ptrdiff_t> order = {
      0,
      last("pwrite64", CopyPath()),
      last("fsync", CopyPath()),
      last("fsync", folder.Path()),
      last("unlink|unlinkat", DatabasePath()),
      last("rename|renameat|renameat2", CopyPath()),
  };
  EXPECT_TRUE(std::is_sorted(order.begin(), order.end(), std::less_equal<>())) << testing::PrintToString(order);
}

TEST_F(DatabaseCareFaults, KilledAtAnyStepOfACompactionAllRowsAreInOneOfTheTwoFiles)
{
  const std::vector<Step> steps = Tampering::Watch(Compact, folder.Path()).steps;
  ASSERT_GT(steps.size(), 20U);
  int onlyInTheCopy = 0;
  for (std::size_t i = 0; i < steps.size(); ++i) {
    SCOPED_TRACE(steps[i].line.toStdString());
    LayAnew();
    const Outcome outcome = Tampering::KillAt(steps[i], Compact, folder.Path());
    EXPECT_TRUE(outcome.killed);
    EXPECT_EQ(outcome.steps.size(), i + 1) << "and at no other step";
    EXPECT_FALSE(QFile::permissions(CopyPath()) & kOfOthers) << "also half a copy is private";
    onlyInTheCopy += QFile::exists(DatabasePath()) ? 0 : 1;
    ExpectAllRows();
  }
  EXPECT_EQ(onlyInTheCopy, 1) << "between the delete and the rename";
}

TEST_F(DatabaseCareFaults, AFailureAtAnyStepOfACompactionIsSaidAndLosesNothing)
{
  const Outcome whole = Tampering::Watch(Compact, folder.Path());
  ASSERT_GT(whole.steps.size(), 20U);
  ASSERT_EQ(whole.said.size(), 2);
  for (const auto& [error, onwards] : {std::pair("ENOSPC", true), std::pair("EROFS", true), std::pair("EIO", false)}) {
    int failures = 0;
    for (const Step& step : error == std::string("ENOSPC") ? whole.steps : Thinned(whole.steps)) {
      SCOPED_TRACE(error + (" " + step.line.toStdString()));
      LayAnew();
      const Outcome outcome = Tampering::FailAt(step, error, onwards, Compact, folder.Path());
      EXPECT_TRUE(WasTamperedWith(outcome));
      const bool failed = outcome.said.contains(kSorry);
      failures += failed ? 1 : 0;
      EXPECT_TRUE(failed || !WritesInto(CopyPath(), step));
      EXPECT_EQ(outcome.said.last(), failed ? kSorry : whole.said.last());
      const bool isRename = step.call.startsWith("rename");
      EXPECT_EQ(Contents(DatabasePath()) == before, failed && !isRename);
      EXPECT_TRUE(failed || !QFile::exists(CopyPath()));
      ExpectAllRows();
    }
    EXPECT_GT(failures, 10) << error;
  }
}

TEST_F(DatabaseCareFaults, ADeleteThatFailsLeavesTheCopyWhichMakesTheNextCompactionFail)
{
  const std::vector<Step> steps = Tampering::Watch(Compact, folder.Path()).steps;
  const auto deletion = std::find_if(steps.begin(), steps.end(), [&](const Step& step) {
    return step.call.startsWith("unlink") && step.line.contains(DatabasePath() + '"');
  });
  ASSERT_NE(deletion, steps.end());
  LayAnew();
  const Outcome outcome = Tampering::FailAt(*deletion, "EIO", false, Compact, folder.Path());
  EXPECT_TRUE(WasTamperedWith(outcome));
  EXPECT_EQ(outcome.said.last(), kSorry);
  EXPECT_TRUE(Contents(DatabasePath()) == before);
  EXPECT_TRUE(Dump(CopyPath()) == rows);
  const QByteArray copy = Contents(CopyPath());
  QStringList said;
  Compact([&](const QString& line) { said.append(line); });
  ASSERT_EQ(said.size(), 2);
  EXPECT_EQ(said.last(), kSorry);
  EXPECT_TRUE(Contents(DatabasePath()) == before);
  EXPECT_TRUE(Contents(CopyPath()) == copy);
}

TEST_F(DatabaseCareFaults, ARenameToAnotherDiskIsDoneByACopy)
{
  const std::vector<Step> steps = Tampering::Watch(Compact, folder.Path()).steps;
  ASSERT_TRUE(steps.back().call.startsWith("rename"));
  LayAnew();
  const Outcome outcome = Tampering::FailAt(steps.back(), "EXDEV", false, Compact, folder.Path());
  ASSERT_EQ(outcome.said.size(), 2);
  EXPECT_FALSE(outcome.said.contains(kSorry));
  EXPECT_FALSE(QFile::exists(CopyPath()));
  ExpectAllRows();
  ASSERT_TRUE(outcome.steps.back().call.startsWith("unlink")) << "the copy goes last of all";
}

// The part of a backup that is left when its dialog has been answered.
class BackupFaults : public DatabaseCareFaults
{
protected:
  [[nodiscard]] QString TargetPath() const { return elsewhere.filePath("backup.mdb"); }

  void LayTarget() const
  {
    for (const QString& name : QDir(elsewhere.path()).entryList(QDir::Files | QDir::Hidden)) {
      QFile::remove(elsewhere.filePath(name));
    }
    Write(TargetPath(), "an old backup");
  }

  [[nodiscard]] std::vector<Step> Steps() const
  {
    work([](const QString&) {});  // sanitizers write when they see a type for the first time
    LayTarget();
    const Outcome outcome = Tampering::Watch(work, elsewhere.path());
    EXPECT_EQ(outcome.said, QStringList("written"));
    EXPECT_TRUE(Contents(TargetPath()) == before);
    EXPECT_GT(outcome.steps.size(), 4U);
    EXPECT_TRUE(
        std::any_of(outcome.steps.begin(), outcome.steps.end(), [](const Step& step) { return step.call == "fsync"; }));
    return outcome.steps;
  }

  QTemporaryDir elsewhere;
  Tampering::Work work = [this](const Tampering::Say& say) {
    const int error = ErrorOf([this] { Files::CopyFile(DatabasePath(), TargetPath()); });
    say(error == 0 ? "written" : "not written");
  };
};

TEST_F(BackupFaults, KilledAtAnyStepTheTargetIsWhole)
{
  int old = 0;
  const std::vector<Step> steps = Steps();
  for (std::size_t i = 0; i < steps.size(); ++i) {
    SCOPED_TRACE(steps[i].line.toStdString());
    LayTarget();
    const Outcome outcome = Tampering::KillAt(steps[i], work, elsewhere.path());
    EXPECT_TRUE(outcome.killed);
    EXPECT_EQ(outcome.steps.size(), i + 1) << "and at no other step";
    const QByteArray target = Contents(TargetPath());
    old += target == "an old backup" ? 1 : 0;
    EXPECT_TRUE(target == "an old backup" || target == before);
  }
  EXPECT_GT(old, 4);
  EXPECT_TRUE(Contents(DatabasePath()) == before);
}

TEST_F(BackupFaults, AFailureAtAnyStepLeavesTheOldTargetWhole)
{
  const std::vector<Step> steps = Steps();
  for (const auto& [error, onwards] : {std::pair("ENOSPC", true), std::pair("EROFS", true), std::pair("EIO", false)}) {
    int failures = 0;
    for (const Step& step : steps) {
      SCOPED_TRACE(error + (" " + step.line.toStdString()));
      LayTarget();
      const Outcome outcome = Tampering::FailAt(step, error, onwards, work, elsewhere.path());
      EXPECT_TRUE(WasTamperedWith(outcome));
      ASSERT_EQ(outcome.said.size(), 1);
      const bool failed = outcome.said.first() == "not written";
      failures += failed ? 1 : 0;
      EXPECT_TRUE(failed || !WritesInto(elsewhere.path(), step));
      EXPECT_TRUE(Contents(TargetPath()) == (failed ? "an old backup" : before));
      EXPECT_EQ(QDir(elsewhere.path()).entryList(QDir::Files | QDir::Hidden), QStringList("backup.mdb"));
    }
    EXPECT_GT(failures, 4) << error;
  }
  EXPECT_TRUE(Contents(DatabasePath()) == before);
}
