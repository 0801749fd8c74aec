// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Command.h"
#include "store/DBEngine.h"
#include "store/StoreError.h"
#include "support/ErrorOf.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <sqlite3.h>
#include <sys/stat.h>

namespace {

// Files that no Quillmark has made, in the place of its database.
class OddFiles : public testing::Test
{
protected:
  // What opening the database and a walk through a table fail with; 0 if all goes well,
  // -1 if the walk does not end.
  static int WalkingError(const QString& table, const QString& index = {})
  {
    constexpr int kMostSteps = 100;
    int steps = 0;
    const int error = ErrorOf([&] {
      Database database = DBEngine::OpenDatabase();
      const auto rows = database.OpenRecordset(table, Database::kTable);
      if (!index.isEmpty()) {
        rows->SetIndex(index);
      }
      for (; !rows->Eof() && steps < kMostSteps; ++steps) {
        rows->MoveNext();
      }
    });
    return steps < kMostSteps ? error : -1;
  }

  [[nodiscard]] QByteArray Contents() const
  {
    QFile file(folder.DatabasePath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
  }

  ProgramFolder folder;
};

// A builtin order of texts that takes a C for something behind a D.
int Disorderly(void*, int size, const void* text, int otherSize, const void* other)
{
  const auto rank = [](int length, const void* bytes) {
    const QByteArray value(static_cast<const char*>(bytes), length);
    return value == "C" ? QByteArray("E") : value;
  };
  return rank(size, text).compare(rank(otherSize, other));
}

}

TEST_F(OddFiles, AFolderIsNoDatabase)
{
  ASSERT_TRUE(QFile::remove(folder.DatabasePath()) && QDir().mkdir(folder.DatabasePath()));
  EXPECT_EQ(WalkingError("Options"), StoreError::kNotADatabase);
}

TEST_F(OddFiles, APipeIsNoDatabaseAndIsNotWaitedFor)
{
  ASSERT_TRUE(QFile::remove(folder.DatabasePath()));
  ASSERT_EQ(mkfifo(QFile::encodeName(folder.DatabasePath()).constData(), S_IRUSR | S_IWUSR), 0);
  EXPECT_EQ(WalkingError("Options"), StoreError::kNotADatabase);
}

TEST_F(OddFiles, AFileWithAnotherJournalIsLeftAsItIsUntilTheFirstWrite)
{
  folder.Execute("PRAGMA journal_mode = WAL");
  const QByteArray before = Contents();
  ASSERT_EQ(before[18], '\2');
  EXPECT_EQ(WalkingError("Options"), 0);
  EXPECT_EQ(Contents(), before);
  Command::Run([] {
    Database database = DBEngine::OpenDatabase();
    const auto options = database.OpenRecordset("Options", Database::kTable);
    options->Edit();
    options->Fields("Theme").SetValue(3);
    options->Update();
  });
  EXPECT_EQ(Contents()[18], '\1');
  EXPECT_EQ(folder.Value("SELECT Theme FROM Options"), 3);
  EXPECT_EQ(QDir(folder.Path()).entryList({"*-wal", "*-shm", "*-journal"}), QStringList());
}

TEST_F(OddFiles, AViewIsNoTable)
{
  folder.Execute("DROP TABLE People");
  folder.Execute(
      "CREATE VIEW People AS WITH RECURSIVE Endless (PeopleID) AS (SELECT 1 UNION ALL SELECT PeopleID + 1 FROM "
      "Endless) "
      "SELECT PeopleID FROM Endless");
  EXPECT_EQ(WalkingError("People"), StoreError::kUnknownTable);
}

TEST_F(OddFiles, AKeyThatIsNoNumberDoesNotHoldAWalkUp)
{
  const char* const kTables[] = {
      "CREATE TABLE Other (Place SMALLINT PRIMARY KEY, Name TEXT)",
      "CREATE TABLE Other (Place INTEGER PRIMARY KEY DESC, Name TEXT)",
      "CREATE TABLE Other (Place INTEGER, Name TEXT, PRIMARY KEY (Place, Name))",
      "CREATE TABLE Other (Place TEXT, Name TEXT, rowid TEXT)",
  };
  for (const char* table : kTables) {
    folder.Execute("DROP TABLE IF EXISTS Other");
    folder.Execute(table);
    folder.Execute("INSERT INTO Other (Place, Name) VALUES ('b', 'Ann'), ('a', 'Bob'), (3, 'Cid')");
    EXPECT_EQ(WalkingError("Other"), 0) << table;
  }
}

TEST_F(OddFiles, ATableWithoutNumbersOfItsOwnIsRefused)
{
  folder.Execute("CREATE TABLE Other (Place TEXT PRIMARY KEY) WITHOUT ROWID");
  folder.Execute("INSERT INTO Other VALUES ('a'), ('b')");
  EXPECT_EQ(WalkingError("Other"), StoreError::kDiskError);
}

TEST_F(OddFiles, ValuesOfAnotherKindInAnIndexDoNotHoldAWalkUp)
{
  folder.Execute("INSERT INTO Ann (Spouse1ID, Spouse2ID) VALUES (1, 'a'), (2.5, x'6161'), ('c', 3.5), (x'00', 1e300)");
  EXPECT_EQ(WalkingError("Ann", "Spouse1ID"), 0);
  EXPECT_EQ(WalkingError("Ann", "Spouse2ID"), 0);
  folder.Execute(
      "INSERT INTO People (BirthMonth) VALUES (CAST(x'ff' AS TEXT)), (CAST(x'4d0061' AS TEXT)), (x'4d6179'), ('May')");
  EXPECT_EQ(WalkingError("People", "BirthMonth"), 0);
}

TEST_F(OddFiles, AnIndexOutOfOrderDoesNotHoldAWalkUp)
{
  sqlite3* handle = nullptr;
  ASSERT_EQ(sqlite3_open(QFile::encodeName(folder.DatabasePath()).constData(), &handle), SQLITE_OK);
  ASSERT_EQ(sqlite3_create_collation(handle, "NOCASE", SQLITE_UTF8, nullptr, Disorderly), SQLITE_OK);
  EXPECT_EQ(sqlite3_exec(handle, "INSERT INTO People (BirthMonth) VALUES ('A'), ('B'), ('C'), ('D')", nullptr, nullptr,
                         nullptr),
            SQLITE_OK);
  sqlite3_close(handle);
  ASSERT_NE(folder.Value("PRAGMA integrity_check"), "ok");
  EXPECT_EQ(WalkingError("People", "BirthMonth"), 0);
}
