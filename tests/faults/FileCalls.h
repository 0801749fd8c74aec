// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

// Stands between this process and the system. Counts the calls by which files in a folder
// are changed, and lets one of them go wrong, or all from one on.
namespace FileCalls {

enum class Kind
{
  kCreate,  // opened for writing, and made by that
  kOpen,    // opened for writing
  kWrite,
  kCut,    // made shorter or longer
  kFlush,  // put on the disk
  kName,   // deleted, renamed, linked
  kMode    // its permissions changed
};

struct Step
{
  Kind kind = Kind::kOpen;
  std::string call;
  std::string path;
};

enum class Fault
{
  kNone,
  kKill,          // the process dies before the step
  kKillWithin,    // the process dies when half of what the step writes is written
  kFullDisk,      // no room for anything new, from the step on
  kFullWithin,    // the same; the step itself still writes half
  kDiskError,     // the step fails, those after it do not
  kReadOnlyDisk,  // nothing can be changed, from the step on
  kNoRights,      // nothing can be opened for writing, deleted or renamed, from the step on
};

// Whether the fault is another one at this step than at the next.
[[nodiscard]] bool Concerns(Fault fault, const Step& step);

// From now on the calls for files in the folder are counted, beginning with 1, and the
// fault comes at the one of that number.
void Watch(const std::string& folder, Fault fault = Fault::kNone, int number = 0);
void Stop();

// The steps since Watch, and how many of them went wrong.
[[nodiscard]] const std::vector<Step>& Steps();
[[nodiscard]] int Struck();

}
