// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "charts/Gather.h"

#include <algorithm>
#include <numeric>

ChartRows Gather(const ChartRows& rows, std::size_t most)
{
  if (rows.size() <= most) {
    return rows;
  }
  std::vector<std::size_t> order(rows.size());
  std::iota(order.begin(), order.end(), std::size_t(0));
  const auto firstSmall = order.begin() + static_cast<std::ptrdiff_t>(most - 1);
  std::nth_element(order.begin(), firstSmall, order.end(), [&](std::size_t a, std::size_t b) {
    return rows[a].total != rows[b].total ? rows[a].total > rows[b].total : a < b;
  });
  std::sort(order.begin(), firstSmall);
  ChartRows gathered;
  std::transform(order.begin(), firstSmall, std::back_inserter(gathered), [&](std::size_t i) { return rows[i]; });
  const double others =
      std::accumulate(firstSmall, order.end(), 0.0, [&](double sum, std::size_t i) { return sum + rows[i].total; });
  gathered.push_back({QStringLiteral("Others"), others});
  return gathered;
}
