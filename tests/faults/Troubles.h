// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "HouseholdFolder.h"
#include "Player.h"

#include <optional>
#include <vector>

// Something that goes wrong while a deed is done.
struct Trouble
{
  QString kind;  // as the table has it
  QString text;  // which of its kind
  Order order;
  const char* held = nullptr;  // another program has the database: how its transaction begins
  std::optional<HouseholdFolder::Locked> locked = {};
  qint64 room = -1;  // what is left on the disk; below 0 all

  [[nodiscard]] bool Kills() const
  {
    return order.fault == FileCalls::Fault::kKill || order.fault == FileCalls::Fault::kKillWithin;
  }
};

namespace Troubles {

inline const QStringList kKinds = {"killed", "full disk", "failing disk", "read-only disk", "no rights", "locked"};

// All that can come between at the steps that the deed takes.
[[nodiscard]] std::vector<Trouble> Of(int deed, const std::vector<FileCalls::Step>& steps, bool withSmallDisk);

// So many of them; which ones, the seed says.
[[nodiscard]] std::vector<Trouble> Some(std::vector<Trouble> all, std::size_t count, unsigned seed);

}
