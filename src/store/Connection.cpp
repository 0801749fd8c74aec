// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/Connection.h"

#include "store/ConnectionSetup.h"
#include "store/SchemaReader.h"
#include "store/StoreError.h"

#include <QFile>
#include <QFileInfo>

#include <optional>
#include <sqlite3.h>
#include <sys/stat.h>

namespace {

using FileIdentity = std::pair<dev_t, ino_t>;

std::map<FileIdentity, std::weak_ptr<Connection>>& OpenConnections()
{
  static std::map<FileIdentity, std::weak_ptr<Connection>> connections;
  return connections;
}

// Which file stands at the path now: another one under the same name is another.
std::optional<FileIdentity> IdentityOf(const QString& path)
{
  struct stat status = {};
  if (stat(QFile::encodeName(path).constData(), &status) != 0) {
    return std::nullopt;
  }
  return FileIdentity(status.st_dev, status.st_ino);
}

}

std::shared_ptr<Connection> Connection::To(const QString& path)
{
  const std::optional<FileIdentity> identity = IdentityOf(path);
  if (!identity) {
    StoreError::Raise(StoreError::kFileNotFound, path);
  }
  // A pipe would be waited for, a folder be taken for a file that cannot be written.
  if (!QFileInfo(path).isFile()) {
    StoreError::Raise(StoreError::kNotADatabase);
  }
  std::weak_ptr<Connection>& known = OpenConnections()[*identity];
  std::shared_ptr<Connection> connection = known.lock();
  if (!connection) {
    connection.reset(new Connection(path));
    known = connection;
  }
  return connection;
}

long Connection::UsersOf(const QString& path)
{
  const std::optional<FileIdentity> identity = IdentityOf(path);
  const auto found = identity ? OpenConnections().find(*identity) : OpenConnections().end();
  return found == OpenConnections().end() ? 0 : found->second.use_count();
}

Connection::Connection(const QString& path)
{
  try {
    Open(path);
  } catch (const RuntimeError&) {
    sqlite3_close_v2(handle_);
    throw;
  }
}

// The program lives on one thread, so the connection needs no locks of its own.
void Connection::Open(const QString& path)
{
  constexpr int kFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
  if (sqlite3_open_v2(path.toUtf8().constData(), &handle_, kFlags, nullptr) != SQLITE_OK) {
    StoreError::RaiseFor(handle_);
  }
  SetUpConnection(handle_);
  Execute("SELECT count(*) FROM sqlite_master");
  if (QFile(path).size() == 0) {
    StoreError::Raise(StoreError::kNotADatabase);
  }
  if (sqlite3_db_readonly(handle_, "main") != 0) {
    StoreError::Raise(StoreError::kReadOnly);
  }
  Execute("PRAGMA synchronous = FULL");
}

Connection::~Connection()
{
  Command::Withdraw(*this);
  RollBack();
  for (const auto& [sql, statement] : statements_) {
    sqlite3_finalize(statement);
  }
  sqlite3_close_v2(handle_);
}

sqlite3_stmt* Connection::Prepare(const QString& sql)
{
  const std::string text = sql.toStdString();
  sqlite3_stmt*& statement = statements_[text];
  if (statement == nullptr &&
      sqlite3_prepare_v3(handle_, text.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) != SQLITE_OK) {
    statements_.erase(text);
    StoreError::RaiseFor(handle_);
  }
  return statement;
}

void Connection::Execute(const char* sql)
{
  if (sqlite3_exec(handle_, sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
    StoreError::RaiseFor(handle_);
  }
}

void Connection::BeginWrite()
{
  if (lost_ && Command::IsRunning()) {
    StoreError::Raise(StoreError::kDiskFull);
  }
  if (!keepsToOneFile_ && sqlite3_get_autocommit(handle_) != 0) {
    Execute("PRAGMA journal_mode = DELETE");
    keepsToOneFile_ = true;
  }
  if (Command::IsRunning() && sqlite3_get_autocommit(handle_) != 0) {
    Execute("BEGIN IMMEDIATE");
    Command::Enlist(*this);
    keptForCommand_ = shared_from_this();
  }
}

// A full disk takes the whole transaction back, not only the statement.
void Connection::WriteFailed()
{
  if (sqlite3_get_autocommit(handle_) != 0) {
    lost_ = keptForCommand_ != nullptr;
    ++epoch_;
  }
}

void Connection::Settle()
{
  lost_ = false;
  const std::shared_ptr<Connection> kept = std::exchange(keptForCommand_, nullptr);
  if (sqlite3_get_autocommit(handle_) != 0) {
    return;
  }
  if (sqlite3_exec(handle_, "COMMIT", nullptr, nullptr, nullptr) != SQLITE_OK) {
    const int number = sqlite3_extended_errcode(handle_);
    RollBack();
    StoreError::RaiseFor(number);
  }
}

void Connection::Abandon() noexcept
{
  lost_ = false;
  const std::shared_ptr<Connection> kept = std::exchange(keptForCommand_, nullptr);
  RollBack();
}

void Connection::RollBack() noexcept
{
  if (sqlite3_get_autocommit(handle_) == 0) {
    sqlite3_exec(handle_, "ROLLBACK", nullptr, nullptr, nullptr);
    ++epoch_;
  }
}

const long long& Connection::ChangesOf(const QString& table)
{
  return changes_[table.toCaseFolded()];
}

void Connection::CountChange(const QString& table)
{
  ++changes_[table.toCaseFolded()];
}

long long Connection::ChangeStamp(const long long& changes)
{
  if (!Command::IsRunning() || commandSeen_ != Command::Serial()) {
    LookForOutsideChanges();
    commandSeen_ = Command::Serial();
  }
  return changes + (epoch_ << 40);
}

void Connection::LookForOutsideChanges()
{
  sqlite3_stmt* statement = Prepare(QStringLiteral("PRAGMA data_version"));
  if (sqlite3_step(statement) == SQLITE_ROW && sqlite3_column_int(statement, 0) != outsideVersion_) {
    outsideVersion_ = sqlite3_column_int(statement, 0);
    ++epoch_;
  }
  sqlite3_reset(statement);
}

const TableSchema& Connection::Table(const QString& name)
{
  const QString folded = name.toCaseFolded();
  const auto known = tables_.find(folded);
  if (known != tables_.end()) {
    return known->second;
  }
  return tables_.emplace(folded, ReadTableSchema(*this, name)).first->second;
}
