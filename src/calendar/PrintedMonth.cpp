// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/PrintedMonth.h"

#include "calendar/CalendarCell.h"
#include "calendar/modCalVariables.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "platform/Twips.h"

using namespace modCalVariables;

namespace {

QStringList LinesOf(const ListBox& list)
{
  QStringList lines;
  for (int line = 0; line < list.ListCount(); ++line) {
    lines.append(list.List(line));
  }
  return lines;
}

PrintedMonth::Cell ReadCell(const Form& calendar, int index)
{
  auto* list = qobject_cast<ListBox*>(calendar.Control(QStringLiteral("lstReminders_%1").arg(index)));
  const auto* day = qobject_cast<Label*>(calendar.Control(QStringLiteral("lblDay_%1").arg(index)));
  const QString date = CalCellDates.value(index);
  CalendarCell::SetDate(*list, date);
  return {QDate::fromString(date, Qt::ISODate), day->text(), list->isVisibleTo(&calendar), LinesOf(*list)};
}

}

PrintedMonth ReadCalendar(const Form& calendar)
{
  PrintedMonth month;
  month.name = CalMonthName;
  month.year = CalYear;
  month.firstWeekday = CalFirstWeekday;
  month.days = CalDaysInMonth;
  const auto cells = calendar.ArrayNamed(QStringLiteral("lstReminders")).widgets.size();
  for (std::size_t index = 0; index < cells; ++index) {
    month.cells.push_back(ReadCell(calendar, static_cast<int>(index)));
  }
  const QWidget* details = calendar.Control(QStringLiteral("txtNotesDisplay"));
  month.detailsFont = details->font();
  month.detailsWidth = TwipsFromPixels(details->width());
  return month;
}
