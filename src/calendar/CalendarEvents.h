// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "store/Database.h"

#include <QDate>
#include <QTime>

#include <vector>

// A row of Reminders.
struct CalendarEvent
{
  int id = 0;
  QDate date;
  QString title;
  QTime time;     // invalid without one
  QString notes;  // empty without any
};

namespace CalendarEvents {

// The events of the named month with a date from `first` to `last`, those without a
// time first, then by time, then as they were entered. Rows of other dates are not read.
[[nodiscard]] std::vector<CalendarEvent> Between(Database& database, const QString& month, QDate first, QDate last);

// Those of one date.
[[nodiscard]] std::vector<CalendarEvent> On(Database& database, const QString& month, QDate date);

// The same as Between, but by date, then as they were entered. Their IDs are 0.
[[nodiscard]] std::vector<CalendarEvent> InOrderOfDate(Database& database, const QString& month, QDate first,
                                                       QDate last);

// Their IDs.
[[nodiscard]] std::vector<int> IdsOf(const std::vector<CalendarEvent>& events);

}
