// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <vector>

// What a column's values travel as.
enum class ColumnType
{
  kText,     // QString
  kInteger,  // qlonglong
  kYesNo,    // bool
  kDate,     // QDate
  kTime,     // QTime
};

struct ColumnSchema
{
  QString name;
  ColumnType type = ColumnType::kText;
};

// An index on one column.
struct IndexSchema
{
  QString name;
  QString column;
};

struct TableSchema
{
  QString name;
  QString key;  // the Counter column
  std::vector<ColumnSchema> columns;
  std::vector<IndexSchema> indexes;

  // Null if there is none of that name; case does not matter.
  [[nodiscard]] const ColumnSchema* FindColumn(const QString& column) const;
  [[nodiscard]] const IndexSchema* FindIndex(const QString& index) const;
};

// The name as the database writes it, quoted.
[[nodiscard]] QString QuoteName(const QString& name);
