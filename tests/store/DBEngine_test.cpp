// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/DBEngine.h"
#include "store/Queries.h"
#include "store/StoreError.h"
#include "support/ErrorOf.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

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

// Everything that a query gives on a file, as text.
QStringList Dump(const QString& path, const char* sql)
{
  sqlite3* handle = nullptr;
  sqlite3_open_v2(path.toUtf8().constData(), &handle, SQLITE_OPEN_READONLY, nullptr);
  QStringList lines;
  sqlite3_exec(
      handle, sql,
      [](void* target, int count, char** values, char**) {
        QStringList line;
        for (int i = 0; i < count; ++i) {
          line.append(values[i] != nullptr ? QString::fromUtf8(values[i]) : QStringLiteral("NULL"));
        }
        static_cast<QStringList*>(target)->append(line.join(u'|'));
        return 0;
      },
      &lines, nullptr);
  sqlite3_close(handle);
  return lines;
}

class Compacting : public testing::Test
{
protected:
  Compacting()
  {
    folder.Execute("INSERT INTO People (LastName, City, Notes) VALUES ('Adams', NULL, ''), ('Émile', 'Ayr', '🎂')");
    folder.Execute("INSERT INTO Ann (Spouse1ID, Spouse2ID) VALUES (1, 2)");
    folder.Execute("INSERT INTO Reminders (Month, Date) VALUES ('May', '2004-05-01')");
  }

  [[nodiscard]] int ErrorOfCompacting() const
  {
    return ErrorOf([&] { DBEngine::CompactDatabase(folder.DatabasePath(), target); });
  }

  ProgramFolder folder;
  QString target = folder.File("/copy.mdb");
};

}

TEST(DBEngine, TheProgramsDatabaseIsInItsFolder)
{
  const ProgramFolder folder;
  EXPECT_EQ(DBEngine::DatabasePath(), folder.Path() + "/quillmark2002.mdb");
  EXPECT_EQ(DBEngine::OpenDatabase().OpenRecordset("Options", Database::kTable)->RecordCount(), 1);
}

TEST(DBEngine, OpeningAMissingDatabaseIsRefused)
{
  const ProgramFolder folder;
  ASSERT_TRUE(QFile::remove(folder.DatabasePath()));
  EXPECT_EQ(ErrorOf([] { static_cast<void>(DBEngine::OpenDatabase()); }), StoreError::kFileNotFound);
  EXPECT_FALSE(QFile::exists(folder.DatabasePath()));
}

TEST(DBEngine, TheSessionOpensDatabases)
{
  const ProgramFolder folder;
  Workspace& session = DBEngine::Workspaces(0);
  EXPECT_EQ(&session, &DBEngine::Workspaces(0));
  Database database = session.OpenDatabase(folder.DatabasePath());
  EXPECT_EQ(database.OpenRecordset("Options", Database::kTable)->RecordCount(), 1);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(session.OpenDatabase(folder.File("/other.mdb"))); }),
            StoreError::kFileNotFound);
}

TEST(DBEngine, ThereIsNoOtherSession)
{
  for (const int number : {-1, 1, 2, 100}) {
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(DBEngine::Workspaces(number)); }), ErrorNumber::kSubscriptOutOfRange)
        << number;
  }
}

TEST_F(Compacting, MakesAWholeCopy)
{
  DBEngine::CompactDatabase(folder.DatabasePath(), target);
  EXPECT_EQ(Dump(target, "PRAGMA integrity_check"), QStringList("ok"));
  for (const char* sql : {
           "SELECT type, name, tbl_name, sql FROM sqlite_master ORDER BY type, name",
           "SELECT *, typeof(City), typeof(Notes) FROM People",
           "SELECT * FROM Ann",
           "SELECT * FROM Reminders",
           "SELECT rowid, * FROM TotalBirthdays ORDER BY rowid",
           "SELECT rowid, * FROM TotalAnn ORDER BY rowid",
           "SELECT rowid, * FROM TotalAge ORDER BY rowid",
           "SELECT * FROM Options",
       }) {
    EXPECT_FALSE(Dump(target, sql).isEmpty()) << sql;
    EXPECT_EQ(Dump(target, sql), Dump(folder.DatabasePath(), sql)) << sql;
  }
}

TEST_F(Compacting, TheCopyHasItsIndexes)
{
  DBEngine::CompactDatabase(folder.DatabasePath(), target);
  Database database = DBEngine::Workspaces(0).OpenDatabase(target);
  const auto couples = database.OpenRecordset("Ann", Database::kTable);
  couples->SetIndex("Spouse2ID");
  couples->Seek("=", 2);
  EXPECT_FALSE(couples->NoMatch());
  couples->AddNew();
  couples->Fields("Spouse1ID").SetValue(1);
  EXPECT_EQ(ErrorOf([&] { couples->Update(); }), StoreError::kDuplicate);
}

TEST_F(Compacting, TheSourceStaysAsItIs)
{
  const QByteArray before = Contents(folder.DatabasePath());
  DBEngine::CompactDatabase(folder.DatabasePath(), target);
  EXPECT_EQ(Contents(folder.DatabasePath()), before);
}

TEST_F(Compacting, NothingButTheCopyIsLeftInTheFolder)
{
  QStringList expected = QDir(folder.Path()).entryList();
  DBEngine::CompactDatabase(folder.DatabasePath(), target);
  expected.append("copy.mdb");
  expected.sort();
  QStringList entries = QDir(folder.Path()).entryList();
  entries.sort();
  EXPECT_EQ(entries, expected);
}

TEST_F(Compacting, TheCopyIsSmallerAfterDeletes)
{
  folder.Execute(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 500) "
      "INSERT INTO People (LastName, Notes) SELECT 'Gone', hex(zeroblob(500)) FROM n");
  folder.Execute("DELETE FROM People WHERE LastName = 'Gone'");
  DBEngine::CompactDatabase(folder.DatabasePath(), target);
  EXPECT_LT(QFileInfo(target).size(), QFileInfo(folder.DatabasePath()).size() / 2);
}

TEST_F(Compacting, KeysOfDeletedRowsAreNotUsedAgainInTheCopy)
{
  folder.Execute("DELETE FROM People WHERE PeopleID = 2");
  DBEngine::CompactDatabase(folder.DatabasePath(), target);
  Database database = DBEngine::Workspaces(0).OpenDatabase(target);
  const auto cursor = database.OpenRecordset("People", Database::kTable);
  cursor->AddNew();
  cursor->Update();
  cursor->MoveLast();
  EXPECT_EQ(cursor->Fields("PeopleID").Value(), 3);
}

TEST_F(Compacting, ATakenNameIsRefusedAndItsFileLeftAsItIs)
{
  Write(target, "A letter.\n");
  EXPECT_EQ(ErrorOfCompacting(), StoreError::kAlreadyExists);
  EXPECT_EQ(Contents(target), "A letter.\n");
  const QByteArray before = Contents(folder.DatabasePath());
  EXPECT_EQ(ErrorOf([&] { DBEngine::CompactDatabase(folder.DatabasePath(), folder.DatabasePath()); }),
            StoreError::kAlreadyExists);
  EXPECT_EQ(Contents(folder.DatabasePath()), before);
}

TEST_F(Compacting, ADatabaseInUseIsRefused)
{
  {
    Database database = DBEngine::OpenDatabase();
    EXPECT_EQ(ErrorOfCompacting(), StoreError::kInUse);
    EXPECT_FALSE(QFile::exists(target));
    const auto cursor = database.OpenRecordset("People", Database::kTable);
    database.Close();
    EXPECT_EQ(ErrorOfCompacting(), StoreError::kInUse);
    EXPECT_FALSE(QFile::exists(target));
  }
  EXPECT_EQ(ErrorOfCompacting(), 0);
}

TEST_F(Compacting, ADatabaseInUseUnderAnotherNameIsRefused)
{
  const Database database(folder.File("/../" + QFileInfo(folder.Path()).fileName() + "/quillmark2002.mdb"));
  EXPECT_EQ(ErrorOfCompacting(), StoreError::kInUse);
  EXPECT_FALSE(QFile::exists(target));
}

TEST_F(Compacting, WhatCannotBeReadIsRefusedWithoutACopy)
{
  const QString letter = folder.File("/letter.txt");
  Write(letter, "A letter.\n");
  EXPECT_EQ(ErrorOf([&] { DBEngine::CompactDatabase(letter, target); }), StoreError::kNotADatabase);
  EXPECT_EQ(ErrorOf([&] { DBEngine::CompactDatabase(folder.File("/none.mdb"), target); }), StoreError::kFileNotFound);
  EXPECT_FALSE(QFile::exists(target));
  EXPECT_EQ(Contents(letter), "A letter.\n");
}

TEST_F(Compacting, ALockedDatabaseIsRefusedWithoutACopy)
{
  sqlite3* handle = nullptr;
  sqlite3_open_v2(folder.DatabasePath().toUtf8().constData(), &handle, SQLITE_OPEN_READWRITE, nullptr);
  ASSERT_EQ(sqlite3_exec(handle, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  EXPECT_NE(ErrorOfCompacting(), 0);
  EXPECT_FALSE(QFile::exists(target));
  sqlite3_close(handle);
  EXPECT_EQ(ErrorOfCompacting(), 0);
}

TEST_F(Compacting, AFolderThatIsNotThereIsRefused)
{
  target = folder.File("/no/such/copy.mdb");
  EXPECT_NE(ErrorOfCompacting(), 0);
  target = folder.File("/copy.mdb");
  EXPECT_EQ(ErrorOfCompacting(), 0);
}
