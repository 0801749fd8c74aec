// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDate>
#include <QStringList>

#include <vector>

// What the calendar, its event editor and its printing share.
namespace modCalVariables {

// The month on show, 1 to 12, and its year.
inline int CalMonth = 0;
inline int CalYear = 0;

// How many days it has, and the weekday of its first, 1 for Sunday to 7 for Saturday.
inline int CalDaysInMonth = 0;
inline int CalFirstWeekday = 0;

// Its full name.
inline QString CalMonthName;

// By cell: its date, as DateText gives it. Cells that the month on show does not use keep what
// they had.
inline QStringList CalCellDates;

// The day last clicked, or the day of the event last clicked.
inline QDate CalSelectedDate;

// The same for reading: "March 5, 2026".
inline QString CalDateText;

// The cell last clicked for editing.
inline int CalCellIndex = 0;

// Reminders.ID of the events of one date, in the order of their lines.
inline std::vector<int> CalEventIds;

// A date as cells keep it.
[[nodiscard]] inline QString DateText(QDate date)
{
  return date.toString(Qt::ISODate);
}

}
