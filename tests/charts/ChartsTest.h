// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "charts/BarChart.h"
#include "charts/ChartControl.h"
#include "charts/ChartRowsModel.h"
#include "charts/CircleChart.h"
#include "charts/DataControl.h"
#include "charts/frmCharts.h"
#include "controls/Label.h"
#include "support/PageTest.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QPieSeries>
#include <QPieSlice>
#include <QRadioButton>
#include <QScrollBar>
#include <QValueAxis>

#include <gtest/gtest.h>

// What the series of a chart hold, as "name: total, name: total".
namespace InSeries {

inline std::string Bars(const BarChart& chart)
{
  QStringList texts;
  const QStringList names = chart.Names().categories();
  for (const QBarSet* bars : chart.Series().barSets()) {
    for (int bar = 0; bar < bars->count(); ++bar) {
      texts.append(QStringLiteral("%1: %2").arg(names.value(bar)).arg(bars->at(bar)));
    }
  }
  return texts.join(QStringLiteral(", ")).toStdString();
}

inline std::string Slices(const CircleChart& chart)
{
  QStringList texts;
  for (const QPieSlice* slice : chart.Series().slices()) {
    texts.append(QStringLiteral("%1: %2").arg(slice->label()).arg(slice->value()));
  }
  return texts.join(QStringLiteral(", ")).toStdString();
}

}

// The subjects by their place in optChoices.
namespace Subject {
inline constexpr int kCity = 0;
inline constexpr int kAge = 1;
inline constexpr int kBirthdays = 2;
inline constexpr int kAnniversaries = 3;
inline constexpr int kProvince = 4;
}

// The real chart page in a frame of its own, over a database of the test's own, on
// 5 May 2026.
class ChartsTest : public PageTest<frmCharts>
{
protected:
  ChartsTest()
  {
    Application::SetEnding([this](int) { ++endings; });
    Clock::StopOn(QDate(2026, 5, 5));
  }

  static ChartControl& Chart() { return static_cast<ChartControl&>(Drive::Control(Page(), "mscChart")); }
  static QRadioButton& Choice(int index)
  {
    return static_cast<QRadioButton&>(Drive::Control(Page(), QStringLiteral("optChoices_%1").arg(index)));
  }
  static QRadioButton& Kind(int index)
  {
    return static_cast<QRadioButton&>(Drive::Control(Page(), QStringLiteral("optOptions_%1").arg(index)));
  }

  static void Choose(int subject) { Hands::Tick(Choice(subject)); }
  static void ChooseBars() { Hands::Tick(Kind(0)); }
  static void ChooseCircles() { Hands::Tick(Kind(1)); }

  static std::string Bars() { return InSeries::Bars(Chart().Bars()); }
  static std::string Slices() { return InSeries::Slices(Chart().Circles()); }
  static std::string InWords() { return Chart().InWords().toStdString(); }

  void AddPerson(const QVariant& city, const QVariant& province = {}) const
  {
    folder.Execute("INSERT INTO People (FirstName, LastName, City, Province) VALUES ('Ann', 'Adams', ?, ?)",
                   {city, province});
  }
  // So many cities, the first with one person, the second with two and so on, up to five.
  void AddCities(int count) const
  {
    folder.Execute(
        "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i+1 FROM n WHERE i+1<?), m(j) AS "
        "(SELECT 0 UNION ALL SELECT j+1 FROM m WHERE j<4) "
        "INSERT INTO People (FirstName, LastName, City) SELECT 'Ann', 'Adams', printf('City %04d', i) FROM n, m "
        "WHERE j <= i % 5",
        {count});
  }

  int endings = 0;
};
