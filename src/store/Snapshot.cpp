// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/Snapshot.h"

#include "store/Statement.h"

#include <numeric>

Snapshot::Snapshot(const std::shared_ptr<Connection>& connection, const Dialect::Select& select,
                   const TableSchema& table)
    : ListCursor(connection, table, [&] {
        std::vector<Column> columns;
        for (const Dialect::Item& item : select.items) {
          columns.push_back({item.name, item.counted ? ColumnType::kInteger : ColumnType::kText, {}});
        }
        return columns;
      }())
{
  Statement statement(*connection, Dialect::Translate(select, table));
  while (statement.Step()) {
    std::vector<QVariant> row;
    for (std::size_t column = 0; column < Columns().size(); ++column) {
      row.push_back(statement.Value(static_cast<int>(column), Columns()[column].type));
    }
    rows_.push_back(std::move(row));
  }
  std::vector<qint64> positions(rows_.size());
  std::iota(positions.begin(), positions.end(), 0);
  Begin(std::move(positions));
}

bool Snapshot::IsThere(qsizetype)
{
  return true;
}

const QVariant& Snapshot::ReadValue(int column)
{
  return rows_[static_cast<std::size_t>(Ahead().front())][static_cast<std::size_t>(column)];
}

bool Snapshot::IsUpdatable() const
{
  return false;
}
