// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "charts/ChartFit.h"
#include "charts/ChartLook.h"
#include "charts/ChartRowsModel.h"
#include "charts/Gather.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(ChartFit, ScalesAreOfWholeNumbersAboveTheHighestTotal)
{
  struct Case
  {
    double highest;
    double top;
    double step;
  };
  for (const auto& [highest, top, step] : std::initializer_list<Case>{{0, 1, 1},
                                                                      {1, 2, 1},
                                                                      {2, 3, 1},
                                                                      {4, 5, 1},
                                                                      {7, 8, 1},
                                                                      {9, 10, 2},
                                                                      {12, 14, 2},
                                                                      {25, 30, 5},
                                                                      {99, 120, 20},
                                                                      {100'000, 120'000, 20'000}}) {
    const ChartFit::Scale scale = ChartFit::ScaleFor(highest, 8);
    EXPECT_EQ(scale.top, top) << highest;
    EXPECT_EQ(scale.step, step) << highest;
  }
}

TEST(ChartFit, ScalesHoldForAnyTotalAndAnyRoom)
{
  for (int most = 2; most <= 24; ++most) {
    for (double highest = 1; highest < 1e12; highest = std::floor(highest * 1.7) + 1) {
      const ChartFit::Scale scale = ChartFit::ScaleFor(highest, most);
      EXPECT_GT(scale.top, highest);
      EXPECT_GE(scale.step, 1);
      EXPECT_EQ(scale.step, std::floor(scale.step));
      EXPECT_EQ(std::fmod(scale.top, scale.step), 0);
      EXPECT_LE(scale.top / scale.step, most) << highest << " in " << most;
    }
  }
}

TEST(ChartFit, NamesStandAcrossWhereTheyFitAndOnEndWhereNot)
{
  struct Case
  {
    qsizetype count;
    double widest;
    qsizetype shown;
    bool upright;
  };
  for (const auto& [count, widest, shown, upright] : std::initializer_list<Case>{{0, 0, 0, false},
                                                                                 {1, 390, 1, false},
                                                                                 {1, 397, 1, true},
                                                                                 {2, 190, 2, false},
                                                                                 {2, 200, 2, true},
                                                                                 {12, 29, 12, false},
                                                                                 {12, 30, 12, true},
                                                                                 {20, 60, 20, true},
                                                                                 {21, 60, 20, true},
                                                                                 {200, 60, 20, true},
                                                                                 {100'000, 60, 20, true}}) {
    const ChartFit::Bars bars = ChartFit::BarsFor(count, 400, widest);
    EXPECT_EQ(bars.shown, shown) << count << " of " << widest;
    EXPECT_EQ(bars.upright, upright) << count << " of " << widest;
  }
}

TEST(ChartFit, OneBarStandsInAnyRoom)
{
  for (const double room : {-5.0, 0.0, 1.0, 19.0}) {
    EXPECT_EQ(ChartFit::BarsFor(9, room, 50).shown, 1) << room;
  }
}

TEST(ChartLook, NeighboursOfTheCircleDifferInColour)
{
  for (std::size_t count = 2; count < 40; ++count) {
    for (std::size_t slice = 0; slice < count; ++slice) {
      EXPECT_NE(ChartLook::SliceColour(slice, count), ChartLook::SliceColour((slice + 1) % count, count))
          << slice << " of " << count;
    }
  }
  EXPECT_EQ(ChartLook::SliceColour(0, 1), ChartLook::kAccent);
}

TEST(Gather, AFewRowsStayAsTheyAre)
{
  const ChartRows rows = {{"Ayr", 3}, {"Bonn", 1}, {"Cork", 2}};
  EXPECT_EQ(Gather(rows, 3), rows);
  EXPECT_EQ(Gather({}, 3), ChartRows());
}

TEST(Gather, TheSmallestOfManyAreCountedTogetherAndTheOthersKeepTheirOrder)
{
  const ChartRows rows = {{"Ayr", 3}, {"Bonn", 1}, {"Cork", 9}, {"Dijon", 1}, {"Evry", 2}};
  EXPECT_EQ(Gather(rows, 4), (ChartRows{{"Ayr", 3}, {"Cork", 9}, {"Evry", 2}, {"Others", 2}}));
  EXPECT_EQ(Gather(rows, 2), (ChartRows{{"Cork", 9}, {"Others", 7}}));
}

TEST(Gather, OfEqualRowsTheFirstStay)
{
  const ChartRows rows = {{"Ayr", 1}, {"Bonn", 1}, {"Cork", 1}, {"Dijon", 1}};
  EXPECT_EQ(Gather(rows, 3), (ChartRows{{"Ayr", 1}, {"Bonn", 1}, {"Others", 2}}));
}

TEST(ChartRowsModel, HoldsNamesAndTotals)
{
  ChartRowsModel model;
  EXPECT_EQ(model.rowCount(), 0);
  model.SetRows({{"Ayr", 3}, {"Bonn", 1}});
  EXPECT_EQ(model.rowCount(), 2);
  EXPECT_EQ(model.columnCount(), 2);
  EXPECT_EQ(model.index(1, ChartRowsModel::kName).data(), "Bonn");
  EXPECT_EQ(model.index(0, ChartRowsModel::kTotal).data(), 3.0);
  EXPECT_FALSE(model.index(0, 0).data(Qt::DecorationRole).isValid());
  EXPECT_EQ(model.rowCount(model.index(0, 0)), 0);
  EXPECT_EQ(model.columnCount(model.index(0, 0)), 0);
}
