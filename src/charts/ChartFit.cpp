// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "charts/ChartFit.h"

#include <algorithm>
#include <cmath>

namespace ChartFit {
namespace {

constexpr double kAir = 1.08;        // above the highest total, for its number
constexpr double kLeastBar = 20;     // pixels for a bar with its name on end
constexpr double kBetweenNames = 4;  // pixels

double NiceAbove(double least)
{
  const double power = std::pow(10, std::floor(std::log10(least)));
  for (const double digit : {1, 2, 5}) {
    if (digit * power >= least) {
      return digit * power;
    }
  }
  return 10 * power;
}

}

Scale ScaleFor(double highest, int mostSteps)
{
  if (highest <= 0) {
    return {};
  }
  const double needed = highest * kAir;
  const double step = std::max(1.0, NiceAbove(needed / mostSteps));
  return {std::ceil(needed / step) * step, step};
}

qsizetype MostBars(double room)
{
  return std::max(qsizetype(1), static_cast<qsizetype>(room / kLeastBar));
}

Bars BarsFor(qsizetype count, double room, double widestName)
{
  if (count == 0 || widestName + kBetweenNames <= room / static_cast<double>(count)) {
    return {count, false};
  }
  return {std::min(count, MostBars(room)), true};
}

}
