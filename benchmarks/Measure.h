// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Household.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <vector>

template <typename Work>
double SecondsFor(Work&& work)
{
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The middle one of so many runs of what gives seconds.
template <typename Measure>
double MedianOf(Measure&& measure, int runs = 15)
{
  std::vector<double> seconds;
  for (int run = 0; run < runs; ++run) {
    seconds.push_back(measure());
  }
  return Median(seconds);
}

// Prints what was measured and what it was measured against, both in seconds, and their ratio.
inline void ReportRatio(benchmark::State& state, double measured, double against, double must)
{
  state.counters["ms"] = measured * 1000;
  state.counters["against_ms"] = against * 1000;
  state.counters["ratio"] = measured / against;
  state.counters["must"] = must;
}
