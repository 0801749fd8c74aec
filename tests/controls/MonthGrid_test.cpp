// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/MonthGrid.h"

#include <gtest/gtest.h>

namespace {

const QRect kRoom(10, 20, 321, 265);

std::vector<QRect> PlacesOf(const MonthGrid& grid)
{
  std::vector<QRect> places = {grid.Title()};
  for (const int step : MonthGrid::kSteps) {
    places.push_back(grid.Arrow(step));
  }
  for (int column = 0; column < MonthGrid::kDaysOfWeek; ++column) {
    places.push_back(grid.DayName(column));
  }
  for (int cell = 0; cell < MonthGrid::kCells; ++cell) {
    places.push_back(grid.Cell(cell));
  }
  return places;
}

// Sunday is 0; counted on from Monday, 1 January 1900 without the toolkit's calendar.
class WeekdayOfTheFirst
{
public:
  [[nodiscard]] int Column() const { return column_; }

  void Pass(int year, int month)
  {
    static constexpr std::array<int, 12> kLengths = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool isLeap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    const int length = kLengths.at(static_cast<std::size_t>(month - 1)) + (month == 2 && isLeap ? 1 : 0);
    column_ = (column_ + length) % 7;
  }

private:
  int column_ = 1;
};

}

TEST(MonthGridTest, EveryMonthHasItsFirstDayInTheRightColumnOfTheFirstWeek)
{
  WeekdayOfTheFirst weekday;
  for (int year = 1900; year <= 2050; ++year) {
    for (int month = 1; month <= 12; ++month) {
      const QDate first(year, month, 1);
      const MonthGrid grid(kRoom, first.addDays(13));
      ASSERT_EQ(grid.CellOf(first), weekday.Column()) << year << "-" << month;
      ASSERT_EQ(grid.Day(weekday.Column()), first);
      ASSERT_GE(grid.CellOf(first.addMonths(1).addDays(-1)), 27) << year << "-" << month;
      weekday.Pass(year, month);
    }
  }
}

TEST(MonthGridTest, DaysRunOnWithoutAGap)
{
  const MonthGrid grid(kRoom, QDate(2026, 5, 17));
  EXPECT_EQ(grid.Day(0), QDate(2026, 4, 26));
  for (int cell = 0; cell < MonthGrid::kCells; ++cell) {
    EXPECT_EQ(grid.Day(cell), QDate(2026, 4, 26).addDays(cell));
    EXPECT_EQ(grid.CellOf(grid.Day(cell)), cell);
  }
  EXPECT_EQ(grid.CellOf(QDate(2026, 4, 25)), -1);
  EXPECT_EQ(grid.CellOf(QDate(2026, 6, 7)), -1);
  EXPECT_EQ(grid.CellOf(QDate()), -1);
}

TEST(MonthGridTest, PeriodTellsTheMonthBeforeFromTheMonthAfter)
{
  const MonthGrid turn(kRoom, QDate(2026, 12, 31));
  EXPECT_LT(turn.PeriodOf(QDate(2026, 11, 30)), 0);
  EXPECT_EQ(turn.PeriodOf(QDate(2026, 12, 1)), 0);
  EXPECT_EQ(turn.PeriodOf(QDate(2026, 12, 31)), 0);
  EXPECT_GT(turn.PeriodOf(QDate(2027, 1, 1)), 0);
  EXPECT_LT(MonthGrid(kRoom, QDate(2027, 1, 1)).PeriodOf(QDate(2026, 12, 31)), 0);
}

TEST(MonthGridTest, PlacesLieInTheRoomAndApart)
{
  for (const QSize& size : {QSize(240, 200), QSize(241, 203), QSize(320, 264), QSize(900, 700), QSize(900, 200)}) {
    const QRect room(QPoint(7, 9), size);
    const std::vector<QRect> places = PlacesOf(MonthGrid(room, QDate(2026, 5, 1)));
    for (std::size_t i = 0; i < places.size(); ++i) {
      EXPECT_TRUE(room.contains(places[i])) << i << " at " << size.width();
      EXPECT_GT(places[i].width(), 12) << i;
      EXPECT_GT(places[i].height(), 12) << i;
      for (std::size_t j = 0; j < i; ++j) {
        EXPECT_FALSE(places[i].intersects(places[j])) << i << " and " << j;
      }
    }
  }
}

TEST(MonthGridTest, CellsFillTheRoomBelowTheNamesOfDays)
{
  const MonthGrid grid(kRoom, QDate(2026, 5, 1));
  QRect all;
  int area = 0;
  for (int cell = 0; cell < MonthGrid::kCells; ++cell) {
    all |= grid.Cell(cell);
    area += grid.Cell(cell).width() * grid.Cell(cell).height();
  }
  EXPECT_EQ(all, QRect(QPoint(kRoom.left(), grid.DayName(0).bottom() + 1), kRoom.bottomRight()));
  EXPECT_EQ(area, all.width() * all.height());
}

TEST(MonthGridTest, APointFindsItsDayOrItsArrow)
{
  const MonthGrid grid(kRoom, QDate(2026, 2, 10));
  for (int cell = 0; cell < MonthGrid::kCells; ++cell) {
    const QRect room = grid.Cell(cell);
    for (const QPoint& point : {room.topLeft(), room.center(), room.bottomRight()}) {
      EXPECT_EQ(grid.At(point), (MonthGrid::Place{.day = QDate(2026, 2, 1).addDays(cell)}));
    }
  }
  for (const int step : MonthGrid::kSteps) {
    EXPECT_EQ(grid.At(grid.Arrow(step).center()), (MonthGrid::Place{.day = {}, .step = step}));
  }
  for (const QPoint& point :
       {grid.Title().center(), grid.DayName(3).center(), QPoint(0, 0), kRoom.bottomRight() + QPoint(1, 0)}) {
    EXPECT_EQ(grid.At(point), MonthGrid::Place());
  }
}

TEST(MonthGridTest, KeysLeadToDates)
{
  struct Case
  {
    const char* what;
    QDate from;
    Qt::Key key;
    bool control;
    QDate to;
  };
  const std::vector<Case> cases = {
      {"day back over the turn of the year", {2026, 1, 1}, Qt::Key_Left, false, {2025, 12, 31}},
      {"day on to the leap day", {2028, 2, 28}, Qt::Key_Right, false, {2028, 2, 29}},
      {"no leap day in 1900", {1900, 2, 28}, Qt::Key_Right, false, {1900, 3, 1}},
      {"week back", {2026, 5, 3}, Qt::Key_Up, false, {2026, 4, 26}},
      {"week on", {2026, 5, 30}, Qt::Key_Down, false, {2026, 6, 6}},
      {"first", {2026, 5, 31}, Qt::Key_Home, false, {2026, 5, 1}},
      {"last", {2024, 2, 3}, Qt::Key_End, false, {2024, 2, 29}},
      {"month back, shorter", {2026, 3, 31}, Qt::Key_PageUp, false, {2026, 2, 28}},
      {"month on, shorter", {2028, 1, 31}, Qt::Key_PageDown, false, {2028, 2, 29}},
      {"year back from the leap day", {2028, 2, 29}, Qt::Key_PageUp, true, {2027, 2, 28}},
      {"year on", {2026, 5, 31}, Qt::Key_PageDown, true, {2027, 5, 31}},
      {"Ctrl with an arrow", {2026, 5, 31}, Qt::Key_Left, true, {}},
      {"another key", {2026, 5, 31}, Qt::Key_A, false, {}},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(MonthGrid::Moved(c.from, c.key, c.control), c.to) << c.what;
  }
}
