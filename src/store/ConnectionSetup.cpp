// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/ConnectionSetup.h"

#include "platform/TextOrder.h"

#include <sqlite3.h>

namespace {

constexpr int kPatienceMilliseconds = 1000;

int CompareTexts(void*, int size, const void* text, int otherSize, const void* other)
{
  return TextOrder::Compare({static_cast<const char*>(text), static_cast<std::size_t>(size)},
                            {static_cast<const char*>(other), static_cast<std::size_t>(otherSize)});
}

}

void SetUpConnection(sqlite3* connection)
{
  sqlite3_busy_timeout(connection, kPatienceMilliseconds);
  sqlite3_db_config(connection, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  // A name in quotes is that of a column, and no text if there is no such column.
  sqlite3_db_config(connection, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  sqlite3_exec(connection, "PRAGMA cell_size_check = ON", nullptr, nullptr, nullptr);
  sqlite3_create_collation(connection, "TEXTORDER", SQLITE_UTF8, nullptr, CompareTexts);
}
