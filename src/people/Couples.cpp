// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "people/Couples.h"

#include "store/Queries.h"

#include <algorithm>
#include <array>

namespace Couples {
namespace {

constexpr std::array<const char*, 3> kDateColumns = {"AnnMonth", "AnnDate", "AnnYear"};

int KeyIn(Recordset& couples, const char* column)
{
  return couples.Fields(QLatin1String(column)).Value().toInt();
}

Couple Current(Recordset& couples)
{
  return {KeyIn(couples, "AnnID"), KeyIn(couples, "Spouse1ID"), KeyIn(couples, "Spouse2ID")};
}

}

bool Find(Recordset& table, const char* index, int key)
{
  table.SetIndex(QLatin1String(index));
  table.Seek(QStringLiteral("="), key);
  return !table.NoMatch();
}

std::vector<Couple> Of(Recordset& couples, int personID)
{
  std::vector<Couple> found;
  for (const char* index : {"Spouse1ID", "Spouse2ID"}) {
    if (Find(couples, index, personID)) {
      found.push_back(Current(couples));
    }
  }
  std::sort(found.begin(), found.end(), [](const Couple& a, const Couple& b) { return a.annID < b.annID; });
  const auto same = [](const Couple& a, const Couple& b) { return a.annID == b.annID; };
  found.erase(std::unique(found.begin(), found.end(), same), found.end());
  return found;
}

std::optional<Couple> LastOf(Recordset& couples, int personID)
{
  std::optional<Couple> found;
  for (; !couples.Eof(); couples.MoveNext()) {
    const Couple couple = Current(couples);
    if (personID != 0 && (couple.spouse1ID == personID || couple.spouse2ID == personID)) {
      found = couple;
    }
  }
  return found;
}

bool GoTo(Recordset& couples, const Couple& couple)
{
  return Find(couples, "PrimaryKey", couple.annID);
}

void CopyName(Recordset& couples, int personID, const QVariant& firstName, const QVariant& lastName)
{
  for (const Couple& couple : Of(couples, personID)) {
    if (!GoTo(couples, couple)) {
      continue;
    }
    const bool first = couple.spouse1ID == personID;
    couples.Edit();
    couples.Fields(first ? QStringLiteral("Spouse1First") : QStringLiteral("Spouse2First")).SetValue(firstName);
    couples.Fields(first ? QStringLiteral("Spouse1Last") : QStringLiteral("Spouse2Last")).SetValue(lastName);
    couples.Update();
  }
}

void ForgetWedding(Recordset& people, int personID)
{
  if (!Find(people, "PrimaryKey", personID)) {
    return;
  }
  people.Edit();
  for (const char* column : kDateColumns) {
    people.Fields(QLatin1String(column)).SetValue(QVariant());
  }
  people.Update();
}

void ConvertBlanks(Database& database)
{
  const QVariant blank = QStringLiteral("");
  for (const char* column : kDateColumns) {
    const auto dates = database.OpenRange(Queries::kCoupleDates, {QLatin1String(column), blank, blank});
    for (; !dates->Eof(); dates->MoveNext()) {
      dates->Edit();
      dates->Fields(QLatin1String(column)).SetValue(QVariant());
      dates->Update();
    }
  }
}

}
