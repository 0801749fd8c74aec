// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "store/Schema.h"

#include <QVariant>

#include <span>
#include <vector>

class Connection;

// Reads rows by key, live: what has changed in the file is seen. Rows asked for one
// after the other come in growing blocks, and only the columns in use are read.
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
  struct Row
  {
    qint64 key = 0;
    bool exists = false;
    std::vector<QVariant> values;  // by column; of those not wanted, nothing
  };

  const Row& Find(std::span<const qint64> keys);
  void Read(std::span<const qint64> keys);
  [[nodiscard]] Row* FindInBlock(qint64 key);
  [[nodiscard]] QString Sql(const std::vector<int>& columns) const;
  void Fill(std::vector<Row>& rows, const std::vector<int>& columns);
  void Want(int column);

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
  long long stamp_ = -1;
};
