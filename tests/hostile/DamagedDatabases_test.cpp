// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Apart.h"
#include "Damage.h"
#include "Household.h"
#include "StoreWalk.h"
#include "Verdict.h"
#include "Visit.h"

#include <gtest/gtest.h>

#include <map>

namespace {

// How many databases are damaged: more for those who can wait.
int Seeds(int usual)
{
  const int wanted = qEnvironmentVariableIntValue("QUILLMARK_HOSTILE");
  return wanted > 0 ? wanted : usual;
}

class DamagedDatabases : public testing::Test
{
protected:
  // Does the work on the household's database as damaged by each seed, and says how it went.
  void ForEachSeed(int count, const std::function<void(const Apart::Say& say, Damage& chance)>& work)
  {
    const QByteArray whole = Household::Contents(household.DatabasePath());
    std::map<QString, int> counts;
    for (int seed = 1; seed <= count; ++seed) {
      const QByteArray damaged = Damage(static_cast<unsigned>(seed)).Database(whole);
      Household::Write(household.DatabasePath(), damaged);
      const Apart::Outcome outcome = Apart::Run([&](const Apart::Say& say) {
        Damage chance(static_cast<unsigned>(seed));
        work(say, chance);
      });
      ++counts[Verdict::Of(outcome)];
      EXPECT_EQ(Verdict::Faults(outcome).join(u';').toStdString(), "")
          << "seed " << seed << ": " << Verdict::Story(outcome);
    }
    for (const auto& [verdict, times] : counts) {
      RecordProperty(verdict.toStdString(), times);
      std::printf("%5d %s\n", times, qPrintable(verdict));
    }
  }

  Household household;
};

}

TEST_F(DamagedDatabases, AWholeOneIsVisitedWithoutAWordOrAWrite)
{
  const Apart::Outcome outcome = Apart::Run([](const Apart::Say& say) {
    Damage chance(1);
    Visit::Program(say, chance, Visit::PageCount());
  });
  EXPECT_EQ(outcome.end, Apart::End::kWell) << Verdict::Story(outcome);
  EXPECT_EQ(Verdict::Faults(outcome).join(u';').toStdString(), "");
}

TEST_F(DamagedDatabases, EveryCursorComesToItsEndOrFailsAndWritesNothing)
{
  ForEachSeed(Seeds(100), [](const Apart::Say& say, Damage&) { StoreWalk::Everything(say); });
}

TEST_F(DamagedDatabases, EveryPageShowsWhatItCanOrEndsTheProgramWithAMessage)
{
  ForEachSeed(Seeds(20), [](const Apart::Say& say, Damage& chance) { Visit::Program(say, chance, 4); });
}
