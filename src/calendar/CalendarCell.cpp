// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/CalendarCell.h"

#include "calendar/EventTexts.h"
#include "calendar/modCalVariables.h"
#include "controls/Form.h"
#include "controls/Forms.h"
#include "controls/ListBox.h"
#include "looks/modResize.h"

namespace CalendarCell {
namespace {

QWidget* Find(const QString& name)
{
  const Form* calendar = Forms::Loaded(QStringLiteral("frmReminders"));
  return calendar == nullptr ? nullptr : calendar->Control(name);
}

}

void SetDate(ListBox& cell, const QString& dateText)
{
  modResize::SetTag(cell, dateText);
}

bool IsOf(const ListBox& cell, QDate date)
{
  return modResize::TagOf(cell) == modCalVariables::DateText(date);
}

void Add(ListBox& cell, const std::vector<CalendarEvent>& events)
{
  QStringList lines;
  for (const CalendarEvent& event : events) {
    lines.append(EventTexts::Line(event));
  }
  cell.AddItems(lines);
  cell.show();
}

ListBox* OnCalendar(int index)
{
  return qobject_cast<ListBox*>(Find(QStringLiteral("lstReminders_%1").arg(index)));
}

QWidget* MarkOnCalendar()
{
  return Find(QStringLiteral("picSelect"));
}

void Redraw(int index, const std::vector<CalendarEvent>& events)
{
  ListBox* cell = OnCalendar(index);
  if (cell == nullptr) {
    return;
  }
  cell->Clear();
  if (events.empty()) {
    cell->hide();
  } else {
    Add(*cell, events);
  }
}

}
