// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "store/Connection.h"

#include <sqlite3.h>

// Counts what the store's own connection to a file reads, for as long as this stands.
class StatementCounter
{
public:
  explicit StatementCounter(const QString& path) : connection_(Connection::To(path))
  {
    sqlite3_trace_v2(connection_->Handle(), SQLITE_TRACE_ROW | SQLITE_TRACE_PROFILE, &StatementCounter::Take, this);
  }
  ~StatementCounter() { sqlite3_trace_v2(connection_->Handle(), 0, nullptr, nullptr); }
  StatementCounter(const StatementCounter&) = delete;
  StatementCounter& operator=(const StatementCounter&) = delete;

  int Rows = 0;        // that statements gave
  int Scanned = 0;     // steps through tables without the help of an index
  int Statements = 0;  // that were run to their end

private:
  static int Take(unsigned type, void* context, void* statement, void* /*detail*/)
  {
    auto& self = *static_cast<StatementCounter*>(context);
    if (type == SQLITE_TRACE_ROW) {
      ++self.Rows;
    } else {
      ++self.Statements;
      self.Scanned += sqlite3_stmt_status(static_cast<sqlite3_stmt*>(statement), SQLITE_STMTSTATUS_FULLSCAN_STEP, 1);
    }
    return 0;
  }

  std::shared_ptr<Connection> connection_;
};
