// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/EventTexts.h"

#include "calendar/CalendarEvents.h"

namespace EventTexts {
namespace {

// Not by the locale, whose marks of the half days may be other ones.
QString HalfDay(QTime time)
{
  return time.hour() < 12 ? QStringLiteral("am") : QStringLiteral("pm");
}

QString Clock(QTime time)
{
  const int hour = time.hour() % 12 == 0 ? 12 : time.hour() % 12;
  return QStringLiteral("%1:%2").arg(hour).arg(time.minute(), 2, 10, QLatin1Char('0'));
}

}

QString ShortTime(QTime time)
{
  return time.isValid() ? Clock(time) + HalfDay(time) : QString();
}

QString LongTime(QTime time)
{
  return time.isValid() ? Clock(time) + QLatin1Char(' ') + HalfDay(time) : QString();
}

QString Line(const CalendarEvent& event)
{
  return QStringLiteral(" %1 ").arg(event.title) + ShortTime(event.time);
}

QString Details(const CalendarEvent& event)
{
  const QString start = event.title + QStringLiteral(" - ");
  const QString none = QStringLiteral("No further information available.");
  if (!event.time.isValid()) {
    return start + (event.notes.isEmpty() ? QLatin1Char(' ') + none : event.notes);
  }
  return start + LongTime(event.time) + QStringLiteral(". ") + (event.notes.isEmpty() ? none : event.notes);
}

}
