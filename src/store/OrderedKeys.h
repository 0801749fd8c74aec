// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "store/Schema.h"

#include <QVariant>

#include <cstdint>
#include <vector>

class Connection;

// What a query's ordering has read: the keys in order, and the values of the
// columns it is ordered by, so that a walk need not read them again.
struct OrderedKeys
{
  // One value for each row, stored once for all rows that share it.
  struct Kept
  {
    std::vector<std::uint32_t> which;  // by position
    std::vector<QVariant> values;
  };

  std::vector<qint64> keys;
  std::vector<Kept> kept;  // one an ordering column
};

// Runs `sql` with values for its `parameters`, which gives a key and then one for each of `columns`, in the order
// of keys, and puts the rows into the order of these columns: Null first, then numbers,
// then texts by TextOrder, equal ones by key.
// Values are kept of those columns that are `kept`.
struct OrderingColumn
{
  ColumnType type = ColumnType::kText;
  bool kept = false;
};

[[nodiscard]] OrderedKeys ReadInOrder(Connection& connection, const QString& sql,
                                      const std::vector<OrderingColumn>& columns,
                                      const std::vector<QVariant>& parameters = {});
