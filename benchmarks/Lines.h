// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <vector>

// What one piece of work cost, and what it is held against, in the same unit and from the
// same run. Without a limit the work is held against itself at the first of its sizes.
struct Figures
{
  double measured = 0;
  std::optional<double> limit;
};

// One line of the table of speed.
struct Line
{
  std::string work;
  std::string against;
  double must = std::numeric_limits<double>::infinity();
  std::function<Figures(int size)> measure;
  // Numbers of people or events. The last one is the one that counts.
  std::vector<int> sizes = {200, 10'000, 100'000};
  // How much more than the first of its sizes the last one is of the same work.
  double times = 1;
  double inUnits = 1000;
  std::string unit = "ms";
};

using Lines = std::vector<Line>;

// The lines of each part of the program.
Lines StartLines();
Lines ReminderCheckLines();
Lines EditorLines();
Lines LookUpLines();
Lines OccasionLines();
Lines CalendarLines();
Lines ChartLines();
Lines PrintingLines();
