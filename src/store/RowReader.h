// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "store/Schema.h"

#include <QVarLengthArray>
#include <QVariant>

#include <span>
#include <vector>

class Connection;
class Statement;

// Reads rows by key, live: what has changed in the file is seen. Rows asked for one
// after the other come in growing blocks, a long walk over few columns in one pass over
// the table, and only the columns in use are read.
class RowReader
{
public:
  // `expressions` are the columns in SQLite's own words, `types` what they travel as.
  RowReader(Connection& connection, const TableSchema& table, std::vector<QString> expressions,
            std::vector<ColumnType> types);

  // The row of `keys.front()`; the rest of `keys` is what may be asked for next.
  // Null if the row is gone. A value stays good while its row and rows near it are asked for.
  [[nodiscard]] bool Exists(std::span<const qint64> keys);
  [[nodiscard]] const QVariant* Value(std::span<const qint64> keys, int column);

private:
  static constexpr std::size_t kColumnsOfLongWalk = 3;

  struct Row
  {
    qint64 key = 0;
    bool exists = false;
    QVarLengthArray<QVariant, kColumnsOfLongWalk> values;  // in the order of the columns wanted
  };

  const Row& Find(std::span<const qint64> keys);
  void Read(std::span<const qint64> keys);
  void ReadTable(std::span<const qint64> keys);
  void TakeBlock(std::vector<Row> block);
  [[nodiscard]] bool IsLongWalk(std::size_t keysLeft) const;
  [[nodiscard]] Row* FindInBlock(qint64 key);
  [[nodiscard]] QString Columns(const std::vector<int>& columns) const;
  void Fill(std::vector<Row>& rows, const std::vector<int>& columns, std::size_t firstSlot);
  void FillRow(Row& row, const Statement& statement, const std::vector<int>& columns, std::size_t firstSlot) const;
  [[nodiscard]] std::size_t SlotFor(int column);

  Connection& connection_;
  const long long& changes_;
  QString table_;
  QString key_;
  std::vector<QString> expressions_;
  std::vector<ColumnType> types_;
  std::vector<int> wanted_;
  std::vector<Row> block_;
  std::vector<Row> retired_;  // read before the last change; values may still be looked at
  std::size_t lastFound_ = 0;
  qint64 expectedNext_ = 0;
  std::size_t nextBlockSize_ = 1;
  int largestBlocks_ = 0;   // read one after the other
  bool fromTable_ = false;  // block_ was read in one pass over the table
  long long stamp_ = -1;
};
