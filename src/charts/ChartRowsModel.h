// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "charts/ChartRow.h"

#include <QAbstractTableModel>

// The rows of a chart as a table of two columns, the name and the total, for the mappers
// that bind a series to it.
class ChartRowsModel : public QAbstractTableModel
{
  Q_OBJECT

public:
  static constexpr int kName = 0;
  static constexpr int kTotal = 1;

  using QAbstractTableModel::QAbstractTableModel;

  [[nodiscard]] const ChartRows& Rows() const { return rows_; }
  void SetRows(ChartRows rows);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
  ChartRows rows_;
};
