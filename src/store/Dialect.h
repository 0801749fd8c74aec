// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "store/Schema.h"

#include <optional>

// The program's own query dialect: what it may say, taken apart. Whatever is not
// understood is refused with a RuntimeError of number 3075.
namespace Dialect {

// A column, or a text literal.
struct Operand
{
  QString text;
  bool literal = false;
};

// Operands joined by "&"; Null joins as nothing. A single column is itself, Null included.
using Expression = std::vector<Operand>;

struct Item
{
  Expression expression;
  bool counted = false;  // Count(column)
  QString name;          // after AS, or the column's own
};

struct Select
{
  QString table;
  std::vector<Item> items;
  std::optional<QString> notNull;  // WHERE Not IsNull(column)
  std::optional<QString> group;
  std::vector<Expression> order;
};

// column = 'text'
struct Criterion
{
  QString column;
  QString text;
};

[[nodiscard]] Select ParseSelect(const QString& sql);
[[nodiscard]] Criterion ParseCriterion(const QString& criterion);

// The expression for SQLite. Throws 3061 for a column that the table has not.
[[nodiscard]] QString Translate(const Expression& expression, const TableSchema& table);

// The query for SQLite, on a connection that knows TEXTORDER. Groups come in the order of
// their texts, other rows by their key where the query does not say.
[[nodiscard]] QString Translate(const Select& select, const TableSchema& table);

}
