// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/ComboBox.h"
#include "controls/KeyedList.h"

class Recordset;

// The list of people whose address can be copied.
class AddressList
{
public:
  explicit AddressList(ComboBox& box) : lines_(box) {}

  // Lists the people of the cursor anew, in its order, and leaves it past its last row.
  void Refresh(Recordset& cursor);

  void Clear() { lines_.Clear(); }

  // PeopleID of the chosen line; 0 if none is chosen.
  [[nodiscard]] int ChosenID() const { return lines_.ChosenKey(); }

private:
  KeyedList<ComboBox> lines_;
};
