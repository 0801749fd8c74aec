// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Lines.h"

#include <algorithm>
#include <chrono>

inline constexpr int kRuns = 15;

template <typename Work>
double SecondsFor(Work&& work)
{
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The middle one of the values.
inline double Median(std::vector<double> values)
{
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

// The middle one of so many runs of what gives seconds.
template <typename Measure>
double MedianOf(Measure&& measure, int runs = kRuns)
{
  std::vector<double> seconds;
  for (int run = 0; run < runs; ++run) {
    seconds.push_back(measure());
  }
  return Median(seconds);
}

// Both by turns, so that what else the machine does meets both.
template <typename Measure, typename Limit>
Figures ByTurns(Measure&& measure, Limit&& limit, int runs = kRuns)
{
  std::vector<double> measured;
  std::vector<double> limits;
  for (int run = 0; run < runs; ++run) {
    limits.push_back(limit());
    measured.push_back(measure());
  }
  return {Median(measured), Median(limits)};
}
