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

// The totals while they are counted.
class Counts
{
public:
  Counts(Recordset& totals, QString column) : totals_(totals), column_(std::move(column)) { totals_.MoveFirst(); }

  // One more of this key. A key without a row of its own is counted into the row that is
  // current: that of the key before, or the first.
  void Add(const QString& key)
  {
    if (key != key_) {
      key_ = key;
      totals_.FindFirst(QStringLiteral("%1 ='%2'").arg(column_, key));
      count_ = &counts_[key];
      total_ = &totalsByRow_[totals_.AbsolutePosition()];
    }
    *total_ = ++*count_;
  }

  void WriteTotals()
  {
    for (totals_.MoveFirst(); !totals_.Eof(); totals_.MoveNext()) {
      const auto total = totalsByRow_.find(totals_.AbsolutePosition());
      if (total != totalsByRow_.end()) {
        Write(totals_, total->second);
      }
    }
  }

private:
  Recordset& totals_;
  QString column_;
  std::map<QString, int> counts_;
  std::map<int, int> totalsByRow_;
  QString key_;
  int* count_ = nullptr;
  int* total_ = nullptr;
};

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
      counts.Add(key);
    }
  }
}

}

void Run(const Source& totals, const Source& counted, QString (*keyOf)(const QVariant&))
{
  Database database = DBEngine::OpenDatabase();
  const auto totalRows = database.OpenRecordset(totals.query, Database::kDynaset);
  const auto rows = database.OpenRecordset(counted.query, Database::kDynaset);
  SetToZero(*totalRows);
  Counts counts(*totalRows, totals.column);
  try {
    Count(*rows, counted.column, keyOf, counts);
  } catch (const RuntimeError&) {
    counts.WriteTotals();
    Command::Settle();
    throw;
  }
  counts.WriteTotals();
}

}
