// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/Database.h"

#include "store/Connection.h"
#include "store/Dynaset.h"
#include "store/Snapshot.h"
#include "store/StoreError.h"
#include "store/TableCursor.h"

#include <algorithm>

namespace {

// A group is in an order already, and what is counted must be grouped.
Dialect::Select ParseAnswerable(const QString& query)
{
  Dialect::Select select = Dialect::ParseSelect(query);
  if (select.group && !select.order.empty()) {
    StoreError::Raise(StoreError::kSyntax, QStringLiteral("ORDER"));
  }
  const auto isCounted = [](const Dialect::Item& item) { return item.counted; };
  if (!select.group && std::any_of(select.items.begin(), select.items.end(), isCounted)) {
    StoreError::Raise(StoreError::kSyntax, QStringLiteral("Count"));
  }
  return select;
}

}

Database::Database(const QString& path) : connection_(Connection::To(path)) {}

Database::~Database() = default;
Database::Database(Database&&) noexcept = default;
Database& Database::operator=(Database&&) noexcept = default;

void Database::MustBeOpen() const
{
  if (!connection_) {
    StoreError::Raise(StoreError::kClosed);
  }
}

std::unique_ptr<Recordset> Database::OpenRange(const QString& query, const Range& range)
{
  MustBeOpen();
  const Dialect::Select select = Dialect::ParseSelect(query);
  const TableSchema& table = connection_->Table(select.table);
  const QString column = Dialect::Translate({{range.column, false}}, table);
  const RowCondition within{QStringLiteral("%1 BETWEEN ? AND ?").arg(column), {range.first, range.last}};
  return std::make_unique<Dynaset>(connection_, select, table, within);
}

std::unique_ptr<Recordset> Database::OpenRecordset(const QString& source, int kind)
{
  MustBeOpen();
  if (kind == kTable) {
    return std::make_unique<TableCursor>(connection_, connection_->Table(source));
  }
  const Dialect::Select select = ParseAnswerable(source);
  const TableSchema& table = connection_->Table(select.table);
  if (select.group) {
    return std::make_unique<Snapshot>(connection_, select, table);
  }
  return std::make_unique<Dynaset>(connection_, select, table);
}

QString Database::Translate(const QString& query)
{
  MustBeOpen();
  const Dialect::Select select = ParseAnswerable(query);
  return Dialect::Translate(select, connection_->Table(select.table));
}

void Database::Close()
{
  connection_.reset();
}
