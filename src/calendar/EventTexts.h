// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

struct CalendarEvent;
class QTime;

// How the calendar writes events.
namespace EventTexts {

// "9:30pm", and "9:30 pm"; empty for a time that is none.
[[nodiscard]] QString ShortTime(QTime time);
[[nodiscard]] QString LongTime(QTime time);

// The line in a cell: a blank, the title, a blank, and the time if there is one.
[[nodiscard]] QString Line(const CalendarEvent& event);

// The text of the details box.
[[nodiscard]] QString Details(const CalendarEvent& event);

}
