// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Command.h"
#include "store/Schema.h"

#include <map>
#include <memory>
#include <unordered_map>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

// The one connection to a database file, shared by all databases open on it.
// Failures are thrown as RuntimeErrors of StoreError.
class Connection : public std::enable_shared_from_this<Connection>, private Command::Participant
{
public:
  // The open connection to `path`, or a new one. The file must exist and be a database.
  static std::shared_ptr<Connection> To(const QString& path);

  ~Connection() override;
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  // How many databases are open on the file at `path`.
  static long UsersOf(const QString& path);

  [[nodiscard]] sqlite3* Handle() const { return handle_; }

  // A prepared statement, reset and without values; owned by the connection.
  sqlite3_stmt* Prepare(const QString& sql);

  // Runs SQL that gives no rows.
  void Execute(const char* sql);

  // Opens the transaction of the running command, if there is one, before a write.
  void BeginWrite();

  // To be called after a write that failed. If all of the command's writes are lost with
  // it, the command can write no more.
  void WriteFailed();

  // The count of changes that cursors have made to a table, kept up from here on.
  [[nodiscard]] const long long& ChangesOf(const QString& table);
  void CountChange(const QString& table);

  // Another number after each change to the table that `changes` counts, by whomever.
  // Changes by other programs are seen from the next command on.
  long long ChangeStamp(const long long& changes);

  [[nodiscard]] const TableSchema& Table(const QString& name);

  // The keys that a query's ordering gave last, for the next cursor of the same order.
  struct Order
  {
    QString sql;
    long long stamp = -1;  // of the table, when it was read
    std::vector<qint64> keys;
  };
  [[nodiscard]] Order& LastOrder() { return lastOrder_; }

private:
  explicit Connection(const QString& path);

  void Open(const QString& path);
  void Settle() override;
  void Abandon() noexcept override;
  void RollBack() noexcept;
  void LookForOutsideChanges();

  sqlite3* handle_ = nullptr;
  std::unordered_map<std::string, sqlite3_stmt*> statements_;
  std::map<QString, TableSchema> tables_;
  std::shared_ptr<Connection> keptForCommand_;  // while a transaction is open
  long commandSeen_ = -1;
  int outsideVersion_ = 0;
  bool keepsToOneFile_ = false;  // set at the first write, since it may change the file itself
  bool lost_ = false;            // the running command's writes, by a failure
  std::map<QString, long long> changes_;
  long long epoch_ = 0;
  Order lastOrder_;
};
