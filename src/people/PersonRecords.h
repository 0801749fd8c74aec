// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "people/Couples.h"
#include "store/Database.h"

#include <memory>

class RecordBoxes;

// The people as the record editor goes through them: one cursor, opened once, in the
// order of their names; who is added stays last. Writes are all or nothing.
class PersonRecords
{
public:
  // Opens the program's database. Throws what that throws.
  PersonRecords();

  [[nodiscard]] Recordset& Cursor() const { return *cursor_; }
  [[nodiscard]] bool IsEmpty() const { return cursor_->RecordCount() == 0; }

  // PeopleID of the current row; 0 if there is none. Needs nothing of the file.
  [[nodiscard]] int CurrentPeopleID() const;

  // For a row that cannot be shown, so that what stands on the page is not taken for its.
  void LeaveNoCurrentRow();

  // Goes to the person, or past the last row if they are not there.
  void GoTo(int personID);

  // Moves the cursor. A step off either end is taken back; false then.
  bool Step(void (Recordset::*move)());

  // Goes to the first person of that name, "last, first". False if there is none. A name
  // with a double quote in it cannot be looked for; what was found last decides then.
  bool FindName(const QString& fullName);

  // Writes what stands in the boxes as a new person, who is then the current one, or
  // over the current one, and into the couples' copies of the name. False if it could not
  // be written; then a new person leaves no current row, so that the boxes are not taken
  // for somebody else's.
  bool Add(const RecordBoxes& boxes);
  bool Change(const RecordBoxes& boxes);

  [[nodiscard]] std::vector<Couples::Couple> CouplesOfCurrent();

  // Lets the couple editor open on the couple of the current person. Without one, its
  // choice is left as it stood.
  void HandOverCouple();

  // Deletes the couples and the current person, and the wedding date of the partner. The
  // row before becomes the current one, or the first. False if nothing was deleted.
  bool Delete(const std::vector<Couples::Couple>& couples);

  // A cursor on the person's row. Without such a person it has no current row.
  [[nodiscard]] std::unique_ptr<Recordset> Find(int personID);

  // A fresh cursor over all people, for the list of addresses.
  [[nodiscard]] std::unique_ptr<Recordset> OpenAddresses();

private:
  [[nodiscard]] std::unique_ptr<Recordset> OpenTable(const char* name);
  void DeleteCouples(const std::vector<Couples::Couple>& couples);
  void LandAfterDelete();
  void VisitAllRows();

  Database database_;
  std::unique_ptr<Recordset> cursor_;
};
