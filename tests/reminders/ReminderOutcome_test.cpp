// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/ReminderOutcome.h"

#include "reminders/ReminderRule.h"

#include <gtest/gtest.h>

namespace {

enum Setting
{
  kNo,
  kYes,
  kAny,
};

// One line of the table: reminders active, asked for, hit, text, audio, on start.
struct Line
{
  Setting settings[6];
  ReminderOutcome outcome;
};

constexpr Line kTable[] = {
    {{kNo, kYes, kAny, kAny, kAny, kAny}, ReminderOutcome::kNotActive},
    {{kNo, kNo, kAny, kAny, kAny, kAny}, ReminderOutcome::kNothing},
    {{kYes, kYes, kNo, kYes, kAny, kAny}, ReminderOutcome::kNothingComingUp},
    {{kYes, kYes, kNo, kNo, kYes, kAny}, ReminderOutcome::kNothingComingUp},
    {{kYes, kYes, kNo, kNo, kNo, kAny}, ReminderOutcome::kNothing},
    {{kYes, kNo, kNo, kAny, kAny, kAny}, ReminderOutcome::kNothing},
    {{kYes, kYes, kYes, kYes, kAny, kAny}, ReminderOutcome::kManualNotices},
    {{kYes, kNo, kYes, kYes, kAny, kYes}, ReminderOutcome::kStartUpNotices},
    {{kYes, kNo, kYes, kYes, kAny, kNo}, ReminderOutcome::kNothing},
    {{kYes, kYes, kYes, kNo, kYes, kAny}, ReminderOutcome::kClipsOnly},
    {{kYes, kYes, kYes, kNo, kNo, kAny}, ReminderOutcome::kNothing},
    {{kYes, kNo, kYes, kNo, kYes, kYes}, ReminderOutcome::kClipsOnly},
    {{kYes, kNo, kYes, kNo, kNo, kAny}, ReminderOutcome::kNothing},
    {{kYes, kNo, kYes, kNo, kYes, kNo}, ReminderOutcome::kNothing},
};

bool Fits(const Line& line, int combination)
{
  for (int i = 0; i < 6; ++i) {
    const bool set = (combination >> i & 1) != 0;
    if (line.settings[i] != kAny && (line.settings[i] == kYes) != set) {
      return false;
    }
  }
  return true;
}

ReminderFacts FactsOf(int combination)
{
  const auto bit = [combination](int i) { return (combination >> i & 1) != 0; };
  return {bit(0), bit(1), bit(2), bit(3), bit(4), bit(5)};
}

}

TEST(ReminderOutcome, EveryCombinationOfSettingsHasOneLineAndItsOutcome)
{
  for (int combination = 0; combination < 64; ++combination) {
    int lines = 0;
    for (const Line& line : kTable) {
      if (Fits(line, combination)) {
        ++lines;
        EXPECT_EQ(DecideOutcome(FactsOf(combination)), line.outcome) << "combination " << combination;
      }
    }
    EXPECT_EQ(lines, 1) << "combination " << combination;
  }
}

TEST(ReminderRule, OnceHoldsOnTheOneDayOnly)
{
  const ReminderRule rule{true, true, false, 3};
  for (int days = -2; days <= 5; ++days) {
    EXPECT_EQ(rule.Holds(days), days == 3) << days;
  }
}

TEST(ReminderRule, ManyHoldsFromThatDayToTheOccasion)
{
  const ReminderRule rule{true, false, true, 3};
  for (int days = -2; days <= 5; ++days) {
    EXPECT_EQ(rule.Holds(days), days >= 0 && days <= 3) << days;
  }
}

TEST(ReminderRule, WithLengthZeroBothHoldOnTheDayOnly)
{
  for (const bool once : {true, false}) {
    const ReminderRule rule{true, once, !once, 0};
    EXPECT_FALSE(rule.Holds(-1));
    EXPECT_TRUE(rule.Holds(0));
    EXPECT_FALSE(rule.Holds(1));
  }
}

TEST(ReminderRule, SwitchedOffOrUnknownNeverHolds)
{
  EXPECT_FALSE((ReminderRule{false, true, true, 0}).Holds(0));
  EXPECT_FALSE((ReminderRule{true, true, true, std::nullopt}).Holds(0));
  EXPECT_FALSE((ReminderRule{true, false, false, 0}).Holds(0));
}
