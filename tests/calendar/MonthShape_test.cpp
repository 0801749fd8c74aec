// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/MonthShape.h"

#include <gtest/gtest.h>

namespace {

struct Case
{
  int year;
  int month;
  int firstWeekday;
  int days;
};

// Sunday is 1.
const Case kCases[] = {
    {2026, 2, 1, 28},   // starts on a Sunday
    {2015, 2, 1, 28},   //
    {2026, 8, 7, 31},   // starts on a Saturday
    {2020, 2, 7, 29},   // leap year
    {2000, 2, 3, 29},   // leap century
    {1900, 2, 5, 28},   // no leap year
    {2100, 2, 2, 28},   //
    {2024, 2, 5, 29},   //
    {2026, 4, 4, 30},   //
    {2026, 12, 3, 31},  //
    {2026, 1, 5, 31},   //
    {2050, 12, 5, 31},  //
    {1900, 1, 2, 31},   //
    {2026, 13, 6, 31},  // January 2027
    {2026, 0, 2, 31},   // December 2025
    {1900, 0, 6, 31},   // December 1899
    {2050, 13, 1, 31},  // January 2051
};

}

TEST(MonthShape, KnowsTheFirstWeekdayAndTheNumberOfDays)
{
  for (const Case& c : kCases) {
    EXPECT_EQ(MonthShape::FirstWeekday(c.year, c.month), c.firstWeekday) << c.year << " " << c.month;
    EXPECT_EQ(MonthShape::DaysIn(c.year, c.month), c.days) << c.year << " " << c.month;
  }
}

TEST(MonthShape, AgreesWithTheCalendarForEveryMonthOfTheYearList)
{
  for (QDate first(1900, 1, 1); first.year() <= 2050; first = first.addMonths(1)) {
    EXPECT_EQ(MonthShape::FirstWeekday(first.year(), first.month()), first.dayOfWeek() % 7 + 1) << first.toJulianDay();
    EXPECT_EQ(MonthShape::DaysIn(first.year(), first.month()), first.daysInMonth()) << first.toJulianDay();
  }
}

TEST(MonthShape, CountsTheCellsAndTheDaysInThem)
{
  EXPECT_EQ(MonthShape::kCells, 37);
  EXPECT_EQ(MonthShape::kColumns, 7);
  EXPECT_EQ(MonthShape::CellsOf(28, 1), 28);
  EXPECT_EQ(MonthShape::CellsOf(31, 7), 37);
  EXPECT_EQ(MonthShape::CellsOf(30, 4), 33);
  EXPECT_EQ(MonthShape::DayOf(0, 1), 1);
  EXPECT_EQ(MonthShape::DayOf(27, 1), 28);
  EXPECT_EQ(MonthShape::DayOf(0, 7), -5);
  EXPECT_EQ(MonthShape::DayOf(5, 7), 0);
  EXPECT_EQ(MonthShape::DayOf(6, 7), 1);
  EXPECT_EQ(MonthShape::DayOf(36, 7), 31);
}

TEST(MonthShape, CellsBeforeTheFirstHaveDatesOfTheMonthBefore)
{
  EXPECT_EQ(MonthShape::DateOf(0, 2026, 8, 7), QDate(2026, 7, 26));
  EXPECT_EQ(MonthShape::DateOf(5, 2026, 8, 7), QDate(2026, 7, 31));
  EXPECT_EQ(MonthShape::DateOf(6, 2026, 8, 7), QDate(2026, 8, 1));
  EXPECT_EQ(MonthShape::DateOf(36, 2026, 8, 7), QDate(2026, 8, 31));
  EXPECT_EQ(MonthShape::DateOf(0, 2026, 1, 5), QDate(2025, 12, 28));
  EXPECT_EQ(MonthShape::DateOf(0, 2024, 3, 6), QDate(2024, 2, 25));
  EXPECT_EQ(MonthShape::DateOf(4, 2024, 3, 6), QDate(2024, 2, 29));
  EXPECT_EQ(MonthShape::DateOf(0, 2026, 2, 1), QDate(2026, 2, 1));
}
