// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "lookup/AddressBlock.h"
#include "lookup/ResultBox.h"

#include <array>

class Recordset;

// The eight items of a person that the look-up page can show.
struct PersonResults
{
  ResultBox phone;
  ResultBox mobile;
  ResultBox business;
  ResultBox email;
  ResultBox address;
  ResultBox birthday;
  ResultBox anniversary;
  ResultBox notes;

  // The address last shown.
  AddressBlock block;

  // In the order in which they are printed and copied.
  [[nodiscard]] std::array<ResultBox*, 8> All()
  {
    return {&phone, &mobile, &business, &email, &address, &birthday, &anniversary, &notes};
  }

  [[nodiscard]] bool ContactWanted() const;
  [[nodiscard]] bool SpecialWanted() const;
  [[nodiscard]] bool AnyWanted() const;

  // Shows what is wanted of the cursor's row, and hides the rest.
  void ShowContact(Recordset& person);
  // True if a date with a gap is shown.
  bool ShowSpecial(Recordset& person);
  void ShowNotes(Recordset& person);

  // Empty and hide the boxes of a group, so that nothing of another person stays in them.
  void ForgetContact();
  void ForgetSpecial();
  void ForgetNotes();

  void HideAll();
};
