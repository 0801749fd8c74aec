// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/EventRecords.h"

#include "calendar/TimeText.h"
#include "platform/RuntimeError.h"
#include "store/Queries.h"

namespace EventRecords {
namespace {

std::unique_ptr<Recordset> Open(Database& database, QDate date)
{
  return database.OpenRange(Queries::kEventChanges, {QStringLiteral("Date"), date, date});
}

// The cursor stands on the event; null if it is not there.
std::unique_ptr<Recordset> Find(Database& database, QDate date, int id)
{
  auto rows = Open(database, date);
  while (!rows->Eof() && rows->Fields(QStringLiteral("ID")).Peek().toInt() != id) {
    rows->MoveNext();
  }
  return rows->Eof() ? nullptr : std::move(rows);
}

QVariant TimeOf(const QString& text)
{
  if (text.isEmpty()) {
    return {};
  }
  const std::optional<QTime> time = ReadTime(text);
  if (!time) {
    RaiseError(ErrorNumber::kTypeMismatch);
  }
  return *time;
}

void SetColumns(Recordset& row, const Entry& entry)
{
  row.Fields(QStringLiteral("Event")).SetValue(entry.title);
  row.Fields(QStringLiteral("Notes")).SetValue(entry.notes.isEmpty() ? QVariant() : QVariant(entry.notes));
  row.Fields(QStringLiteral("Time")).SetValue(TimeOf(entry.time));
}

}

bool Any(Database& database)
{
  return !database.OpenRecordset(QStringLiteral("Reminders"), Database::kTable)->Eof();
}

void Add(Database& database, const QString& month, QDate date, const Entry& entry)
{
  const auto row = Open(database, date);
  row->AddNew();
  row->Fields(QStringLiteral("Month")).SetValue(month);
  row->Fields(QStringLiteral("Date")).SetValue(date);
  SetColumns(*row, entry);
  row->Update();
}

Change Write(Database& database, QDate date, int id, const Entry& entry)
{
  const auto row = Find(database, date, id);
  if (!row) {
    return Change::kGone;
  }
  if (entry.title.isEmpty()) {
    return Change::kUntitled;
  }
  row->Edit();
  SetColumns(*row, entry);
  row->Update();
  return Change::kWritten;
}

void Delete(Database& database, QDate date, int id)
{
  if (const auto row = Find(database, date, id)) {
    row->Delete();
  }
}

}
