// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/RowReader.h"

#include "store/Connection.h"
#include "store/Statement.h"

#include <sqlite3.h>

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t kLargestBlock = 256;

// Holds the file's read lock over several statements.
class ReadLock
{
public:
  explicit ReadLock(Connection& connection) : connection_(connection)
  {
    if (sqlite3_get_autocommit(connection_.Handle()) != 0) {
      connection_.Execute("BEGIN");
      held_ = true;
    }
  }
  ~ReadLock()
  {
    if (held_) {
      sqlite3_exec(connection_.Handle(), "ROLLBACK", nullptr, nullptr, nullptr);
    }
  }
  ReadLock(const ReadLock&) = delete;
  ReadLock& operator=(const ReadLock&) = delete;

private:
  Connection& connection_;
  bool held_ = false;
};

}

RowReader::RowReader(Connection& connection, const TableSchema& table, std::vector<QString> expressions,
                     std::vector<ColumnType> types)
    : connection_(connection),
      changes_(connection.ChangesOf(table.name)),
      table_(QuoteName(table.name)),
      key_(QuoteName(table.key)),
      expressions_(std::move(expressions)),
      types_(std::move(types))
{}

bool RowReader::Exists(std::span<const qint64> keys)
{
  return Find(keys).exists;
}

const QVariant* RowReader::Value(std::span<const qint64> keys, int column)
{
  const Row& row = Find(keys);
  if (std::find(wanted_.begin(), wanted_.end(), column) == wanted_.end()) {
    Want(column);
  }
  return row.exists ? &row.values[static_cast<std::size_t>(column)] : nullptr;
}

// The values that were read before stay where they are.
void RowReader::Want(int column)
{
  Fill(block_, {column});
  wanted_.push_back(column);
}

const RowReader::Row& RowReader::Find(std::span<const qint64> keys)
{
  const long long stamp = connection_.ChangeStamp(changes_);
  if (stamp != stamp_) {
    retired_ = std::exchange(block_, {});
    stamp_ = stamp;
  }
  if (const Row* row = FindInBlock(keys.front())) {
    return *row;
  }
  const bool inSequence = keys.front() == expectedNext_;
  nextBlockSize_ = inSequence ? std::min(nextBlockSize_ * 2, kLargestBlock) : 1;
  const std::size_t size = std::min(nextBlockSize_, keys.size());
  expectedNext_ = size < keys.size() ? keys[size] : 0;
  Read(keys.first(size));
  lastFound_ = 0;
  return block_.front();
}

RowReader::Row* RowReader::FindInBlock(qint64 key)
{
  for (const std::size_t candidate : {lastFound_, lastFound_ + 1}) {
    if (candidate < block_.size() && block_[candidate].key == key) {
      lastFound_ = candidate;
      return &block_[candidate];
    }
  }
  const auto found = std::find_if(block_.begin(), block_.end(), [&](const Row& row) { return row.key == key; });
  if (found == block_.end()) {
    return nullptr;
  }
  lastFound_ = static_cast<std::size_t>(found - block_.begin());
  return &*found;
}

QString RowReader::Sql(const std::vector<int>& columns) const
{
  QStringList expressions;
  for (const int column : columns) {
    expressions.append(expressions_[static_cast<std::size_t>(column)]);
  }
  const QString list = expressions.isEmpty() ? QStringLiteral("1") : expressions.join(QLatin1Char(','));
  return QStringLiteral("SELECT %1 FROM %2 WHERE %3=?").arg(list, table_, key_);
}

void RowReader::Read(std::span<const qint64> keys)
{
  std::vector<Row> block(keys.size());
  for (std::size_t i = 0; i < keys.size(); ++i) {
    block[i].key = keys[i];
    block[i].values.resize(expressions_.size());
  }
  Fill(block, wanted_);
  block_ = std::move(block);
}

void RowReader::Fill(std::vector<Row>& rows, const std::vector<int>& columns)
{
  const ReadLock lock(connection_);
  Statement statement(connection_, Sql(columns));
  for (Row& row : rows) {
    statement.Bind(1, QVariant::fromValue<qlonglong>(row.key));
    row.exists = statement.Step();
    for (std::size_t place = 0; row.exists && place < columns.size(); ++place) {
      const auto column = static_cast<std::size_t>(columns[place]);
      row.values[column] = statement.Value(static_cast<int>(place), types_[column]);
    }
    statement.Restart();
  }
}
