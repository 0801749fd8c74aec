// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The chart page over 100,000 people: choosing a subject, with what the screen then shows,
// against the bare query for its rows.

#include "BareFrame.h"
#include "Household.h"
#include "Measure.h"

#include "charts/frmCharts.h"
#include "controls/Forms.h"
#include "looks/Style.h"
#include "platform/App.h"
#include "platform/Application.h"

#include <QCoreApplication>
#include <QRadioButton>
#include <QTemporaryDir>

#include <sqlite3.h>
#include <stdexcept>

namespace {

constexpr int kPeople = 100'000;
constexpr int kRuns = 21;
constexpr double kMust = 3.0;

// A program's folder with so many people in so many cities.
class People
{
public:
  explicit People(int cities)
  {
    App::SetPath(folder_.path());
    MakeHousehold(File(), kPeople);
    Execute("UPDATE People SET City = 'City ' || (PeopleID * 7919 % " + std::to_string(cities) + ")");
  }

  // Opens the file, runs the query and reads its rows, as bare calls do it.
  [[nodiscard]] double SecondsForBareQuery() const
  {
    return MedianOf(
        [&] {
          return SecondsFor(
              [&] { Execute("SELECT City, count(City) FROM People WHERE City IS NOT NULL GROUP BY City"); });
        },
        kRuns);
  }

private:
  [[nodiscard]] QString File() const { return folder_.filePath(QStringLiteral("quillmark2002.mdb")); }

  void Execute(const std::string& sql) const
  {
    const auto read = [](void*, int, char**, char**) { return 0; };
    sqlite3* connection = nullptr;
    sqlite3_open(File().toUtf8().constData(), &connection);
    if (sqlite3_exec(connection, sql.c_str(), read, nullptr, nullptr) != SQLITE_OK) {
      throw std::runtime_error(sqlite3_errmsg(connection));
    }
    sqlite3_close(connection);
  }

  QTemporaryDir folder_;
};

// With what the screen shows after it.
double SecondsPerChoice(const char* kind)
{
  Form& page = Forms::Load(QStringLiteral("frmCharts"));
  page.Show();
  QCoreApplication::processEvents();
  const auto click = [&](const char* button) {
    static_cast<QRadioButton*>(page.Control(QLatin1String(button)))->click();
    QCoreApplication::processEvents();
    page.repaint();
  };
  click(kind);
  const double seconds = MedianOf([&] { return SecondsFor([&] { click("optChoices_0"); }); }, kRuns);
  page.Unload();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  return seconds;
}

void Measure(benchmark::State& state, const char* kind)
{
  const People people(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    ReportRatio(state, SecondsPerChoice(kind), people.SecondsForBareQuery(), kMust);
  }
}

void Bars(benchmark::State& state)
{
  Measure(state, "optOptions_0");
}

void Circles(benchmark::State& state)
{
  Measure(state, "optOptions_1");
}

}

// By the number of cities.
BENCHMARK(Bars)->Arg(50)->Arg(1000)->Arg(100'000)->Iterations(1);
BENCHMARK(Circles)->Arg(50)->Arg(1000)->Arg(100'000)->Iterations(1);

int main(int argc, char** argv)
{
  qputenv("QT_QPA_PLATFORM", "offscreen");
  Application application(argc, argv);
  Style::Apply(application);
  const BareFrame frame;
  Forms::Register(QStringLiteral("frmCharts"), [] { return new frmCharts; });
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
