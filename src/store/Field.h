// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QVariant>

class Recordset;

// One column of a cursor's current row.
class Field
{
public:
  Field(Recordset& owner, int column) : owner_(&owner), column_(column) {}

  // Null is a null QVariant. Throws 3021 without a current row, 3167 if it was deleted.
  [[nodiscard]] QVariant Value() const;

  // The same without a copy, for long walks: good until this cursor
  // moves or any cursor writes.
  [[nodiscard]] const QVariant& Peek() const;

  // Takes effect with Update. Throws 3020 outside Edit and AddNew, 3027 for a computed column.
  void SetValue(const QVariant& value);

private:
  Recordset* owner_;
  int column_;
};
