// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A query in the program's dialect: it is refused, or its rows are walked to the end.

#include "FuzzHousehold.h"
#include "FuzzTarget.h"
#include "platform/RuntimeError.h"
#include "store/Dialect.h"
#include "store/StoreError.h"

#include <cstdlib>

namespace {

void Walk(Recordset& rows, const Dialect::Select& select)
{
  constexpr int kMostRows = 100;
  int count = 0;
  for (; !rows.Eof(); rows.MoveNext()) {
    for (const Dialect::Item& item : select.items) {
      static_cast<void>(rows.Fields(item.name).Value());
    }
    if (++count > kMostRows) {
      std::abort();
    }
  }
}

bool IsRefusal(int number)
{
  return number == StoreError::kSyntax || number == StoreError::kUnknownColumn || number == StoreError::kUnknownTable;
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  static const FuzzHousehold household;
  const QString query = QString::fromUtf8(InputFrom(data, size));
  try {
    // A database of its own each time: what is prepared for a query is kept as long as its database.
    Database database = household.Open();
    Walk(*database.OpenRecordset(query, Database::kDynaset), Dialect::ParseSelect(query));
    static_cast<void>(database.Translate(query));
  } catch (const RuntimeError& error) {
    if (!IsRefusal(error.Number())) {
      std::abort();
    }
  }
  return 0;
}
