// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <gtest/gtest.h>

#include <sqlite3.h>

// Another program that holds the database with an open transaction, as long as this stands.
class HeldDatabase
{
public:
  // `begin` says how far: "BEGIN EXCLUSIVE" keeps everybody out, "BEGIN IMMEDIATE" only
  // those who write, and "BEGIN; SELECT ..." keeps them from making lasting what they wrote.
  HeldDatabase(const QString& path, const char* begin)
  {
    EXPECT_EQ(sqlite3_open_v2(path.toUtf8().constData(), &handle_, SQLITE_OPEN_READWRITE, nullptr), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(handle_, begin, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(handle_);
  }
  ~HeldDatabase()
  {
    sqlite3_exec(handle_, "ROLLBACK", nullptr, nullptr, nullptr);
    sqlite3_close(handle_);
  }
  HeldDatabase(const HeldDatabase&) = delete;
  HeldDatabase& operator=(const HeldDatabase&) = delete;

private:
  sqlite3* handle_ = nullptr;
};

// One that keeps everybody out.
class DatabaseTaken : public HeldDatabase
{
public:
  explicit DatabaseTaken(const QString& path) : HeldDatabase(path, "BEGIN EXCLUSIVE") {}
};
