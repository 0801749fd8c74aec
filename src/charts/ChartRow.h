// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <vector>

// One bar or slice: what is counted under a name.
struct ChartRow
{
  QString name;
  double total = 0;  // 0 and up

  bool operator==(const ChartRow&) const = default;
};

using ChartRows = std::vector<ChartRow>;
