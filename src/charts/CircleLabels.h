// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointF>
#include <QRectF>

#include <vector>

// Where the names of slices stand beside their circle: in a column on each side, in the
// order of the slices, each as near to its slice as the others let it.
namespace CircleLabels {

struct Circle
{
  QPointF centre;
  double radius = 0;
};

// In degrees, clockwise from the top.
struct Slice
{
  double from = 0;
  double span = 0;
};

struct Place
{
  std::size_t slice = 0;
  bool onTheRight = false;
  QPointF edge;       // where the slice meets the outside, in its middle
  double height = 0;  // of the middle of the name
};

// Places for as many slices as there is room for, larger ones first; slices without a
// span have none. A line of text takes `line` pixels between `top` and `bottom`.
[[nodiscard]] std::vector<Place> PlacesOf(const std::vector<Slice>& slices, const Circle& circle, double top,
                                          double bottom, double line);

// The slice at a point; -1 outside the circle.
[[nodiscard]] int SliceAt(const QPointF& point, const std::vector<Slice>& slices, const Circle& circle);

}
