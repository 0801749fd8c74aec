// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "charts/Tally.h"

#include "platform/Command.h"
#include "platform/RuntimeError.h"
#include "store/DBEngine.h"

#include <map>

namespace Tally {
namespace {

const QString kTotal = QStringLiteral("Total");

using Counts = std::map<QString, int>;

void Write(Recordset& totals, int total)
{
  totals.Edit();
  totals.Fields(kTotal).SetValue(total);
  totals.Update();
}

void SetToZero(Recordset& totals)
{
  for (totals.MoveFirst(); !totals.Eof(); totals.MoveNext()) {
    Write(totals, 0);
  }
}

void Count(Recordset& counted, const QString& column, QString (*keyOf)(const QVariant&), Counts& counts)
{
  Field& field = counted.Fields(column);
  QVariant value;
  QString key;
  for (; !counted.Eof(); counted.MoveNext()) {
    if (field.Peek() != value) {  // rows of one value come together
      value = field.Value();
      key = keyOf(value);
    }
    if (!key.isEmpty()) {
      ++counts[key];
    }
  }
}

void WriteCounts(Recordset& totals, const QString& column, const Counts& counts)
{
  totals.MoveFirst();
  for (const auto& [key, count] : counts) {
    totals.FindFirst(QStringLiteral("%1 ='%2'").arg(column, key));
    Write(totals, count);
  }
}

}

void Run(const Source& totals, const Source& counted, QString (*keyOf)(const QVariant&))
{
  Database database = DBEngine::OpenDatabase();
  const auto totalRows = database.OpenRecordset(totals.query, Database::kDynaset);
  const auto rows = database.OpenRecordset(counted.query, Database::kDynaset);
  SetToZero(*totalRows);
  Counts counts;
  try {
    Count(*rows, counted.column, keyOf, counts);
  } catch (const RuntimeError&) {
    WriteCounts(*totalRows, totals.column, counts);
    Command::Settle();
    throw;
  }
  WriteCounts(*totalRows, totals.column, counts);
}

}
