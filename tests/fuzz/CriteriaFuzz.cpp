// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The criteria of a search: refused with the cursor left as it is, or answered.

#include "FuzzHousehold.h"
#include "FuzzTarget.h"
#include "platform/RuntimeError.h"
#include "store/Queries.h"
#include "store/StoreError.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  static const FuzzHousehold household;
  Database database = household.Open();
  const auto rows = database.OpenRecordset(Queries::kRecords, Database::kDynaset);
  rows->MoveNext();
  const int place = rows->AbsolutePosition();
  bool stays = true;
  try {
    rows->FindFirst(QString::fromUtf8(InputFrom(data, size)));
    stays = rows->NoMatch();
  } catch (const RuntimeError& error) {
    if (error.Number() != StoreError::kSyntax && error.Number() != StoreError::kUnknownColumn) {
      std::abort();
    }
  }
  if (rows->AbsolutePosition() < 0 || (stays && rows->AbsolutePosition() != place)) {
    std::abort();
  }
  return 0;
}
