// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/StoreError.h"

#include <gtest/gtest.h>

#include <functional>
#include <sqlite3.h>

namespace {

RuntimeError Raised(const std::function<void()>& work)
{
  try {
    work();
  } catch (const RuntimeError& error) {
    return error;
  }
  return {0, {}};
}

}

TEST(StoreError, EveryNumberHasItsText)
{
  const struct
  {
    int number;
    const char* text;
  } kCases[] = {
      {StoreError::kNoIndex, "No index is chosen."},
      {StoreError::kNoEdit, "Update or CancelUpdate without AddNew or Edit."},
      {StoreError::kNoCurrentRecord, "No current record."},
      {StoreError::kDuplicate, "The change would make a duplicate value in a unique index."},
      {StoreError::kFileNotFound, "The database 'x' %1 was not found."},
      {StoreError::kDiskFull, "The disk is full; nothing was changed."},
      {StoreError::kReadOnly, "The database cannot be changed: the file or its folder is read-only."},
      {StoreError::kDiskError, "The database could not be read or written."},
      {StoreError::kUnknownColumn, "There is no column ''x' %1' in the table."},
      {StoreError::kSyntax, "The query is not understood at ''x' %1'."},
      {StoreError::kUnknownTable, "There is no table ''x' %1' in the database."},
      {StoreError::kBadBookmark, "The bookmark leads to no record."},
      {StoreError::kRecordDeleted, "The record has been deleted."},
      {StoreError::kAlreadyExists, "The file 'x' %1 exists already."},
      {StoreError::kLocked, "The database is locked by another program."},
      {StoreError::kUnknownItem, "There is no item ''x' %1' in the collection."},
      {StoreError::kNotADatabase, "The file is damaged or is not a Quillmark database."},
      {StoreError::kInUse, "The database is in use."},
      {StoreError::kClosed, "The database has been closed."},
      {StoreError::kUnknownIndex, "There is no index ''x' %1' in the table."},
  };
  for (const auto& [number, text] : kCases) {
    const RuntimeError error = Raised([number = number] { StoreError::Raise(number, "'x' %1"); });
    EXPECT_EQ(error.Number(), number);
    EXPECT_EQ(error.Text().toStdString(), text);
  }
}

TEST(StoreError, CodesBelowHaveTheirNumbers)
{
  const struct
  {
    int code;
    int number;
  } kCases[] = {
      {SQLITE_BUSY, StoreError::kLocked},
      {SQLITE_BUSY_SNAPSHOT, StoreError::kLocked},
      {SQLITE_LOCKED, StoreError::kLocked},
      {SQLITE_FULL, StoreError::kDiskFull},
      {SQLITE_READONLY, StoreError::kReadOnly},
      {SQLITE_READONLY_DIRECTORY, StoreError::kReadOnly},
      {SQLITE_CORRUPT, StoreError::kNotADatabase},
      {SQLITE_NOTADB, StoreError::kNotADatabase},
      {SQLITE_CONSTRAINT_UNIQUE, StoreError::kDuplicate},
      {SQLITE_IOERR_WRITE, StoreError::kDiskError},
  };
  for (const auto& [code, number] : kCases) {
    EXPECT_EQ(Raised([code = code] { StoreError::RaiseFor(code); }).Number(), number) << code;
  }
}

TEST(StoreError, TheLastFailureOfAConnectionHasItsNumber)
{
  sqlite3* handle = nullptr;
  ASSERT_EQ(sqlite3_open(":memory:", &handle), SQLITE_OK);
  sqlite3_exec(handle, "CREATE TABLE T (A UNIQUE); INSERT INTO T VALUES (1)", nullptr, nullptr, nullptr);
  EXPECT_EQ(sqlite3_exec(handle, "INSERT INTO T VALUES (1)", nullptr, nullptr, nullptr), SQLITE_CONSTRAINT);
  EXPECT_EQ(Raised([handle] { StoreError::RaiseFor(handle); }).Number(), StoreError::kDuplicate);
  sqlite3_close(handle);
}
