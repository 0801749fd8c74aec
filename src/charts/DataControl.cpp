// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "charts/DataControl.h"

#include "store/ConnectionSetup.h"
#include "store/DBEngine.h"
#include "store/StoreError.h"

#include <QScopeGuard>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>

#include <cmath>

namespace {

[[noreturn]] void Raise(const QSqlError& error)
{
  StoreError::RaiseFor(error.nativeErrorCode().toInt());
}

void Open(QSqlDatabase& database, const QString& path)
{
  database.setDatabaseName(path);
  database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
  if (!database.open()) {
    Raise(database.lastError());
  }
  const QVariant handle = database.driver()->handle();
  SetUpConnection(*static_cast<sqlite3* const*>(handle.constData()));
}

// Whatever is no count draws nothing.
double TotalIn(const QVariant& value)
{
  const double total = value.toDouble();
  return std::isfinite(total) && total > 0 ? total : 0;
}

// Names stand on one line.
QString NameIn(const QVariant& value)
{
  return value.toString().replace(QLatin1Char('\n'), QLatin1Char(' '));
}

ChartRows Run(const QSqlDatabase& database, const QString& sql)
{
  QSqlQuery query(database);
  query.setForwardOnly(true);
  if (!query.exec(sql)) {
    Raise(query.lastError());
  }
  ChartRows rows;
  while (query.next()) {
    rows.push_back({NameIn(query.value(0)), TotalIn(query.value(1))});
  }
  if (query.lastError().isValid()) {
    Raise(query.lastError());
  }
  return rows;
}

}

void DataControl::Refresh()
{
  rows_ = Read();
  Q_EMIT Refreshed();
}

ChartRows DataControl::Read() const
{
  const QString sql = DBEngine::Workspaces(0).OpenDatabase(connectionString_).Translate(recordSource_);
  const QString name = QUuid::createUuid().toString();
  const auto forget = qScopeGuard([&] { QSqlDatabase::removeDatabase(name); });
  QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
  Open(database, connectionString_);
  return Run(database, sql);
}
