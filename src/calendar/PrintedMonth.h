// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDate>
#include <QFont>
#include <QStringList>

#include <vector>

class Form;

// The month that the calendar page shows, as its printing needs it.
struct PrintedMonth
{
  struct Cell
  {
    QDate date;
    QString day;         // the caption of its day number
    bool shown = false;  // whether its list of events is
    QStringList events;  // its lines
  };

  QString name;
  int year = 0;
  int firstWeekday = 0;  // 1 for Sunday to 7 for Saturday
  int days = 0;
  std::vector<Cell> cells;

  // Of the box with the details of an event: its font, and its width in twips.
  QFont detailsFont;
  int detailsWidth = 0;
};

// Reads the open calendar page, and writes the dates of its cells back into their Tags.
[[nodiscard]] PrintedMonth ReadCalendar(const Form& calendar);
