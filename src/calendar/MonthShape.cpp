// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/MonthShape.h"

#include "platform/Months.h"

namespace MonthShape {

int FirstWeekday(int year, int month)
{
  return DateSerial(year, month, 1).dayOfWeek() % kColumns + 1;
}

int DaysIn(int year, int month)
{
  return static_cast<int>(DateSerial(year, month, 1).daysTo(DateSerial(year, month + 1, 1)));
}

QDate DateOf(int cell, int year, int month, int firstWeekday)
{
  return DateSerial(year, month, 1).addDays(DayOf(cell, firstWeekday) - 1);
}

}
