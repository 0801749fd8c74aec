// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "FaultTable.h"
#include "HouseholdFolder.h"
#include "Player.h"
#include "SmallDisk.h"
#include "Troubles.h"

#include "support/EnvironmentVariable.h"

#include <gtest/gtest.h>

// A household on a small disk, something that is to be written there, and what it looked
// like before and after.
class FaultsTest : public testing::TestWithParam<Stage>
{
protected:
  static void SetUpTestSuite();

  // How many troubles each deed gets: FAULTS, a number or "all", says.
  [[nodiscard]] static std::vector<Trouble> Chosen(std::vector<Trouble> all, std::size_t usual);
  [[nodiscard]] static bool IsShortRun() { return qgetenv("FAULTS").isEmpty(); }

  [[nodiscard]] const ProgramFolder& Folder() const { return household.Folder(); }

  // Takes down what stands there, now that the program is about to write.
  void Begin();
  // Does the deed undisturbed, and takes down what stands there then. Gives all that can
  // come between.
  [[nodiscard]] std::vector<Trouble> DoUndisturbed(const Player& player, int deed);
  // Does it again from the beginning, with something that comes between.
  [[nodiscard]] Outcome Disturb(const Player& player, const Trouble& trouble) const;

  // The rows are those before the deed, or those after it, and files follow the rows.
  [[nodiscard]] FaultTable::Rows ExpectWhole(const HouseholdFolder::State& now, const Trouble& trouble) const;

  SmallDisk disk;
  EnvironmentVariable temporaryFiles{"TMPDIR", disk.Path()};
  HouseholdFolder household;
  HouseholdFolder::Image image;
  HouseholdFolder::State before;
  HouseholdFolder::State after;
};

// A test by the name of its stage.
[[nodiscard]] std::string NameOfStage(const testing::TestParamInfo<Stage>& info);
