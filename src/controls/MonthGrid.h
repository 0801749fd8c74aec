// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDate>
#include <QRect>

#include <array>

// Where a month stands on a drawing: a title between four arrows, seven names of days
// from Sunday on, and below them six weeks of days. Neighbours share a hairline of one
// pixel, which is their left and upper one.
class MonthGrid
{
public:
  static constexpr int kDaysOfWeek = 7;
  static constexpr int kCells = 6 * kDaysOfWeek;
  // What the arrows step by, in months, from left to right.
  static constexpr std::array<int, 4> kSteps = {-12, -1, 1, 12};

  // A day, the step of an arrow, or neither: an invalid day and 0.
  struct Place
  {
    QDate day;
    int step = 0;
    bool operator==(const Place&) const = default;
  };

  // The month that the date lies in.
  MonthGrid(const QRect& room, QDate date);

  [[nodiscard]] QDate Day(int cell) const { return firstDay_.addDays(cell); }
  [[nodiscard]] int CellOf(QDate day) const;  // -1 for a day that does not show

  // Less than 0 for the month before, 0 for the month itself, more than 0 for the month after.
  [[nodiscard]] int PeriodOf(QDate day) const;

  [[nodiscard]] QRect Title() const;
  [[nodiscard]] QRect Arrow(int step) const;
  [[nodiscard]] QRect DayName(int column) const;
  [[nodiscard]] QRect Cell(int cell) const;
  [[nodiscard]] Place At(const QPoint& point) const;

  // The date that a key leads to, without or with Ctrl; invalid for a key that leads nowhere.
  [[nodiscard]] static QDate Moved(QDate from, int key, bool control);

private:
  [[nodiscard]] int Left(int column) const;
  [[nodiscard]] int Top(int week) const;

  QRect room_;
  QDate firstOfMonth_;
  QDate firstDay_;
  int titleHeight_;
  int daysTop_;
};
