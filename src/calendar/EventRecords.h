// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "store/Database.h"

#include <QDate>

// Writes to the events of one date.
namespace EventRecords {

// What the boxes of the event editor hold.
struct Entry
{
  QString title;
  QString time;   // as it was typed; empty for none
  QString notes;  // empty for none
};

// True if there is any event at all, on whatever date.
[[nodiscard]] bool Any(Database& database);

// Each throws what the store throws; those that take an entry throw 13 if its time cannot be
// read. Then nothing is written.

// Adds an event to a date, which lies in the named month.
void Add(Database& database, const QString& month, QDate date, const Entry& entry);

enum class Change
{
  kWritten,
  kUntitled,  // the entry has no title; not written
  kGone,      // there is no such event on the date
};

// Changes the event of that date and ID.
Change Write(Database& database, QDate date, int id, const Entry& entry);

// Removes the event of that date and ID, if it is there.
void Delete(Database& database, QDate date, int id);

}
