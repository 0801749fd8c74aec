// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "charts/ChartRow.h"

#include <QObject>

// The rows of one query, read by a connection of its own to a database file. The file is
// open only while it is read, so that nobody ever finds it in use.
class DataControl : public QObject
{
  Q_OBJECT

public:
  using QObject::QObject;

  // The path of the database file.
  [[nodiscard]] const QString& ConnectionString() const { return connectionString_; }
  void SetConnectionString(const QString& path) { connectionString_ = path; }

  // A query of the program's dialect, of which the first two columns count: names, totals.
  [[nodiscard]] const QString& RecordSource() const { return recordSource_; }
  void SetRecordSource(const QString& query) { recordSource_ = query; }

  // Reads the rows as they stand in the file now. Throws StoreErrors, and then keeps the
  // rows it had.
  void Refresh();

  [[nodiscard]] const ChartRows& Rows() const { return rows_; }

Q_SIGNALS:
  void Refreshed();

private:
  [[nodiscard]] ChartRows Read() const;

  QString connectionString_;
  QString recordSource_;
  ChartRows rows_;
};
