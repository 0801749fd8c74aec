// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "RandomRun.h"

namespace {

constexpr int kSteps = 2000;
constexpr unsigned kUsualSeed = 20260505;

unsigned Seed()
{
  bool isSet = false;
  const unsigned seed = qEnvironmentVariable("QUILLMARK_TEST_SEED").toUInt(&isSet);
  return isSet ? seed : kUsualSeed;
}

}

// Any other run can be had by its seed in QUILLMARK_TEST_SEED.
TEST_F(RandomRun, ThousandsOfStepsLeavePeopleAndCouplesInStep)
{
  const unsigned seed = Seed();
  chance.seed(seed);
  QDir(folder.Path()).mkdir("PeoplePics");
  for (int step = 0; step < kSteps; ++step) {
    Step();
    ExpectAsModelled();
    ASSERT_FALSE(HasFailure()) << "seed " << seed << ", step " << step << ": " << last;
  }
  for (const char* kind : {"add a person", "rename", "change notes", "delete a person", "delete a person with partner",
                           "refuse a deletion with partner", "make a couple", "change a date", "replace a partner",
                           "refuse a double marriage", "delete a couple", "edit anniversary", "leave the couple editor",
                           "leave the record editor", "open an editor"}) {
    EXPECT_GT(taken[kind], 0) << kind << ", seed " << seed;
  }
}
