// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "people/AddressList.h"

#include "platform/Attempt.h"
#include "store/Recordset.h"

void AddressList::Refresh(Recordset& cursor)
{
  lines_.Clear();
  Attempt([&] { cursor.MoveFirst(); });
  Field& name = cursor.Fields(QStringLiteral("FullName"));
  Field& key = cursor.Fields(QStringLiteral("PeopleID"));
  QStringList lines;
  std::vector<int> keys;
  for (; !cursor.Eof(); cursor.MoveNext()) {
    lines.append(name.Peek().toString());
    keys.push_back(key.Peek().toInt());
  }
  lines_.Fill(lines, std::move(keys));
}
