// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/Database.h"

#include "platform/Files.h"
#include "store/Queries.h"
#include "store/StoreError.h"
#include "support/ErrorOf.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <optional>
#include <sqlite3.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QByteArray Contents(const QString& path)
{
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

void Write(const QString& path, const QByteArray& contents)
{
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  file.write(contents);
}

int OpeningError(const QString& path)
{
  return ErrorOf([&] { static_cast<void>(Database(path)); });
}

// What `work` gives in a process of its own, run as a user without rights.
template <typename Work>
int InAWeakProcess(Work&& work)
{
  int pipeEnds[2] = {};
  if (pipe(pipeEnds) != 0) {
    return -1;
  }
  const pid_t child = fork();
  if (child == 0) {
    int result = -1;
    if (geteuid() != 0 || (setgid(65534) == 0 && setuid(65534) == 0)) {
      result = work();
    }
    static_cast<void>(!write(pipeEnds[1], &result, sizeof result));
    _exit(0);
  }
  close(pipeEnds[1]);
  int result = -1;
  if (read(pipeEnds[0], &result, sizeof result) != sizeof result) {
    result = -1;
  }
  close(pipeEnds[0]);
  waitpid(child, nullptr, 0);
  return result;
}

// A connection of somebody else, which locks the whole file.
class ExclusiveLock
{
public:
  explicit ExclusiveLock(const QString& path)
  {
    sqlite3_open_v2(path.toUtf8().constData(), &handle_, SQLITE_OPEN_READWRITE, nullptr);
    taken_ = sqlite3_exec(handle_, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr) == SQLITE_OK;
  }
  ~ExclusiveLock() { sqlite3_close(handle_); }
  ExclusiveLock(const ExclusiveLock&) = delete;
  ExclusiveLock& operator=(const ExclusiveLock&) = delete;

  [[nodiscard]] bool IsTaken() const { return taken_; }

private:
  sqlite3* handle_ = nullptr;
  bool taken_ = false;
};

}

TEST(Database, OpensByPath)
{
  const ProgramFolder folder;
  EXPECT_EQ(OpeningError(folder.DatabasePath()), 0);
}

TEST(Database, OpensInAFolderOfAnyName)
{
  const ProgramFolder folder;
  for (const QString name : {"/with blanks", "/Größe 茶", "/100%23?mode=memory&x#y"}) {
    ASSERT_TRUE(QDir().mkpath(folder.File(name)));
    const QString path = folder.File(name + "/house.mdb");
    ASSERT_TRUE(QFile::copy(folder.DatabasePath(), path));
    Database database(path);
    EXPECT_EQ(database.OpenRecordset("Options", Database::kTable)->RecordCount(), 1) << name.toStdString();
  }
}

TEST(Database, AMissingFileIsRefusedAndNotMade)
{
  const ProgramFolder folder;
  const QStringList before = QDir(folder.Path()).entryList();
  EXPECT_EQ(OpeningError(folder.File("/other.mdb")), StoreError::kFileNotFound);
  EXPECT_EQ(OpeningError(folder.File("/no/such/folder.mdb")), StoreError::kFileNotFound);
  EXPECT_EQ(OpeningError({}), StoreError::kFileNotFound);
  EXPECT_EQ(QDir(folder.Path()).entryList(), before);
}

TEST(Database, AFileThatIsNoDatabaseIsRefusedAndLeftAsItIs)
{
  const ProgramFolder folder;
  const QString path = folder.File("/other.mdb");
  const QByteArray whole = Contents(folder.DatabasePath());
  const QByteArray cases[] = {
      "A letter.\n", QByteArray(5000, 'x'), QByteArray(4096, '\0'), whole.mid(1), QByteArray("PK\x03\x04") + whole,
  };
  for (const QByteArray& contents : cases) {
    Write(path, contents);
    const QStringList before = QDir(folder.Path()).entryList();
    EXPECT_EQ(OpeningError(path), StoreError::kNotADatabase) << contents.left(16).toHex().toStdString();
    EXPECT_EQ(Contents(path), contents);
    EXPECT_EQ(QDir(folder.Path()).entryList(), before);
  }
}

TEST(Database, AnEmptyFileIsNoDatabase)
{
  const ProgramFolder folder;
  const QString path = folder.File("/empty.mdb");
  Write(path, {});
  EXPECT_EQ(OpeningError(path), StoreError::kNotADatabase);
  EXPECT_EQ(Contents(path), QByteArray());
}

TEST(Database, ATornDatabaseIsRefusedWithoutACrash)
{
  const ProgramFolder folder;
  const QByteArray whole = Contents(folder.DatabasePath());
  const QString path = folder.File("/torn.mdb");
  for (const qsizetype size : {qsizetype{16}, qsizetype{100}, qsizetype{1000}, whole.size() / 2}) {
    Write(path, whole.left(size));
    EXPECT_NE(ErrorOf([&] {
                Database database(path);
                for (const QString table : {"People", "Ann", "Reminders", "Options", "TotalAge"}) {
                  static_cast<void>(database.OpenRecordset(table, Database::kTable)->Fields("x"));
                }
              }),
              0)
        << size;
    EXPECT_EQ(Contents(path), whole.left(size));
  }
}

TEST(Database, OpeningLeavesTheFileAsItIs)
{
  const ProgramFolder folder;
  const QByteArray before = Contents(folder.DatabasePath());
  const QStringList files = QDir(folder.Path()).entryList();
  {
    Database database(folder.DatabasePath());
    const auto cursor = database.OpenRecordset(Queries::kTotalAge, Database::kDynaset);
    cursor->MoveLast();
  }
  EXPECT_EQ(Contents(folder.DatabasePath()), before);
  EXPECT_EQ(QDir(folder.Path()).entryList(), files);
}

TEST(Database, AMissingTableIsRefused)
{
  const ProgramFolder folder;
  Database database(folder.DatabasePath());
  for (const QString table : {"", "Peeple", "People;", "BirthMonth", "People\""}) {
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(database.OpenRecordset(table, Database::kTable)); }),
              StoreError::kUnknownTable)
        << table.toStdString();
  }
  EXPECT_EQ(
      ErrorOf([&] { static_cast<void>(database.OpenRecordset("SELECT Peeple.City FROM Peeple", Database::kDynaset)); }),
      StoreError::kUnknownTable);
}

TEST(Database, ATableThatWasTakenAwayIsMissing)
{
  const ProgramFolder folder;
  folder.Execute("DROP TABLE Ann");
  Database database(folder.DatabasePath());
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(database.OpenRecordset("Ann", Database::kTable)); }),
            StoreError::kUnknownTable);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(database.OpenRecordset(Queries::kCoupleDates, Database::kDynaset)); }),
            StoreError::kUnknownTable);
}

TEST(Database, OpensEveryTable)
{
  const ProgramFolder folder;
  Database database(folder.DatabasePath());
  for (const QString table : {"People", "Ann", "Reminders", "TotalBirthdays", "TotalAnn", "TotalAge", "Options"}) {
    EXPECT_EQ(database.OpenRecordset(table, Database::kTable)->RecordCount(),
              folder.Value("SELECT Count(*) FROM " + table))
        << table.toStdString();
  }
}

TEST(Database, AClosedOneOpensNoCursor)
{
  const ProgramFolder folder;
  Database database(folder.DatabasePath());
  database.Close();
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(database.OpenRecordset("People", Database::kTable)); }),
            StoreError::kClosed);
}

TEST(Database, ALockedFileIsRefusedAndLeftAsItIs)
{
  const ProgramFolder folder;
  const QByteArray before = Contents(folder.DatabasePath());
  {
    const ExclusiveLock lock(folder.DatabasePath());
    ASSERT_TRUE(lock.IsTaken());
    EXPECT_EQ(OpeningError(folder.DatabasePath()), StoreError::kLocked);
  }
  EXPECT_EQ(Contents(folder.DatabasePath()), before);
  EXPECT_EQ(OpeningError(folder.DatabasePath()), 0);
}

TEST(Database, AFileLockedAfterOpeningRefusesToBeReadOrWritten)
{
  const ProgramFolder folder;
  folder.Execute("INSERT INTO People (LastName) VALUES ('Adams'), ('Brown')");
  Database database(folder.DatabasePath());
  const auto cursor = database.OpenRecordset("People", Database::kTable);
  cursor->Edit();
  cursor->Fields("LastName").SetValue("Aaron");
  {
    const ExclusiveLock lock(folder.DatabasePath());
    ASSERT_TRUE(lock.IsTaken());
    EXPECT_EQ(ErrorOf([&] { cursor->Update(); }), StoreError::kLocked);
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(database.OpenRecordset(Queries::kRecords, Database::kDynaset)); }),
              StoreError::kLocked);
  }
  EXPECT_EQ(folder.Value("SELECT LastName FROM People"), "Adams");
  cursor->Update();
  EXPECT_EQ(folder.Value("SELECT LastName FROM People"), "Aaron");
}

TEST(Database, WhatALockKeptFromBeingReadCanBeReadAfterIt)
{
  const ProgramFolder folder;
  folder.Execute("INSERT INTO People (LastName) VALUES ('Adams'), ('Brown')");
  Database database(folder.DatabasePath());
  const auto table = database.OpenRecordset("People", Database::kTable);
  const auto query = database.OpenRecordset(Queries::kRecords, Database::kDynaset);
  EXPECT_EQ(query->Fields("PeopleID").Value(), 1);
  {
    const ExclusiveLock lock(folder.DatabasePath());
    ASSERT_TRUE(lock.IsTaken());
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(table->Fields("LastName").Value()); }), StoreError::kLocked);
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(query->Fields("LastName").Value()); }), StoreError::kLocked);
  }
  const auto read = [](Recordset& cursor) {
    QVariant value;
    EXPECT_EQ(ErrorOf([&] { value = cursor.Fields("LastName").Value(); }), 0);
    return value;
  };
  EXPECT_EQ(read(*table), "Adams");
  EXPECT_EQ(read(*query), "Adams");
}

TEST(Database, AFileThatCannotBeWrittenIsRefused)
{
  const ProgramFolder folder;
  const QString path = folder.DatabasePath();
  ASSERT_EQ(chmod(folder.Path().toUtf8().constData(), 0555), 0);
  ASSERT_EQ(chmod(path.toUtf8().constData(), 0444), 0);
  EXPECT_EQ(InAWeakProcess([&] { return OpeningError(path); }), StoreError::kReadOnly);
  ASSERT_EQ(chmod(folder.Path().toUtf8().constData(), 0777), 0);
  EXPECT_EQ(InAWeakProcess([&] { return OpeningError(path); }), StoreError::kReadOnly);
  ASSERT_EQ(chmod(path.toUtf8().constData(), 0666), 0);
  EXPECT_EQ(InAWeakProcess([&] { return OpeningError(path); }), 0);
}

TEST(Database, AFolderThatCannotBeWrittenRefusesUpdates)
{
  const ProgramFolder folder;
  const QString path = folder.DatabasePath();
  ASSERT_EQ(chmod(path.toUtf8().constData(), 0666), 0);
  ASSERT_EQ(chmod(folder.Path().toUtf8().constData(), 0555), 0);
  const int error = InAWeakProcess([&] {
    return ErrorOf([&] {
      Database database(path);
      const auto cursor = database.OpenRecordset("People", Database::kTable);
      cursor->AddNew();
      cursor->Update();
    });
  });
  EXPECT_EQ(error, StoreError::kReadOnly);
  ASSERT_EQ(chmod(folder.Path().toUtf8().constData(), 0755), 0);
  EXPECT_EQ(folder.Value("SELECT Count(*) FROM People"), 0);
}

TEST(Database, OpenedAfterItsFileWasReplacedIsTheNewOne)
{
  const ProgramFolder folder;
  const QString kept = folder.File("/kept.mdb");
  ASSERT_TRUE(QFile::copy(folder.DatabasePath(), kept));
  folder.Execute("INSERT INTO People (LastName) VALUES ('Adams')");
  Database before(folder.DatabasePath());
  const auto cursor = before.OpenRecordset("People", Database::kTable);
  before.Close();
  Files::CopyFile(kept, folder.DatabasePath());
  Database after(folder.DatabasePath());
  EXPECT_EQ(after.OpenRecordset("People", Database::kTable)->RecordCount(), 0);
}

TEST(Database, TwoOfThemSeeEachOthersWork)
{
  const ProgramFolder folder;
  Database first(folder.DatabasePath());
  Database second(folder.DatabasePath());
  const auto writer = first.OpenRecordset("People", Database::kTable);
  const auto reader = second.OpenRecordset("People", Database::kTable);
  writer->AddNew();
  writer->Fields("LastName").SetValue("Adams");
  writer->Update();
  EXPECT_EQ(reader->RecordCount(), 1);
  reader->MoveFirst();
  EXPECT_EQ(reader->Fields("LastName").Value(), "Adams");
}

TEST(Database, MovesToAnotherHolder)
{
  const ProgramFolder folder;
  std::optional<Database> holder;
  {
    Database database(folder.DatabasePath());
    holder = std::move(database);
  }
  EXPECT_EQ(holder->OpenRecordset("Options", Database::kTable)->RecordCount(), 1);
}
