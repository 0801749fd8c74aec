// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/SchemaReader.h"

#include "store/Statement.h"
#include "store/StoreError.h"

namespace {

ColumnType TypeNamed(const QString& declared)
{
  const QString name = declared.toUpper();
  if (name == QLatin1String("INTEGER") || name == QLatin1String("SMALLINT")) {
    return ColumnType::kInteger;
  }
  if (name == QLatin1String("BOOLEAN")) {
    return ColumnType::kYesNo;
  }
  if (name == QLatin1String("DATE")) {
    return ColumnType::kDate;
  }
  return name == QLatin1String("TIME") ? ColumnType::kTime : ColumnType::kText;
}

// A view, or a table that a program makes up, may have rows without end.
bool IsPlainTable(Connection& connection, const QString& name)
{
  Statement statement(connection, QStringLiteral("PRAGMA main.table_list(%1)").arg(QuoteName(name)));
  return statement.Step() && statement.Text(2) == QLatin1String("table");
}

void ReadColumns(Connection& connection, TableSchema& table)
{
  Statement statement(connection, QStringLiteral("PRAGMA table_info(%1)").arg(QuoteName(table.name)));
  while (statement.Step()) {
    const QString name = statement.Text(1);
    const ColumnType type = TypeNamed(statement.Text(2));
    table.columns.push_back({name, type});
    if (statement.Integer(5) == 1 && type == ColumnType::kInteger) {
      table.key = name;
    }
  }
}

void ReadIndexes(Connection& connection, TableSchema& table)
{
  std::vector<QString> names;
  {
    Statement statement(connection, QStringLiteral("PRAGMA index_list(%1)").arg(QuoteName(table.name)));
    while (statement.Step()) {
      names.push_back(statement.Text(1));
      if (statement.Text(3) == QLatin1String("pk")) {
        table.key.clear();  // a key that is kept apart may be no number
      }
    }
  }
  for (const QString& name : names) {
    Statement statement(connection, QStringLiteral("PRAGMA index_info(%1)").arg(QuoteName(name)));
    if (statement.Step()) {
      table.indexes.push_back({name, statement.Text(2)});
    }
  }
}

// The name of a table's own numbers that no column takes.
QString RowNumberOf(const TableSchema& table)
{
  for (const QString& name : {QStringLiteral("rowid"), QStringLiteral("_rowid_"), QStringLiteral("oid")}) {
    if (table.FindColumn(name) == nullptr) {
      return name;
    }
  }
  StoreError::Raise(StoreError::kUnknownTable, table.name);
}

}

TableSchema ReadTableSchema(Connection& connection, const QString& name)
{
  TableSchema table;
  table.name = name;
  if (!IsPlainTable(connection, name)) {
    StoreError::Raise(StoreError::kUnknownTable, name);
  }
  ReadColumns(connection, table);
  ReadIndexes(connection, table);
  if (table.key.isEmpty()) {
    table.key = RowNumberOf(table);
  }
  return table;
}
