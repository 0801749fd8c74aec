// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "FileCalls.h"
#include "ForkedProcess.h"
#include "Stages.h"

#include <QStringList>

// How a deed is to be disturbed.
struct Order
{
  int deed = 0;
  FileCalls::Fault fault = FileCalls::Fault::kNone;
  int number = 0;
  qint64 longestFile = -1;     // no file grows longer; below 0 any
  bool withoutRights = false;  // as a user who owns nothing here
};

// What was seen of it from outside.
struct Outcome
{
  Ending ending;
  QStringList boxes;                   // the texts of the message boxes that came
  std::vector<FileCalls::Step> steps;  // none if it was killed
  int struck = 0;                      // calls that went wrong
  bool failed = false;                 // the test itself, within
};

// The program in a process of its own, brought to where one click is left. Each deed is
// then done by a fresh copy of that process.
class Player
{
public:
  Player(const ProgramFolder& folder, const Stage& stage);

  // Empty if the program did not come as far.
  [[nodiscard]] const QStringList& Deeds() const { return deeds_; }
  [[nodiscard]] Outcome Do(const Order& order) const;

private:
  QStringList deeds_;
  ForkedProcess program_;
};

// Starts the program anew, in a process of its own, and goes to the page that shows what
// was written. Gives the message boxes that came, and whether the page did.
struct Start
{
  QStringList boxes;
  bool hasPage = false;
};
[[nodiscard]] Start StartAgain(const ProgramFolder& folder, const Stage& stage);
