// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "people/EntryRules.h"

#include <vector>

class Database;
class EntryBox;
class Form;
class Recordset;

// The boxes of the record editor, and the columns of a person that they stand for.
class RecordBoxes
{
public:
  explicit RecordBoxes(const Form& form);

  // These take in every box of the page.
  void LockFields() const;
  void UnlockFields() const;
  void ClearFields() const;

  // Fills in the columns that are not Null; the other boxes are left as they are.
  void Show(Recordset& row) const;

  [[nodiscard]] EntryRules::Entry Entry() const;

  // Takes the user to the box.
  void Focus(EntryRules::Box box) const;

  // Takes over the address and the home phone of another person.
  void CopyAddress(Recordset& row) const;

  // Every column gets its box's text as it stands, into the row in edit. A column that
  // cannot be written is passed over.
  void WriteFields(Recordset& row) const;

  // Makes Null what is empty in the person's row by the boxes: texts that are blank, and
  // parts of the birth date without any text. Throws what a write throws.
  void InfoConvert(Database& database, int personID) const;

private:
  [[nodiscard]] EntryBox& Box(const char* name) const;

  const Form& form_;
  std::vector<EntryBox*> boxes_;
};
