// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/MonthGrid.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int kWeeks = MonthGrid::kCells / MonthGrid::kDaysOfWeek;

}

MonthGrid::MonthGrid(const QRect& room, QDate date)
    : room_(room),
      firstOfMonth_(date.year(), date.month(), 1),
      firstDay_(firstOfMonth_.addDays(-(firstOfMonth_.dayOfWeek() % kDaysOfWeek))),
      titleHeight_(std::clamp(room.height() / 8, 32, 56)),
      daysTop_(room.top() + titleHeight_ + std::clamp(room.height() / 12, 20, 36))
{}

int MonthGrid::CellOf(QDate day) const
{
  const qint64 cell = firstDay_.daysTo(day);
  return day.isValid() && cell >= 0 && cell < kCells ? static_cast<int>(cell) : -1;
}

int MonthGrid::PeriodOf(QDate day) const
{
  return (day.year() - firstOfMonth_.year()) * 12 + day.month() - firstOfMonth_.month();
}

QRect MonthGrid::Title() const
{
  return QRect(Arrow(-1).right() + 1, room_.top(), Arrow(1).left() - Arrow(-1).right() - 1, titleHeight_);
}

QRect MonthGrid::Arrow(int step) const
{
  const int side = titleHeight_ - 8;
  const int inset = std::abs(step) == 1 ? 4 + side : 4;
  const int left = step < 0 ? room_.left() + inset : room_.right() + 1 - inset - side;
  return QRect(left, room_.top() + 4, side, side);
}

QRect MonthGrid::DayName(int column) const
{
  const int top = room_.top() + titleHeight_;
  return QRect(Left(column), top, Left(column + 1) - Left(column), daysTop_ - top);
}

QRect MonthGrid::Cell(int cell) const
{
  const int column = cell % kDaysOfWeek;
  const int week = cell / kDaysOfWeek;
  return QRect(QPoint(Left(column), Top(week)), QPoint(Left(column + 1) - 1, Top(week + 1) - 1));
}

MonthGrid::Place MonthGrid::At(const QPoint& point) const
{
  for (const int step : kSteps) {
    if (Arrow(step).contains(point)) {
      return {.day = {}, .step = step};
    }
  }
  for (int cell = 0; cell < kCells; ++cell) {
    if (Cell(cell).contains(point)) {
      return {.day = Day(cell)};
    }
  }
  return {};
}

QDate MonthGrid::Moved(QDate from, int key, bool control)
{
  if (control && key != Qt::Key_PageUp && key != Qt::Key_PageDown) {
    return {};
  }
  switch (key) {
    case Qt::Key_Left:
      return from.addDays(-1);
    case Qt::Key_Right:
      return from.addDays(1);
    case Qt::Key_Up:
      return from.addDays(-kDaysOfWeek);
    case Qt::Key_Down:
      return from.addDays(kDaysOfWeek);
    case Qt::Key_Home:
      return {from.year(), from.month(), 1};
    case Qt::Key_End:
      return {from.year(), from.month(), from.daysInMonth()};
    case Qt::Key_PageUp:
      return from.addMonths(control ? -12 : -1);
    case Qt::Key_PageDown:
      return from.addMonths(control ? 12 : 1);
    default:
      return {};
  }
}

int MonthGrid::Left(int column) const
{
  return room_.left() + room_.width() * column / kDaysOfWeek;
}

int MonthGrid::Top(int week) const
{
  return daysTop_ + (room_.bottom() + 1 - daysTop_) * week / kWeeks;
}
