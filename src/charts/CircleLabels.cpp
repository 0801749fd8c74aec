// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "charts/CircleLabels.h"

#include <QLineF>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace CircleLabels {
namespace {

constexpr double kFullCircle = 360;
constexpr double kFarthest = 1.5;  // lines that a name may stand from its slice

using Side = std::vector<Place>;

QPointF PointAt(const Circle& circle, double degrees)
{
  const double radians = degrees * std::numbers::pi / (kFullCircle / 2);
  return circle.centre + circle.radius * QPointF(std::sin(radians), -std::cos(radians));
}

// Downwards as far as needed, then up from the bottom.
void Spread(Side& side, double top, double bottom, double line)
{
  double free = top + line / 2;
  for (Place& place : side) {
    place.height = std::max(place.edge.y(), free);
    free = place.height + line;
  }
  free = bottom - line / 2;
  for (auto place = side.rbegin(); place != side.rend(); ++place) {
    place->height = std::min(place->height, free);
    free = place->height - line;
  }
}

bool Fits(const Side& side, double top, double line)
{
  const auto strays = [&](const Place& place) { return std::abs(place.height - place.edge.y()) > kFarthest * line; };
  return std::none_of(side.begin(), side.end(), strays) && (side.empty() || side.front().height >= top + line / 2);
}

std::vector<std::size_t> LargestFirst(const std::vector<Slice>& slices)
{
  std::vector<std::size_t> order(slices.size());
  std::iota(order.begin(), order.end(), std::size_t(0));
  std::stable_sort(order.begin(), order.end(), [&](auto a, auto b) { return slices[a].span > slices[b].span; });
  return order;
}

}

std::vector<Place> PlacesOf(const std::vector<Slice>& slices, const Circle& circle, double top, double bottom,
                            double line)
{
  Side left;
  Side right;
  for (const std::size_t index : LargestFirst(slices)) {
    const Slice& slice = slices[index];
    if (slice.span <= 0) {
      break;
    }
    const double middle = slice.from + slice.span / 2;
    const bool onTheRight = middle <= kFullCircle / 2;
    const Place place{index, onTheRight, PointAt(circle, middle), 0};
    Side& side = onTheRight ? right : left;
    Side tried = side;
    const auto above = [](const Place& a, const Place& b) { return a.edge.y() < b.edge.y(); };
    tried.insert(std::upper_bound(tried.begin(), tried.end(), place, above), place);
    Spread(tried, top, bottom, line);
    if (Fits(tried, top, line)) {
      side = std::move(tried);
    }
  }
  right.insert(right.end(), left.begin(), left.end());
  return right;
}

int SliceAt(const QPointF& point, const std::vector<Slice>& slices, const Circle& circle)
{
  const QPointF offset = point - circle.centre;
  if (std::hypot(offset.x(), offset.y()) > circle.radius) {
    return -1;
  }
  double degrees = std::atan2(offset.x(), -offset.y()) * (kFullCircle / 2) / std::numbers::pi;
  if (degrees < 0) {
    degrees += kFullCircle;
  }
  const auto found = std::find_if(slices.begin(), slices.end(), [&](const Slice& slice) {
    return degrees >= slice.from && degrees < slice.from + slice.span;
  });
  return found == slices.end() ? -1 : static_cast<int>(found - slices.begin());
}

}
