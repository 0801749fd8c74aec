// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "store/Recordset.h"

class Connection;

// An open database file. It closes with Close or when it goes; the cursors opened on
// it keep the file open for themselves. All failures are StoreErrors.
class Database
{
public:
  static constexpr int kTable = 1;
  static constexpr int kDynaset = 2;

  explicit Database(const QString& path);
  ~Database();
  Database(Database&&) noexcept;
  Database& operator=(Database&&) noexcept;

  // A cursor over a table by name (kTable), or over one of the program's queries (kDynaset).
  [[nodiscard]] std::unique_ptr<Recordset> OpenRecordset(const QString& source, int kind);

  // A dynaset over those rows of a query alone whose column lies from `first` to `last`.
  // Other rows are not read where the column has an index. Throws 3061 for an unknown column.
  struct Range
  {
    QString column;
    QVariant first;
    QVariant last;
  };
  [[nodiscard]] std::unique_ptr<Recordset> OpenRange(const QString& query, const Range& range);

  // A query in SQLite's words, for another connection to the file that knows TEXTORDER.
  [[nodiscard]] QString Translate(const QString& query);

  void Close();

private:
  void MustBeOpen() const;

  std::shared_ptr<Connection> connection_;
};
