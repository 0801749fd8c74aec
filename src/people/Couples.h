// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "store/Database.h"

#include <optional>
#include <vector>

// The couples that a person belongs to. Cursors handed in are table cursors on "Ann".
namespace Couples {

// A couple of the person, by its key and those of its partners.
struct Couple
{
  int annID = 0;
  int spouse1ID = 0;
  int spouse2ID = 0;

  [[nodiscard]] int PartnerOf(int personID) const { return spouse1ID == personID ? spouse2ID : spouse1ID; }
};

// Stands on the row of that key in the index. False if there is none. For any table cursor.
bool Find(Recordset& table, const char* index, int key);

// In the order of the table. There is one at the most, unless the file was damaged.
[[nodiscard]] std::vector<Couple> Of(Recordset& couples, int personID);

// The last in the table, which is walked to its end, whatever its indexes say.
[[nodiscard]] std::optional<Couple> LastOf(Recordset& couples, int personID);

// Stands on the couple. False if it is gone.
bool GoTo(Recordset& couples, const Couple& couple);

// Writes the person's new name into every couple of theirs.
void CopyName(Recordset& couples, int personID, const QVariant& firstName, const QVariant& lastName);

// Makes the wedding date of one person Null; `people` is a table cursor on "People".
void ForgetWedding(Recordset& people, int personID);

// Makes Null every part of a couple's wedding date that is an empty text.
void ConvertBlanks(Database& database);

}
