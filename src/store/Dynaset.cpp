// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/Dynaset.h"

#include "store/Connection.h"
#include "store/Statement.h"
#include "store/StoreError.h"

#include <algorithm>
#include <unordered_set>

namespace {

bool IsPlainColumn(const Dialect::Expression& expression)
{
  return expression.size() == 1 && !expression.front().literal;
}

ColumnType TypeOf(const Dialect::Expression& expression, const TableSchema& table)
{
  const ColumnSchema* column = IsPlainColumn(expression) ? table.FindColumn(expression.front().text) : nullptr;
  return column == nullptr ? ColumnType::kText : column->type;
}

std::vector<QString> TranslateItems(const Dialect::Select& select, const TableSchema& table)
{
  std::vector<QString> expressions;
  for (const Dialect::Item& item : select.items) {
    expressions.push_back(Dialect::Translate(item.expression, table));
  }
  return expressions;
}

std::vector<ColumnType> TypesOfItems(const Dialect::Select& select, const TableSchema& table)
{
  std::vector<ColumnType> types;
  for (const Dialect::Item& item : select.items) {
    types.push_back(TypeOf(item.expression, table));
  }
  return types;
}

}

Dynaset::Dynaset(const std::shared_ptr<Connection>& connection, const Dialect::Select& select, const TableSchema& table,
                 RowCondition condition)
    : ListCursor(connection, table,
                 [&] {
                   std::vector<Column> columns;
                   for (const Dialect::Item& item : select.items) {
                     const bool plain = IsPlainColumn(item.expression);
                     columns.push_back(
                         {item.name, TypeOf(item.expression, table), plain ? item.expression.front().text : QString()});
                   }
                   return columns;
                 }()),
      condition_(std::move(condition)),
      expressions_(TranslateItems(select, table)),
      reader_(*connection, table, expressions_, TypesOfItems(select, table))
{
  ReadOrder(select);
}

void Dynaset::ReadOrder(const Dialect::Select& select)
{
  const QString key = QuoteName(Table().key);
  QStringList columns{key};
  std::vector<OrderingColumn> ordering;
  for (const Dialect::Expression& expression : select.order) {
    columns.append(Dialect::Translate(expression, Table()));
    ordering.push_back({TypeOf(expression, Table()), IsPlainColumn(expression)});
  }
  if (select.notNull) {
    condition_.sql +=
        QStringLiteral(" AND %1 IS NOT NULL").arg(Dialect::Translate({{*select.notNull, false}}, Table()));
  }
  openedAt_ = ChangeStamp();
  const QString sql = QStringLiteral("SELECT %1 FROM %2 WHERE %3 ORDER BY %4")
                          .arg(columns.join(QLatin1Char(',')), QuoteName(Table().name), condition_.sql, key);
  Connection::Order& last = Store().LastOrder();
  const bool keepsValues =
      std::any_of(ordering.begin(), ordering.end(), [](const OrderingColumn& column) { return column.kept; });
  const bool shared = !keepsValues && condition_.values.empty();
  if (shared && last.sql == sql && last.stamp == openedAt_) {
    keptFor_.assign(select.items.size(), -1);
    Begin(last.keys);
    return;
  }
  OrderedKeys ordered = ReadInOrder(Store(), sql, ordering, condition_.values);
  KeepValuesOf(select, ordered);
  if (shared) {
    last = {sql, openedAt_, ordered.keys};
  }
  Begin(std::move(ordered.keys));
}

void Dynaset::KeepValuesOf(const Dialect::Select& select, OrderedKeys& ordered)
{
  keptFor_.assign(select.items.size(), -1);
  for (std::size_t place = 0; place < select.order.size(); ++place) {
    const Dialect::Expression& expression = select.order[place];
    for (std::size_t column = 0; IsPlainColumn(expression) && column < select.items.size(); ++column) {
      if (Columns()[column].baseColumn.compare(expression.front().text, Qt::CaseInsensitive) == 0) {
        keptFor_[column] = static_cast<int>(kept_.size());
        kept_.push_back(std::move(ordered.kept[place]));
        break;
      }
    }
  }
}

bool Dynaset::NothingChanged()
{
  if (ChangeStamp() == openedAt_) {
    return true;
  }
  openedAt_ = -1;
  return false;
}

bool Dynaset::IsThere(qsizetype position)
{
  return NothingChanged() || reader_.Exists(std::span(Keys()).subspan(static_cast<std::size_t>(position)));
}

const QVariant& Dynaset::ReadValue(int column)
{
  const std::span<const qint64> ahead = Ahead();
  const int place = keptFor_[static_cast<std::size_t>(column)];
  if (place >= 0 && NothingChanged()) {
    const OrderedKeys::Kept& kept = kept_[static_cast<std::size_t>(place)];
    return kept.values[kept.which[static_cast<std::size_t>(Position())]];
  }
  const QVariant* value = reader_.Value(ahead, column);
  if (value == nullptr) {
    StoreError::Raise(StoreError::kRecordDeleted);
  }
  return *value;
}

void Dynaset::FindFirst(const QString& criteria)
{
  const Dialect::Criterion criterion = Dialect::ParseCriterion(criteria);
  const auto column = std::find_if(Columns().begin(), Columns().end(), [&](const Column& candidate) {
    return candidate.name.compare(criterion.column, Qt::CaseInsensitive) == 0;
  });
  if (column == Columns().end()) {
    StoreError::Raise(StoreError::kUnknownColumn, criterion.column);
  }
  const QString expression = expressions_[static_cast<std::size_t>(column - Columns().begin())];
  std::unordered_set<qint64> matches;
  Statement statement(Store(), QStringLiteral("SELECT %1 FROM %2 WHERE %3 AND (%4) = ? COLLATE TEXTORDER")
                                   .arg(QuoteName(Table().key), QuoteName(Table().name), condition_.sql, expression));
  int parameter = 0;
  for (const QVariant& value : condition_.values) {
    statement.Bind(++parameter, value);
  }
  statement.Bind(++parameter, criterion.text);
  while (statement.Step()) {
    matches.insert(statement.Integer(0));
  }
  const auto found = std::find_if(Keys().begin(), Keys().end(), [&](qint64 key) { return matches.contains(key); });
  SetNoMatch(found == Keys().end());
  if (!NoMatch()) {
    Visit(found - Keys().begin());
  }
}
