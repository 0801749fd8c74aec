// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "SpeedTable.h"

#include <cmath>
#include <iomanip>
#include <iostream>
#include <sstream>

namespace {

std::string Rounded(double value, int places)
{
  std::ostringstream text;
  text << std::fixed << std::setprecision(places) << value;
  return text.str();
}

std::string InUnits(const Line& line, double value)
{
  const double units = value * line.inUnits;
  return Rounded(units, units < 10 ? 2 : units < 100 ? 1 : 0) + ' ' + line.unit;
}

double RatioOf(const Line& line, const std::map<int, Figures>& figures)
{
  const Figures& last = figures.at(line.sizes.back());
  return last.measured / last.limit.value_or(figures.at(line.sizes.front()).measured * line.times);
}

bool Misses(const Line& line, const std::map<int, Figures>& figures)
{
  return RatioOf(line, figures) > line.must;
}

}

SpeedTable::SpeedTable(Lines lines) : lines_(std::move(lines))
{
  for (const Line& line : lines_) {
    auto* measurement = benchmark::RegisterBenchmark(line.work.c_str(), [this, &line](benchmark::State& state) {
      for (auto _ : state) {
        const auto size = static_cast<int>(state.range(0));
        const Figures figures = line.measure(size);
        figures_[line.work][size] = figures;
        state.SetIterationTime(figures.measured);
      }
    });
    for (const int size : line.sizes) {
      measurement->Arg(size);
    }
    measurement->Iterations(1)->UseManualTime();
  }
}

bool SpeedTable::ReportContext(const Context& /*context*/)
{
  return true;
}

void SpeedTable::ReportRuns(const std::vector<Run>& runs)
{
  for (const Run& run : runs) {
    std::cerr << run.benchmark_name() << '\n';
  }
}

// Nothing if the line was left out of this run.
const SpeedTable::BySize* SpeedTable::FiguresOf(const Line& line) const
{
  const auto found = figures_.find(line.work);
  return found == figures_.end() || found->second.size() < line.sizes.size() ? nullptr : &found->second;
}

void SpeedTable::PrintLimits() const
{
  std::cout << "| Work | Measured against | Must | Seen |\n|---|---|---|---|\n";
  for (const Line& line : lines_) {
    if (const BySize* figures = FiguresOf(line)) {
      std::cout << "| " << line.work << " | " << line.against << " | "
                << (std::isinf(line.must) ? "" : "<= " + Rounded(line.must, 1)) << " | "
                << Rounded(RatioOf(line, *figures), 2) << (Misses(line, *figures) ? " MISSED" : "") << " |\n";
    }
  }
}

void SpeedTable::PrintGrowth() const
{
  std::cout << "\n| Work | 200 | 10,000 | 100,000 |\n|---|---|---|---|\n";
  for (const Line& line : lines_) {
    const BySize* figures = FiguresOf(line);
    if (figures != nullptr && figures->size() == 3) {
      std::cout << "| " << line.work;
      for (const auto& [size, seen] : *figures) {
        std::cout << " | " << InUnits(line, seen.measured);
      }
      std::cout << " |\n";
    }
  }
}

bool SpeedTable::Print() const
{
  PrintLimits();
  PrintGrowth();
  return std::none_of(lines_.begin(), lines_.end(), [this](const Line& line) {
    const BySize* figures = FiguresOf(line);
    return figures != nullptr && Misses(line, *figures);
  });
}
