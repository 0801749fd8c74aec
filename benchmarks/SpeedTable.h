// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Lines.h"

#include <benchmark/benchmark.h>
#include <map>

// Registers every line at each of its sizes, gathers their figures and prints them.
class SpeedTable : public benchmark::BenchmarkReporter
{
public:
  explicit SpeedTable(Lines lines);

  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;

  // The two tables, in Markdown; false if a line misses its limit.
  [[nodiscard]] bool Print() const;

private:
  using BySize = std::map<int, Figures>;

  void PrintLimits() const;
  void PrintGrowth() const;
  [[nodiscard]] const BySize* FiguresOf(const Line& line) const;

  Lines lines_;
  std::map<std::string, BySize> figures_;
};
