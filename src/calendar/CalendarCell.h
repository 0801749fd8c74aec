// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "calendar/CalendarEvents.h"

class ListBox;

// One day's list of events on the month grid. The Tag of the list is the date of its cell.
namespace CalendarCell {

void SetDate(ListBox& cell, const QString& dateText);

// Whether the cell is that of the date.
[[nodiscard]] bool IsOf(const ListBox& cell, QDate date);

// Puts the lines of the events behind those in the cell, and shows it.
void Add(ListBox& cell, const std::vector<CalendarEvent>& events);

// Of the open calendar page: the list of a cell, and the mark of the line under the
// mouse. Null without the page.
[[nodiscard]] ListBox* OnCalendar(int index);
[[nodiscard]] QWidget* MarkOnCalendar();

// Gives a cell of the open calendar page these events, which are those of its date, in place
// of what it had; without any it is hidden. Nothing without the page.
void Redraw(int index, const std::vector<CalendarEvent>& events);

}
