// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "store/Database.h"

#include <memory>
#include <optional>
#include <vector>

class ListBox;

// All people in one order, and the cursor they were listed from. Does not own the list box.
class NameList
{
public:
  explicit NameList(ListBox& box) : box_(box) {}

  // Opens the query anew and lists its people; without any the list stays as it is, and
  // this is false.
  bool Open(const QString& query);

  void Close();

  // The cursor. Throws 3420 before it is opened.
  [[nodiscard]] Recordset& Person();
  [[nodiscard]] bool IsEmpty();
  [[nodiscard]] int Count() const { return static_cast<int>(keys_.size()); }

  // Puts the cursor on the person of the chosen line. Their PeopleID, or 0 if there is no
  // choice, or if they are gone by now.
  int GoToChosen();

private:
  void Fill();

  ListBox& box_;
  std::optional<Database> database_;
  std::unique_ptr<Recordset> people_;
  std::vector<int> keys_;  // by line
};
