// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/Schema.h"

#include <algorithm>

namespace {

template <typename Items>
auto FindByName(const Items& items, const QString& name) -> decltype(items.data())
{
  const auto found = std::find_if(items.begin(), items.end(),
                                  [&](const auto& item) { return item.name.compare(name, Qt::CaseInsensitive) == 0; });
  return found == items.end() ? nullptr : &*found;
}

}

const ColumnSchema* TableSchema::FindColumn(const QString& column) const
{
  return FindByName(columns, column);
}

const IndexSchema* TableSchema::FindIndex(const QString& index) const
{
  return FindByName(indexes, index);
}

QString QuoteName(const QString& name)
{
  QString inner = name;
  inner.replace(QLatin1Char('"'), QLatin1String("\"\""));
  return QLatin1Char('"') + inner + QLatin1Char('"');
}
