// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The chart page: choosing a subject, with what the screen then shows, against the bare query
// for its rows.

#include "BareReading.h"
#include "Household.h"
#include "Measure.h"
#include "OpenPage.h"

#include <QRadioButton>

namespace {

constexpr int kManyRuns = 21;
constexpr auto kQuery = "SELECT City, count(City) FROM People WHERE City IS NOT NULL GROUP BY City";

Figures Choice(int people, int cities, const char* kind)
{
  OpenPage page("frmCharts", [&](const QString& path) { MakeTowns(path, people, cities); });
  page.Open();
  QCoreApplication::processEvents();
  const auto click = [&](const char* button) {
    page.Get<QRadioButton>(button).click();
    QCoreApplication::processEvents();
    page.Page().repaint();
  };
  click(kind);
  return ByTurns([&] { return SecondsFor([&] { click("optChoices_0"); }); },
                 [&] { return SecondsFor([&] { ScanBare(page.DatabasePath(), kQuery); }); }, kManyRuns);
}

Line ChartLine(const std::string& name, int cities, const char* kind)
{
  return {"charts: " + name, "the bare query of the chart", 3.0,
          [=](int people) { return Choice(people, cities, kind); }};
}

}

Lines ChartLines()
{
  constexpr auto kBars = "optOptions_0";
  constexpr auto kCircles = "optOptions_1";
  return {
      ChartLine("bars, people in 50 cities", 50, kBars),
      ChartLine("bars, people in 1,000 cities", 1000, kBars),
      ChartLine("bars, each person in another city", 100'000, kBars),
      ChartLine("circles, people in 50 cities", 50, kCircles),
      ChartLine("circles, people in 1,000 cities", 1000, kCircles),
      ChartLine("circles, each person in another city", 100'000, kCircles),
  };
}
