// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QVariant>

// Counts the rows of one query into the rows of another.
namespace Tally {

// A query and the column of it that counts.
struct Source
{
  const QString& query;
  QString column;
};

// Sets the Total of every row of `totals` to the number of rows of `counted` whose
// column gives the total's key by `keyOf`; rows that give the empty text count nowhere. A
// key that has lost its row writes its number into the row of the key counted before, or
// into the first one.
// What `keyOf` throws ends the counting, and what was counted before it is kept for good.
void Run(const Source& totals, const Source& counted, QString (*keyOf)(const QVariant& value));

}
