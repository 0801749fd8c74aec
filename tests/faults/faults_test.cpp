// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "FaultsTest.h"

namespace {

class Faults : public FaultsTest
{
protected:
  static void TearDownTestSuite()
  {
    if (!IsShortRun()) {
      table.Print();
    }
  }

  void Try(const Player& player, int deed)
  {
    constexpr std::size_t kUsual = 3;
    SCOPED_TRACE(player.Deeds().at(deed).toStdString());
    for (const Trouble& trouble : Chosen(DoUndisturbed(player, deed), kUsual)) {
      SCOPED_TRACE(trouble.text.toStdString());
      ExpectEnding(Disturb(player, trouble), trouble);
      ExpectThatItStarts();
      table.Count(player.Deeds().at(deed), trouble.kind, ExpectWhole(household.Read(), trouble));
    }
  }

  // It dies when it is to; else it goes on, or says why it does not.
  static void ExpectEnding(const Outcome& outcome, const Trouble& trouble)
  {
    EXPECT_FALSE(outcome.failed);
    if (trouble.Kills()) {
      EXPECT_TRUE(outcome.ending.killed) << "the moment did not come";
      return;
    }
    EXPECT_EQ(outcome.struck > 0, trouble.order.fault != FileCalls::Fault::kNone);
    const bool says = !outcome.boxes.empty() && outcome.boxes.last().startsWith("Run-time error '");
    EXPECT_EQ(outcome.ending.status, says ? EXIT_FAILURE : EXIT_SUCCESS) << outcome.boxes.join('\n').toStdString();
  }

  // Between the delete and the rename of a compaction all is in the copy.
  void ExpectThatItStarts() const
  {
    if (!household.HasDatabase()) {
      const Start start = StartAgain(Folder(), GetParam());
      EXPECT_EQ(start.boxes.size(), 1);
      EXPECT_FALSE(start.hasPage);
      EXPECT_FALSE(household.HasDatabase());
      ASSERT_TRUE(household.HasCopy());
      household.PutCopyInPlace();
    }
    const Start start = StartAgain(Folder(), GetParam());
    EXPECT_EQ(start.boxes.join('\n').toStdString(), "");
    EXPECT_TRUE(start.hasPage);
    household.WriteAnything();
  }

  static inline FaultTable table;
};

}

TEST_P(Faults, LeaveAllAsItWasOrAsEntered)
{
  const Player player(Folder(), GetParam());
  ASSERT_FALSE(player.Deeds().empty()) << "the program did not come to where it writes";
  Begin();
  for (int deed = 0; deed < player.Deeds().size(); ++deed) {
    Try(player, deed);
  }
}

INSTANTIATE_TEST_SUITE_P(Records, Faults, testing::ValuesIn(Stages::OfRecords()), NameOfStage);
INSTANTIATE_TEST_SUITE_P(Couples, Faults, testing::ValuesIn(Stages::OfCouples()), NameOfStage);
INSTANTIATE_TEST_SUITE_P(Events, Faults, testing::ValuesIn(Stages::OfEvents()), NameOfStage);
INSTANTIATE_TEST_SUITE_P(Settings, Faults, testing::ValuesIn(Stages::OfSettings()), NameOfStage);
INSTANTIATE_TEST_SUITE_P(Care, Faults, testing::ValuesIn(Stages::OfCare()), NameOfStage);
