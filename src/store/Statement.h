// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "store/Schema.h"

#include <QVariant>

#include <memory>
#include <string_view>

class Connection;
struct sqlite3_stmt;
struct sqlite3_value;

// One run of a prepared statement; it is reset when this goes.
class Statement
{
public:
  Statement(Connection& connection, const QString& sql);
  ~Statement();
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  // Gives the parameters their values, from 1 on; a null QVariant is Null.
  Statement& Bind(int parameter, const QVariant& value);

  // A value as it stands in the file, whatever it is; null for Null.
  using Exact = std::shared_ptr<sqlite3_value>;
  Statement& BindExact(int parameter, const Exact& value);

  // True while there is a row. Throws a StoreError.
  bool Step();

  // Runs again with the values bound so far.
  void Restart();

  enum class Kind
  {
    kNull,
    kNumber,
    kText,
  };

  // Columns of the row, from 0 on.
  [[nodiscard]] Kind KindOf(int column) const;
  [[nodiscard]] bool IsNull(int column) const;
  [[nodiscard]] bool IsNumber(int column) const;
  [[nodiscard]] qint64 Integer(int column) const;
  [[nodiscard]] double Number(int column) const;
  [[nodiscard]] std::string_view Bytes(int column) const;  // UTF-8, until the next step
  [[nodiscard]] QString Text(int column) const;
  [[nodiscard]] Exact ExactValue(int column) const;
  // As its type travels; a value that is not of that type as its text.
  [[nodiscard]] QVariant Value(int column, ColumnType type) const;

private:
  Connection& connection_;
  sqlite3_stmt* statement_;
};

// A text from a column of that type, as it travels.
[[nodiscard]] QVariant ValueFromText(const QString& text, ColumnType type);
