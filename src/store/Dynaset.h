// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "store/Dialect.h"
#include "store/ListCursor.h"
#include "store/OrderedKeys.h"
#include "store/RowReader.h"

// What rows must fulfil besides their query, in SQLite's words.
struct RowCondition
{
  QString sql = QStringLiteral("TRUE");
  std::vector<QVariant> values;
};

// An updatable cursor over a query. The order of its rows is settled when it is opened;
// their contents are read live. A row added through it stands at its end, a row that
// was deleted by whomever vanishes.
class Dynaset : public ListCursor
{
public:
  Dynaset(const std::shared_ptr<Connection>& connection, const Dialect::Select& select, const TableSchema& table,
          RowCondition condition = {});

  void FindFirst(const QString& criteria) override;

protected:
  [[nodiscard]] bool IsThere(qsizetype position) override;
  [[nodiscard]] const QVariant& ReadValue(int column) override;

private:
  void ReadOrder(const Dialect::Select& select);
  void KeepValuesOf(const Dialect::Select& select, OrderedKeys& ordered);
  [[nodiscard]] bool NothingChanged();

  RowCondition condition_;
  std::vector<QString> expressions_;  // of the columns, in SQLite's words
  RowReader reader_;
  std::vector<OrderedKeys::Kept> kept_;
  std::vector<int> keptFor_;  // by column: its place in kept_, or -1
  long long openedAt_ = 0;
};
