// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "store/Recordset.h"
#include "store/RowReader.h"
#include "store/Statement.h"

#include <optional>

// An updatable cursor over a whole table, in the order of its key or of an index
// (Null first, equal ones by key). It reads on as it moves, so that rows that others
// add or delete come and go.
class TableCursor : public Recordset
{
public:
  TableCursor(const std::shared_ptr<Connection>& connection, const TableSchema& table);

  void MoveFirst() override;
  void MoveLast() override;
  void MoveNext() override;
  void MovePrevious() override;
  [[nodiscard]] bool Eof() const override { return edge_ == Edge::kAfter || edge_ == Edge::kEmpty; }
  [[nodiscard]] bool Bof() const override { return edge_ == Edge::kBefore || edge_ == Edge::kEmpty; }
  [[nodiscard]] int RecordCount() override;
  [[nodiscard]] Bookmark GetBookmark() override;
  void SetBookmark(const Bookmark& bookmark) override;

  // Also takes "PrimaryKey", the table's own key.
  void SetIndex(const QString& name) override;
  // "=" is the only comparison. Without a match there is no current row.
  void Seek(const QString& comparison, const QVariant& key) override;

protected:
  [[nodiscard]] qint64 CurrentKey() override;
  [[nodiscard]] const QVariant& ReadValue(int column) override;
  void RowAdded(qint64 key) override;
  void RowDeleted() override;

private:
  enum class Edge
  {
    kNone,
    kBefore,
    kAfter,
    kEmpty,
    kNowhere,  // after a Seek that found nothing
  };

  enum class Direction
  {
    kForward,
    kBackward,
  };

  // A row's place in the order.
  struct Place
  {
    Statement::Exact indexed;
    qint64 key = 0;
  };

  // The rows next to `from` in that direction, or the outermost ones, nearest first.
  std::vector<Place> ReadPlaces(Direction direction, const std::optional<Place>& from, int limit);
  std::vector<Place> ReadPhase(Direction direction, bool nulls, const std::optional<Place>& from, int limit);
  [[nodiscard]] QString PhaseSql(Direction direction, bool nulls, bool bounded) const;
  std::optional<Place> PlaceOf(qint64 key);

  void StandOn(const Place& place);
  void StandOnEdge(Edge edge);
  void StandOnOutermost(Direction direction);
  void Step(Direction direction, Edge edge);
  bool StepWithinWindow(Direction direction);
  void MustHaveCurrent() const;

  RowReader reader_;
  QString indexColumn_;  // quoted; empty for the order of keys
  bool indexChosen_ = false;
  Edge edge_ = Edge::kEmpty;
  Place current_;
  std::vector<qint64> windowKeys_;  // the current row and those read ahead
  std::vector<Place> window_;
  std::size_t inWindow_ = 0;
  int nextWindowSize_ = 1;
  long long windowStamp_ = -1;
};
