// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The calendar with 100,000 events against itself with 200: a step to the next month and
// the details of an event. The months stepped through hold the same events in both.

#include "BareFrame.h"
#include "Household.h"
#include "Measure.h"

#include "calendar/frmReminders.h"
#include "controls/Forms.h"
#include "controls/Label.h"
#include "looks/Style.h"
#include "platform/App.h"
#include "platform/Application.h"
#include "platform/Clock.h"
#include "platform/Command.h"

#include <QCoreApplication>
#include <QTemporaryDir>

namespace {

constexpr int kFew = 200;
constexpr int kMany = 100'000;
constexpr int kRuns = 41;

// A program's folder with so many events, and the calendar open on it.
class OpenCalendar
{
public:
  explicit OpenCalendar(int events)
  {
    App::SetPath(folder_.path());
    MakeCalendar(folder_.filePath(QStringLiteral("quillmark2002.mdb")), events, Clock::Today().year());
    Command::Run([this] {
      form_ = &Forms::Load(QStringLiteral("frmReminders"));
      form_->Show();
    });
    QCoreApplication::processEvents();
  }
  ~OpenCalendar()
  {
    Command::Run([this] { form_->Unload(); });
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  OpenCalendar(const OpenCalendar&) = delete;
  OpenCalendar& operator=(const OpenCalendar&) = delete;

  // With what the screen then shows.
  void Press(const char* command)
  {
    Command::Run([&] { Q_EMIT static_cast<Label*>(form_->Control(QLatin1String(command)))->Click(); });
    form_->repaint();
  }
  [[nodiscard]] Form& Page() { return *form_; }

private:
  QTemporaryDir folder_;
  Form* form_ = nullptr;
};

// To and fro, so that it stays in the year that both have.
double SecondsPerStep(int events)
{
  OpenCalendar calendar(events);
  bool forward = false;
  return MedianOf(
      [&] {
        forward = !forward;
        return SecondsFor([&] { calendar.Press(forward ? "lblOptions_1" : "lblOptions_0"); });
      },
      kRuns);
}

double SecondsPerDetails(int events)
{
  OpenCalendar calendar(events);
  ListBox* list = nullptr;
  for (QWidget* widget : calendar.Page().ArrayNamed(QStringLiteral("lstReminders")).widgets) {
    if (widget != nullptr && widget->isVisible()) {
      list = static_cast<ListBox*>(widget);
    }
  }
  return MedianOf(
      [&] {
        list->SetListIndex(-1);
        return SecondsFor([&] { Command::Run([&] { list->SetListIndex(0); }); });
      },
      kRuns);
}

void MonthStep(benchmark::State& state)
{
  for (auto _ : state) {
    ReportRatio(state, SecondsPerStep(kMany), SecondsPerStep(kFew), 2.0);
  }
}

void EventDetails(benchmark::State& state)
{
  for (auto _ : state) {
    ReportRatio(state, SecondsPerDetails(kMany), SecondsPerDetails(kFew), 2.0);
  }
}

}

BENCHMARK(MonthStep)->Iterations(1);
BENCHMARK(EventDetails)->Iterations(1);

int main(int argc, char** argv)
{
  qputenv("QT_QPA_PLATFORM", "offscreen");
  Application application(argc, argv);
  Style::Apply(application);
  const BareFrame frame;
  Forms::Register(QStringLiteral("frmReminders"), [] { return new frmReminders; });
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
