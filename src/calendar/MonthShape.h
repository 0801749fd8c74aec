// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDate>

// How a month lies in the grid of weeks from Sunday to Saturday.
namespace MonthShape {

inline constexpr int kCells = 37;
inline constexpr int kColumns = 7;

// The weekday of its first, 1 for Sunday to 7 for Saturday. Month 13 is the next January,
// month 0 the December before.
[[nodiscard]] int FirstWeekday(int year, int month);

[[nodiscard]] int DaysIn(int year, int month);

// How many cells it takes, with those before its first.
[[nodiscard]] constexpr int CellsOf(int days, int firstWeekday)
{
  return days + firstWeekday - 1;
}

// The day of a cell; below 1 before the first.
[[nodiscard]] constexpr int DayOf(int cell, int firstWeekday)
{
  return cell + 2 - firstWeekday;
}

// The date of a cell, in the month before for one before the first.
[[nodiscard]] QDate DateOf(int cell, int year, int month, int firstWeekday);

}
