// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "FaultsTest.h"

#include "looks/Style.h"
#include "platform/Clock.h"
#include "shell/StartUp.h"
#include "support/HeldDatabase.h"

#include <QApplication>
#include <QRegularExpression>
#include <QStandardPaths>

namespace {

constexpr unsigned kSeed = 11;

// What is left of a file that was being written when the process died, or lost the right to
// take it away; and the copy that a compaction could not put in the place of the database.
bool IsLeftOver(const QString& name, const Trouble& trouble)
{
  using FileCalls::Fault;
  const Fault fault = trouble.order.fault;
  const bool mayStay = trouble.Kills() || fault == Fault::kNoRights || fault == Fault::kReadOnlyDisk;
  static const QRegularExpression halfWritten(R"(^((PeoplePics|AnnPics)/\d+\.bmp|backup\.mdb)\.\w{6}$)");
  static const QRegularExpression copy(R"(^Quillmark1\.mdb(-journal)?$)");
  return name.contains(copy) || (mayStay && name.contains(halfWritten));
}

}

void FaultsTest::SetUpTestSuite()
{
  QStandardPaths::setTestModeEnabled(true);
  Style::Apply(*qApp);
  RegisterForms();
  Clock::StopOn(QDate(2026, 5, 5));
}

std::vector<Trouble> FaultsTest::Chosen(std::vector<Trouble> all, std::size_t usual)
{
  const QByteArray wanted = qgetenv("FAULTS");
  if (wanted == "all") {
    return all;
  }
  const std::size_t count = wanted.isEmpty() ? usual : wanted.toUInt();
  const auto seed = kSeed + static_cast<unsigned>(all.size());
  return Troubles::Some(std::move(all), count, seed);
}

void FaultsTest::Begin()
{
  image = household.Take();
  before = household.Read();
}

std::vector<Trouble> FaultsTest::DoUndisturbed(const Player& player, int deed)
{
  household.PutBack(image);
  const Outcome whole = player.Do({deed});
  EXPECT_FALSE(whole.failed);
  EXPECT_EQ(whole.ending.status, 0);
  EXPECT_FALSE(whole.steps.empty());
  after = household.Read();
  EXPECT_TRUE(household.Take() != image) << "nothing was written";
  return Troubles::Of(deed, whole.steps, disk.CanBeFilled());
}

Outcome FaultsTest::Disturb(const Player& player, const Trouble& trouble) const
{
  household.PutBack(image);
  std::optional<HeldDatabase> holder;
  if (trouble.held != nullptr) {
    holder.emplace(Folder().DatabasePath(), trouble.held);
  }
  if (trouble.locked) {
    household.TakeRights(*trouble.locked);
  }
  if (trouble.room >= 0) {
    disk.Fill(trouble.room);
  }
  Outcome outcome = player.Do(trouble.order);
  household.GiveRights();
  disk.Empty();
  return outcome;
}

FaultTable::Rows FaultsTest::ExpectWhole(const HouseholdFolder::State& now, const Trouble& trouble) const
{
  const bool asBefore = now.rows == before.rows;
  const bool asEntered = now.rows == after.rows;
  EXPECT_TRUE(asBefore || asEntered) << now.rows.toStdString();
  QStringList names = now.files.keys() + before.files.keys() + after.files.keys();
  names.removeDuplicates();
  for (const QString& name : names) {
    const bool isOld = now.files.value(name) == before.files.value(name);
    const bool isNew = now.files.value(name) == after.files.value(name);
    EXPECT_TRUE(isOld || (isNew && asEntered) || IsLeftOver(name, trouble)) << name.toStdString();
  }
  return asBefore ? FaultTable::Rows::kAsBefore : FaultTable::Rows::kAsEntered;
}

std::string NameOfStage(const testing::TestParamInfo<Stage>& info)
{
  return info.param.name;
}
