// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

// What of a chart fits its room, and how.
namespace ChartFit {

// An axis of whole numbers from 0 on.
struct Scale
{
  double top = 1;
  double step = 1;
};

// The axis for totals up to `highest`, in at most so many steps of 1, 2 or 5 and noughts,
// with some air above the highest.
[[nodiscard]] Scale ScaleFor(double highest, int mostSteps);

// How bars share the room, in pixels.
struct Bars
{
  qsizetype shown = 0;   // so many at a time; the others come by scrolling
  bool upright = false;  // names stand on end below their bars
};

// `widestName` is the width of the widest name, written across.
[[nodiscard]] Bars BarsFor(qsizetype count, double room, double widestName);

// The most bars that any names let stand in the room.
[[nodiscard]] qsizetype MostBars(double room);

}
