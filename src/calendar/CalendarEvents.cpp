// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/CalendarEvents.h"

#include "store/Queries.h"

namespace CalendarEvents {
namespace {

QVariant ValueIn(Recordset& rows, const char* column)
{
  return rows.Fields(QLatin1String(column)).Value();
}

CalendarEvent Read(Recordset& rows, int id)
{
  return {id, ValueIn(rows, "Date").toDate(), ValueIn(rows, "Event").toString(), ValueIn(rows, "Time").toTime(),
          ValueIn(rows, "Notes").toString()};
}

}

std::vector<CalendarEvent> Between(Database& database, const QString& month, QDate first, QDate last)
{
  std::vector<CalendarEvent> events;
  const auto rows = database.OpenRange(Queries::kEvents, {QStringLiteral("Date"), first, last});
  rows->FindFirst(QStringLiteral("Month ='%1'").arg(month));
  if (rows->NoMatch()) {
    return events;
  }
  for (; !rows->Eof() && ValueIn(*rows, "Month").toString().compare(month, Qt::CaseInsensitive) == 0;
       rows->MoveNext()) {
    events.push_back(Read(*rows, ValueIn(*rows, "ID").toInt()));
  }
  return events;
}

std::vector<CalendarEvent> InOrderOfDate(Database& database, const QString& month, QDate first, QDate last)
{
  std::vector<CalendarEvent> events;
  const auto rows = database.OpenRange(Queries::kEventsToPrint, {QStringLiteral("Date"), first, last});
  for (; !rows->Eof(); rows->MoveNext()) {
    if (ValueIn(*rows, "Month").toString().compare(month, Qt::CaseInsensitive) == 0) {
      events.push_back(Read(*rows, 0));
    }
  }
  return events;
}

std::vector<CalendarEvent> On(Database& database, const QString& month, QDate date)
{
  return Between(database, month, date, date);
}

std::vector<int> IdsOf(const std::vector<CalendarEvent>& events)
{
  std::vector<int> ids;
  ids.reserve(events.size());
  for (const CalendarEvent& event : events) {
    ids.push_back(event.id);
  }
  return ids;
}

}
