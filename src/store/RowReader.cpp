// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/RowReader.h"

#include "store/Connection.h"
#include "store/Statement.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace {

constexpr std::size_t kLargestBlock = 256;
constexpr int kBlocksOfLongWalk = 4;

// The texts that a column had lately, so that a text that repeats is kept once.
class LatelyRead
{
public:
  QVariant Value(const Statement& statement, int place, ColumnType type)
  {
    if (statement.KindOf(place) != Statement::Kind::kText) {
      return statement.Value(place, type);
    }
    const std::string_view bytes = statement.Bytes(place);
    for (const auto& [text, value] : texts_) {
      if (text == bytes) {
        return value;
      }
    }
    QVariant value = statement.Value(place, type);
    if (bytes.size() < kShort) {
      texts_[next_++ % texts_.size()] = {std::string(bytes), value};
    }
    return value;
  }

private:
  static constexpr std::size_t kShort = 12;
  std::array<std::pair<std::string, QVariant>, 4> texts_;
  std::size_t next_ = 0;
};

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
  const Row* row = &Find(keys);
  const auto slot = static_cast<qsizetype>(SlotFor(column));
  if (slot >= row->values.size()) {
    row = &Find(keys);
  }
  return row->exists ? &row->values[slot] : nullptr;
}

// A column that was not wanted before is read for the block at hand. The values that
// were read before stay where they are.
std::size_t RowReader::SlotFor(int column)
{
  const auto known = std::find(wanted_.begin(), wanted_.end(), column);
  const auto slot = static_cast<std::size_t>(known - wanted_.begin());
  if (known != wanted_.end()) {
    return slot;
  }
  if (fromTable_) {
    TakeBlock({});
  } else {
    Fill(block_, {column}, slot);
  }
  wanted_.push_back(column);
  return slot;
}

void RowReader::TakeBlock(std::vector<Row> block)
{
  if (fromTable_) {
    retired_ = std::exchange(block_, {});
  }
  block_ = std::move(block);
  fromTable_ = false;
  lastFound_ = 0;
}

const RowReader::Row& RowReader::Find(std::span<const qint64> keys)
{
  const long long stamp = connection_.ChangeStamp(changes_);
  if (stamp != stamp_) {
    retired_ = std::exchange(block_, {});
    fromTable_ = false;
    stamp_ = stamp;
  }
  if (const Row* row = FindInBlock(keys.front())) {
    return *row;
  }
  const bool inSequence = keys.front() == expectedNext_;
  largestBlocks_ = inSequence && nextBlockSize_ == kLargestBlock ? largestBlocks_ + 1 : 0;
  nextBlockSize_ = inSequence ? std::min(nextBlockSize_ * 2, kLargestBlock) : 1;
  if (IsLongWalk(keys.size())) {
    ReadTable(keys);
    return block_.front();
  }
  const std::size_t size = std::min(nextBlockSize_, keys.size());
  expectedNext_ = size < keys.size() ? keys[size] : 0;
  Read(keys.first(size));
  return block_.front();
}

// What is left must be worth reading all of the table.
bool RowReader::IsLongWalk(std::size_t keysLeft) const
{
  return largestBlocks_ >= kBlocksOfLongWalk && keysLeft > kBlocksOfLongWalk * kLargestBlock &&
         wanted_.size() <= kColumnsOfLongWalk;
}

RowReader::Row* RowReader::FindInBlock(qint64 key)
{
  for (const std::size_t candidate : {lastFound_, lastFound_ + 1}) {
    if (candidate < block_.size() && block_[candidate].key == key) {
      lastFound_ = candidate;
      return &block_[candidate];
    }
  }
  if (fromTable_) {
    TakeBlock({});
    return nullptr;
  }
  const auto found = std::find_if(block_.begin(), block_.end(), [&](const Row& row) { return row.key == key; });
  if (found == block_.end()) {
    return nullptr;
  }
  lastFound_ = static_cast<std::size_t>(found - block_.begin());
  return &*found;
}

QString RowReader::Columns(const std::vector<int>& columns) const
{
  QStringList expressions{key_};
  for (const int column : columns) {
    expressions.append(expressions_[static_cast<std::size_t>(column)]);
  }
  return expressions.join(QLatin1Char(','));
}

void RowReader::Read(std::span<const qint64> keys)
{
  std::vector<Row> block(keys.size());
  for (std::size_t i = 0; i < keys.size(); ++i) {
    block[i].key = keys[i];
  }
  Fill(block, wanted_, 0);
  TakeBlock(std::move(block));
}

void RowReader::Fill(std::vector<Row>& rows, const std::vector<int>& columns, std::size_t firstSlot)
{
  const ReadLock lock(connection_);
  Statement statement(connection_, QStringLiteral("SELECT %1 FROM %2 WHERE %3=?").arg(Columns(columns), table_, key_));
  for (Row& row : rows) {
    row.values.reserve(static_cast<qsizetype>(expressions_.size()));
    statement.Bind(1, QVariant::fromValue<qlonglong>(row.key));
    row.exists = statement.Step();
    FillRow(row, statement, columns, firstSlot);
    statement.Restart();
  }
}

// A row that a failure left half filled is filled from the same slot again.
void RowReader::FillRow(Row& row, const Statement& statement, const std::vector<int>& columns,
                        std::size_t firstSlot) const
{
  row.values.resize(static_cast<qsizetype>(firstSlot));
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const ColumnType type = types_[static_cast<std::size_t>(columns[i])];
    row.values.push_back(row.exists ? statement.Value(static_cast<int>(i) + 1, type) : QVariant());
  }
}

// All of `keys`, each found as the pass over the table comes to it.
void RowReader::ReadTable(std::span<const qint64> keys)
{
  std::vector<std::pair<qint64, std::size_t>> places;
  std::vector<Row> block(keys.size());
  for (std::size_t i = 0; i < keys.size(); ++i) {
    block[i].key = keys[i];
    places.emplace_back(keys[i], i);
  }
  std::sort(places.begin(), places.end());
  Statement statement(connection_, QStringLiteral("SELECT %1 FROM %2 ORDER BY %3").arg(Columns(wanted_), table_, key_));
  std::vector<LatelyRead> lately(wanted_.size());
  auto place = places.begin();
  while (place != places.end() && statement.Step()) {
    const qint64 key = statement.Integer(0);
    place = std::find_if(place, places.end(), [&](const auto& candidate) { return candidate.first >= key; });
    if (place != places.end() && place->first == key) {
      Row& row = block[place->second];
      row.exists = true;
      for (std::size_t i = 0; i < wanted_.size(); ++i) {
        const ColumnType type = types_[static_cast<std::size_t>(wanted_[i])];
        row.values.append(lately[i].Value(statement, static_cast<int>(i) + 1, type));
      }
    }
  }
  TakeBlock(std::move(block));
  fromTable_ = true;
}
