// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Troubles.h"

#include <algorithm>
#include <array>
#include <random>

namespace {

using FileCalls::Fault;

struct AtSteps
{
  Fault fault;
  int kind;
  const char* text;
};

constexpr std::array<AtSteps, 7> kAtSteps = {{{Fault::kKill, 0, "killed before"},
                                              {Fault::kKillWithin, 0, "killed halfway in"},
                                              {Fault::kFullDisk, 1, "disk full from"},
                                              {Fault::kFullWithin, 1, "disk full halfway in"},
                                              {Fault::kDiskError, 2, "disk error at"},
                                              {Fault::kReadOnlyDisk, 3, "disk read-only from"},
                                              {Fault::kNoRights, 4, "no rights from"}}};

constexpr std::array<qint64, 6> kLongestFiles = {0, 600, 5'000, 20'000, 30'000, 100'000};
constexpr std::array<qint64, 8> kRooms = {0, 4096, 8192, 16'384, 32'768, 65'536, 131'072, 262'144};

constexpr std::array<const char*, 3> kHolders = {"BEGIN EXCLUSIVE", "BEGIN IMMEDIATE", "BEGIN; SELECT * FROM Options"};

QString Named(const FileCalls::Step& step, int number)
{
  return QStringLiteral(" step %1, %2 %3")
      .arg(number)
      .arg(QString::fromStdString(step.call), QString::fromStdString(step.path));
}

void AddAtSteps(int deed, const std::vector<FileCalls::Step>& steps, std::vector<Trouble>& troubles)
{
  for (const AtSteps& each : kAtSteps) {
    for (int number = 1; number <= static_cast<int>(steps.size()); ++number) {
      const FileCalls::Step& step = steps[static_cast<std::size_t>(number) - 1];
      if (FileCalls::Concerns(each.fault, step)) {
        Trouble trouble{Troubles::kKinds[each.kind], each.text + Named(step, number), {deed, each.fault, number}};
        troubles.push_back(trouble);
      }
    }
  }
}

void AddFullDisks(int deed, bool withSmallDisk, std::vector<Trouble>& troubles)
{
  for (const qint64 bytes : kLongestFiles) {
    Trouble trouble{Troubles::kKinds[1], QStringLiteral("no file longer than %1").arg(bytes), {deed}};
    trouble.order.longestFile = bytes;
    troubles.push_back(trouble);
  }
  for (const qint64 bytes : kRooms) {
    Trouble trouble{Troubles::kKinds[1], QStringLiteral("%1 bytes left on the disk").arg(bytes), {deed}};
    trouble.room = bytes;
    if (withSmallDisk) {
      troubles.push_back(trouble);
    }
  }
}

void AddRights(int deed, std::vector<Trouble>& troubles)
{
  using Locked = HouseholdFolder::Locked;
  for (const auto& [locked, text] :
       {std::pair(Locked::kFolder, "the folder"), std::pair(Locked::kPictures, "the folders of pictures"),
        std::pair(Locked::kEverything, "all")}) {
    Trouble trouble{Troubles::kKinds[4], QStringLiteral("no rights on ") + text, {deed}};
    trouble.order.withoutRights = true;
    trouble.locked = locked;
    troubles.push_back(trouble);
  }
}

void AddHolders(int deed, std::vector<Trouble>& troubles)
{
  for (const char* held : kHolders) {
    Trouble trouble{Troubles::kKinds[5], held, {deed}};
    trouble.held = held;
    troubles.push_back(trouble);
  }
}

}

namespace Troubles {

std::vector<Trouble> Of(int deed, const std::vector<FileCalls::Step>& steps, bool withSmallDisk)
{
  std::vector<Trouble> troubles;
  AddAtSteps(deed, steps, troubles);
  AddFullDisks(deed, withSmallDisk, troubles);
  AddRights(deed, troubles);
  AddHolders(deed, troubles);
  return troubles;
}

std::vector<Trouble> Some(std::vector<Trouble> all, std::size_t count, unsigned seed)
{
  std::mt19937 random(seed);
  std::shuffle(all.begin(), all.end(), random);
  all.resize(std::min(count, all.size()));
  return all;
}

}
