// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/TableCursor.h"

#include "store/Connection.h"
#include "store/Statement.h"
#include "store/StoreError.h"

#include <algorithm>

namespace {

constexpr int kLargestWindow = 256;

std::vector<QString> ColumnNames(const TableSchema& table)
{
  std::vector<QString> names;
  for (const ColumnSchema& column : table.columns) {
    names.push_back(QuoteName(column.name));
  }
  return names;
}

std::vector<ColumnType> ColumnTypes(const TableSchema& table)
{
  std::vector<ColumnType> types;
  for (const ColumnSchema& column : table.columns) {
    types.push_back(column.type);
  }
  return types;
}

}

TableCursor::TableCursor(const std::shared_ptr<Connection>& connection, const TableSchema& table)
    : Recordset(connection, table,
                [&] {
                  std::vector<Column> columns;
                  for (const ColumnSchema& column : table.columns) {
                    columns.push_back({column.name, column.type, column.name});
                  }
                  return columns;
                }()),
      reader_(*connection, table, ColumnNames(table), ColumnTypes(table))
{
  StandOnOutermost(Direction::kForward);
}

// Parameters: the indexed value, the key, the limit. In a damaged file an index may lead to
// rows that are not behind the place they are looked for from: the conditions with a sign
// are asked of the rows themselves, so that a walk always comes to its end.
QString TableCursor::PhaseSql(Direction direction, bool nulls, bool bounded) const
{
  const bool forward = direction == Direction::kForward;
  const QString key = QuoteName(Table().key);
  const QString comparison = forward ? QStringLiteral(">") : QStringLiteral("<");
  const QString order = forward ? QStringLiteral("ASC") : QStringLiteral("DESC");
  const bool byIndex = !indexColumn_.isEmpty() && !nulls;
  QStringList conditions;
  if (!indexColumn_.isEmpty()) {
    conditions.append(indexColumn_ + (nulls ? QLatin1String(" IS NULL") : QLatin1String(" IS NOT NULL")));
  }
  if (bounded) {
    conditions.append(
        byIndex ? QStringLiteral("(%1,%2) %3 (?1,?2) AND (+%1,+%2) %3 (?1,?2)").arg(indexColumn_, key, comparison)
                : QStringLiteral("%1 %2 ?2 AND +%1 %2 ?2").arg(key, comparison));
  }
  return QStringLiteral("SELECT %1,%2 FROM %3%4%5 ORDER BY %6%1 %7 LIMIT ?3")
      .arg(key, indexColumn_.isEmpty() ? QStringLiteral("NULL") : indexColumn_, QuoteName(Table().name),
           conditions.isEmpty() ? QString() : QStringLiteral(" WHERE "), conditions.join(QLatin1String(" AND ")),
           byIndex ? QStringLiteral("%1 %2,").arg(indexColumn_, order) : QString(), order);
}

std::vector<TableCursor::Place> TableCursor::ReadPhase(Direction direction, bool nulls,
                                                       const std::optional<Place>& from, int limit)
{
  Statement statement(Store(), PhaseSql(direction, nulls, from.has_value()));
  if (from) {
    statement.BindExact(1, from->indexed).Bind(2, from->key);
  }
  statement.Bind(3, limit);
  std::vector<Place> places;
  while (statement.Step()) {
    places.push_back({statement.ExactValue(1), statement.Integer(0)});
  }
  return places;
}

// Without an index all rows are of one phase; with one, those with Null come before
// the others, which a comparison with Null could not tell.
std::vector<TableCursor::Place> TableCursor::ReadPlaces(Direction direction, const std::optional<Place>& from,
                                                        int limit)
{
  const bool nullsFirst = direction == Direction::kForward;
  const bool fromNull = from && !from->indexed;
  std::vector<Place> places;
  if (indexColumn_.isEmpty()) {
    return ReadPhase(direction, true, from, limit);
  }
  for (const bool nulls : {nullsFirst, !nullsFirst}) {
    const bool passed = from && nulls == nullsFirst && fromNull != nulls;
    const int missing = limit - static_cast<int>(places.size());
    if (passed || missing <= 0) {
      continue;
    }
    const bool bounded = from && fromNull == nulls;
    for (Place& place : ReadPhase(direction, nulls, bounded ? from : std::nullopt, missing)) {
      places.push_back(std::move(place));
    }
  }
  return places;
}

std::optional<TableCursor::Place> TableCursor::PlaceOf(qint64 key)
{
  const QString column = indexColumn_.isEmpty() ? QStringLiteral("NULL") : indexColumn_;
  Statement statement(
      Store(),
      QStringLiteral("SELECT %1 FROM %2 WHERE %3=?").arg(column, QuoteName(Table().name), QuoteName(Table().key)));
  statement.Bind(1, key);
  if (!statement.Step()) {
    return std::nullopt;
  }
  return Place{statement.ExactValue(0), key};
}

void TableCursor::StandOn(const Place& place)
{
  edge_ = Edge::kNone;
  current_ = place;
  window_ = {place};
  windowKeys_ = {place.key};
  inWindow_ = 0;
  nextWindowSize_ = 1;
  windowStamp_ = ChangeStamp();
}

void TableCursor::StandOnEdge(Edge edge)
{
  edge_ = edge;
  window_.clear();
  windowKeys_.clear();
}

void TableCursor::StandOnOutermost(Direction direction)
{
  ForgetEdit();
  const std::vector<Place> outermost = ReadPlaces(direction, std::nullopt, 1);
  if (outermost.empty()) {
    StandOnEdge(Edge::kEmpty);
  } else {
    StandOn(outermost.front());
  }
}

void TableCursor::MoveFirst()
{
  StandOnOutermost(Direction::kForward);
  MustHaveCurrent();
}

void TableCursor::MoveLast()
{
  StandOnOutermost(Direction::kBackward);
  MustHaveCurrent();
}

void TableCursor::MoveNext()
{
  ForgetEdit();
  if (edge_ == Edge::kBefore) {
    MoveFirst();
    return;
  }
  MustHaveCurrent();
  Step(Direction::kForward, Edge::kAfter);
}

void TableCursor::MovePrevious()
{
  ForgetEdit();
  if (edge_ == Edge::kAfter) {
    MoveLast();
    return;
  }
  MustHaveCurrent();
  Step(Direction::kBackward, Edge::kBefore);
}

bool TableCursor::StepWithinWindow(Direction direction)
{
  if (direction != Direction::kForward || windowStamp_ != ChangeStamp() || inWindow_ + 1 >= window_.size()) {
    return false;
  }
  current_ = window_[++inWindow_];
  return true;
}

void TableCursor::Step(Direction direction, Edge edge)
{
  if (StepWithinWindow(direction)) {
    return;
  }
  const bool goesOn = direction == Direction::kForward && windowStamp_ == ChangeStamp();
  const int size = goesOn ? nextWindowSize_ : 1;
  std::vector<Place> places = ReadPlaces(direction, current_, size);
  if (places.empty()) {
    StandOnEdge(RecordCount() == 0 ? Edge::kEmpty : edge);
    return;
  }
  StandOn(places.front());
  nextWindowSize_ = std::min(size * 2, kLargestWindow);
  window_ = std::move(places);
  windowKeys_.clear();
  for (const Place& place : window_) {
    windowKeys_.push_back(place.key);
  }
}

int TableCursor::RecordCount()
{
  Statement statement(Store(), QStringLiteral("SELECT count(*) FROM %1").arg(QuoteName(Table().name)));
  statement.Step();
  return static_cast<int>(statement.Integer(0));
}

Recordset::Bookmark TableCursor::GetBookmark()
{
  return {CurrentKey(), -1};
}

void TableCursor::SetBookmark(const Bookmark& bookmark)
{
  ForgetEdit();
  const std::optional<Place> place = PlaceOf(bookmark.key);
  if (!place) {
    StoreError::Raise(StoreError::kBadBookmark);
  }
  StandOn(*place);
}

void TableCursor::SetIndex(const QString& name)
{
  const IndexSchema* index = Table().FindIndex(name);
  if (index == nullptr && name.compare(QLatin1String("PrimaryKey"), Qt::CaseInsensitive) != 0) {
    StoreError::Raise(StoreError::kUnknownIndex, name);
  }
  indexColumn_ = index == nullptr ? QString() : QuoteName(index->column);
  indexChosen_ = true;
  StandOnOutermost(Direction::kForward);
}

void TableCursor::Seek(const QString& comparison, const QVariant& key)
{
  ForgetEdit();
  if (!indexChosen_ || comparison != QLatin1String("=")) {
    StoreError::Raise(StoreError::kNoIndex);
  }
  const QString keyColumn = QuoteName(Table().key);
  Statement statement(Store(),
                      QStringLiteral("SELECT %1 FROM %2 WHERE %3=? ORDER BY %1 LIMIT 1")
                          .arg(keyColumn, QuoteName(Table().name), indexColumn_.isEmpty() ? keyColumn : indexColumn_));
  statement.Bind(1, key);
  SetNoMatch(!statement.Step());
  if (NoMatch()) {
    StandOnEdge(Edge::kNowhere);
  } else if (const std::optional<Place> place = PlaceOf(statement.Integer(0))) {
    StandOn(*place);
  }
}

void TableCursor::MustHaveCurrent() const
{
  if (edge_ != Edge::kNone) {
    StoreError::Raise(StoreError::kNoCurrentRecord);
  }
}

qint64 TableCursor::CurrentKey()
{
  MustHaveCurrent();
  if (!reader_.Exists(std::span(windowKeys_).subspan(inWindow_))) {
    StoreError::Raise(StoreError::kRecordDeleted);
  }
  return current_.key;
}

const QVariant& TableCursor::ReadValue(int column)
{
  MustHaveCurrent();
  const QVariant* value = reader_.Value(std::span(windowKeys_).subspan(inWindow_), column);
  if (value == nullptr) {
    StoreError::Raise(StoreError::kRecordDeleted);
  }
  return *value;
}

// The cursor stays where it is, and finds the new row when it comes to its place.
void TableCursor::RowAdded(qint64) {}

// The deleted row's place is kept, so that the next move goes on from there.
void TableCursor::RowDeleted() {}
