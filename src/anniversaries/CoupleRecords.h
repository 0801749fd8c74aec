// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "people/DateRules.h"
#include "store/Database.h"

#include <QStringList>

#include <memory>
#include <vector>

// Lines for a list, and the keys of the rows that they stand for.
struct KeyedLines
{
  QStringList lines;
  std::vector<int> keys;
};

// The couples as the couple editor sees them, with the copies of their wedding dates that
// their partners' own rows hold. What is written is all or nothing.
class CoupleRecords
{
public:
  // The partners' columns in a couple.
  enum class Spouse
  {
    kWife,
    kHusband,
  };

  enum class Outcome
  {
    kWritten,
    kAlreadyMarried,  // both, to others
    kFailed,
  };

  // Opens the program's database. Throws what that throws.
  CoupleRecords();

  struct Partners
  {
    KeyedLines women;
    KeyedLines men;
  };

  // People by name, and couples in the order of the table.
  [[nodiscard]] Partners People();
  [[nodiscard]] KeyedLines All();

  // The wedding date in the person's own row; empty parts for Null.
  [[nodiscard]] PartialDate WeddingOf(int personID);

  // Makes the couple of the person the current one. False if there is none; then no
  // couple is current.
  bool GoToCoupleOf(Spouse spouse, int personID);

  // Keys of the current couple; 0 if none is current.
  [[nodiscard]] int CurrentAnnID() const;
  [[nodiscard]] int CurrentSpouseID(Spouse spouse) const;

  // Makes the two a couple, or changes the couple that either of them belongs to; who is
  // left over loses the wedding date. The couple is then the current one.
  Outcome Write(int wifeID, int husbandID, const PartialDate& wedding);

  // Parts the couple of that key. False if it could not be.
  bool Delete(int annID);

private:
  [[nodiscard]] std::unique_ptr<Recordset> OpenTable(const char* name);
  [[nodiscard]] std::vector<int> CouplesOfEither(int wifeID, int husbandID);
  void WriteCouple(Recordset& wife, Recordset& husband, const PartialDate& wedding);
  void SetColumns(Recordset& wife, Recordset& husband, const PartialDate& wedding);
  void ClearStaleDates();

  Database database_;
  std::unique_ptr<Recordset> couples_;
};
