// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "charts/ChartRowsModel.h"

void ChartRowsModel::SetRows(ChartRows rows)
{
  beginResetModel();
  rows_ = std::move(rows);
  endResetModel();
}

int ChartRowsModel::rowCount(const QModelIndex& parent) const
{
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ChartRowsModel::columnCount(const QModelIndex& parent) const
{
  return parent.isValid() ? 0 : kTotal + 1;
}

QVariant ChartRowsModel::data(const QModelIndex& index, int role) const
{
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole)) {
    return {};
  }
  const ChartRow& row = rows_[static_cast<std::size_t>(index.row())];
  return index.column() == kName ? QVariant(row.name) : QVariant(row.total);
}
