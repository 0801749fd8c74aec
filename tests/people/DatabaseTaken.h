// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <gtest/gtest.h>

#include <sqlite3.h>

// Another program that keeps everybody else from the database, for as long as this stands.
class DatabaseTaken
{
public:
  explicit DatabaseTaken(const QString& path)
  {
    EXPECT_EQ(sqlite3_open_v2(path.toUtf8().constData(), &handle_, SQLITE_OPEN_READWRITE, nullptr), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(handle_, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  }
  ~DatabaseTaken()
  {
    EXPECT_EQ(sqlite3_exec(handle_, "ROLLBACK", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(handle_);
  }
  DatabaseTaken(const DatabaseTaken&) = delete;
  DatabaseTaken& operator=(const DatabaseTaken&) = delete;

private:
  sqlite3* handle_ = nullptr;
};
