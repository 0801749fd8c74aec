// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "charts/CircleLabels.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

using namespace CircleLabels;

namespace {

constexpr double kTop = 10;
constexpr double kBottom = 390;
constexpr double kLine = 16;
const Circle kCircle{QPointF(200, 200), 150};

std::vector<Slice> SlicesOf(const std::vector<double>& totals)
{
  const double sum = std::accumulate(totals.begin(), totals.end(), 0.0);
  std::vector<Slice> slices;
  double from = 0;
  for (const double total : totals) {
    const double span = sum == 0 ? 0 : total / sum * 360;
    slices.push_back({from, span});
    from += span;
  }
  return slices;
}

std::vector<Place> Places(const std::vector<double>& totals)
{
  return PlacesOf(SlicesOf(totals), kCircle, kTop, kBottom, kLine);
}

void ExpectApart(const std::vector<Place>& places)
{
  for (std::size_t i = 0; i < places.size(); ++i) {
    EXPECT_GE(places[i].height, kTop + kLine / 2);
    EXPECT_LE(places[i].height, kBottom - kLine / 2);
    for (std::size_t j = 0; j < i; ++j) {
      if (places[i].onTheRight == places[j].onTheRight) {
        EXPECT_GE(std::abs(places[i].height - places[j].height), kLine - 1e-6);
      }
    }
  }
}

std::vector<std::size_t> SlicesNamed(const std::vector<Place>& places)
{
  std::vector<std::size_t> named;
  for (const Place& place : places) {
    named.push_back(place.slice);
  }
  std::sort(named.begin(), named.end());
  return named;
}

}

TEST(CircleLabels, StandOnTheSideOfTheirSliceAtItsHeight)
{
  const std::vector<Place> places = Places({1, 1, 1, 1});
  ASSERT_EQ(places.size(), 4U);
  const double down = 150 * std::sqrt(0.5);
  const std::pair<bool, double> expected[] = {
      {true, 200 - down}, {true, 200 + down}, {false, 200 + down}, {false, 200 - down}};
  for (const Place& place : places) {
    EXPECT_EQ(place.onTheRight, expected[place.slice].first) << place.slice;
    EXPECT_NEAR(place.height, expected[place.slice].second, 1e-6) << place.slice;
    EXPECT_NEAR(place.edge.y(), place.height, 1e-6);
    EXPECT_NEAR(place.edge.x(), 200 + (place.onTheRight ? down : -down), 1e-6);
  }
}

TEST(CircleLabels, TwelveMonthsAllHaveTheirNames)
{
  EXPECT_EQ(Places({1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}).size(), 12U);
  EXPECT_EQ(Places({4, 3, 2, 1, 2, 1, 1, 2, 1, 2, 12, 4}).size(), 12U);
}

TEST(CircleLabels, SlicesOfNothingHaveNoName)
{
  EXPECT_EQ(SlicesNamed(Places({3, 0, 1, 0})), (std::vector<std::size_t>{0, 2}));
  EXPECT_TRUE(Places({0, 0, 0}).empty());
  EXPECT_TRUE(Places({}).empty());
}

TEST(CircleLabels, NeverMeetHoweverTheSlicesAre)
{
  for (const std::size_t count : {1U, 2U, 5U, 12U, 40U, 200U, 300U}) {
    std::vector<double> equal(count, 1.0);
    std::vector<double> falling(count);
    std::vector<double> oneGiant(count, 1.0);
    oneGiant.back() = 100'000;
    for (std::size_t i = 0; i < count; ++i) {
      falling[i] = 1.0 / double(i + 1);
    }
    for (const std::vector<double>& totals : {equal, falling, oneGiant}) {
      const std::vector<Place> places = Places(totals);
      EXPECT_FALSE(places.empty());
      ExpectApart(places);
    }
  }
}

TEST(CircleLabels, StandInTheOrderOfTheirSlices)
{
  const std::vector<Place> places = Places(std::vector<double>(60, 1.0));
  for (const Place& place : places) {
    for (const Place& other : places) {
      if (place.onTheRight && other.onTheRight && place.slice < other.slice) {
        EXPECT_LT(place.height, other.height);
      }
      if (!place.onTheRight && !other.onTheRight && place.slice < other.slice) {
        EXPECT_GT(place.height, other.height);
      }
    }
  }
}

TEST(CircleLabels, TheLargestComeFirstWhereRoomIsShort)
{
  std::vector<double> totals(200, 1.0);
  totals[7] = 9;
  totals[120] = 8;
  totals[121] = 7;
  const std::vector<std::size_t> named = SlicesNamed(Places(totals));
  EXPECT_LT(named.size(), 60U);
  for (const std::size_t large : {7U, 120U, 121U}) {
    EXPECT_TRUE(std::binary_search(named.begin(), named.end(), large)) << large;
  }
}

TEST(CircleLabels, StandNearTheirSlices)
{
  for (const Place& place : Places(std::vector<double>(200, 1.0))) {
    EXPECT_LE(std::abs(place.height - place.edge.y()), 1.5 * kLine);
  }
}

TEST(CircleLabels, NoRoomIsNoFailure)
{
  EXPECT_TRUE(PlacesOf(SlicesOf({1, 2}), kCircle, 0, 5, kLine).empty());
}

TEST(CircleLabels, APointIsInItsSlice)
{
  const std::vector<Slice> slices = SlicesOf({1, 1, 0, 2});
  const std::pair<QPointF, int> kCases[] = {{{201, 100}, 0}, {{340, 199}, 0}, {{340, 201}, 1}, {{201, 340}, 1},
                                            {{199, 340}, 3}, {{60, 200}, 3},  {{199, 100}, 3}, {{200, 49}, -1},
                                            {{10, 10}, -1},  {{351, 200}, -1}};
  for (const auto& [point, slice] : kCases) {
    EXPECT_EQ(SliceAt(point, slices, kCircle), slice) << point.x() << ',' << point.y();
  }
  EXPECT_EQ(SliceAt({200, 200}, {}, kCircle), -1);
  EXPECT_EQ(SliceAt({200, 180}, SlicesOf({0, 0}), kCircle), -1);
}
