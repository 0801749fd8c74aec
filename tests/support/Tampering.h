// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

#include <functional>
#include <vector>

// Runs work in a process of its own whose changes to files can be watched, made to fail,
// or be its last.
namespace Tampering {

// One change to a file, or one step towards it.
struct Step
{
  QString call;  // the system call
  int number;    // the how manieth of its kind
  QString line;  // with everything in it, paths included
};

struct Outcome
{
  bool killed = false;
  QStringList said;         // what the work said, line by line
  std::vector<Step> steps;  // those that have to do with the folder
};

// Tells somebody outside what happens inside.
using Say = std::function<void(const QString& line)>;
using Work = std::function<void(const Say& say)>;

// Runs the work and takes down its steps in files at or below `folder`.
[[nodiscard]] Outcome Watch(const Work& work, const QString& folder);

// Runs it once more: the process is killed when it is about to take the step.
[[nodiscard]] Outcome KillAt(const Step& step, const Work& work, const QString& folder);

// Runs it once more: the step fails with the error, such as ENOSPC. `onwards` lets all
// that follow of its kind fail as well, but for plain writes.
[[nodiscard]] Outcome FailAt(const Step& step, const QString& error, bool onwards, const Work& work,
                             const QString& folder);

}
