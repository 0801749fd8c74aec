// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The calendar against itself with few events: opening, a step to the next month and the
// details of an event. The months stepped through hold the same events in both.

#include "Household.h"
#include "Measure.h"
#include "OpenPage.h"

#include "controls/Label.h"
#include "controls/ListBox.h"
#include "platform/Clock.h"

namespace {

constexpr int kManyRuns = 41;

OpenPage Calendar(int events)
{
  return {"frmReminders", [&](const QString& path) { MakeCalendar(path, events, Clock::Today().year()); }};
}

Figures Opening(int events)
{
  OpenPage page = Calendar(events);
  return {MedianOf([&] {
            const double seconds = SecondsFor([&] { page.Open(); });
            page.Close();
            return seconds;
          }),
          {}};
}

// With what the screen then shows; to and fro, so that it stays in the year that both have.
Figures MonthStep(int events)
{
  OpenPage page = Calendar(events);
  page.Open();
  QCoreApplication::processEvents();
  bool forward = false;
  return {MedianOf(
              [&] {
                forward = !forward;
                return SecondsFor([&] {
                  Command::Run([&] { Q_EMIT page.Get<Label>(forward ? "lblOptions_1" : "lblOptions_0").Click(); });
                  page.Page().repaint();
                });
              },
              kManyRuns),
          {}};
}

ListBox& AnyListWithEvents(Form& page)
{
  for (QWidget* widget : page.ArrayNamed(QStringLiteral("lstReminders")).widgets) {
    if (widget != nullptr && widget->isVisible()) {
      return *static_cast<ListBox*>(widget);
    }
  }
  throw std::runtime_error("no events");
}

Figures Details(int events)
{
  OpenPage page = Calendar(events);
  page.Open();
  QCoreApplication::processEvents();
  ListBox& list = AnyListWithEvents(page.Page());
  return {MedianOf(
              [&] {
                list.SetListIndex(-1);
                return SecondsFor([&] { Command::Run([&] { list.SetListIndex(0); }); });
              },
              kManyRuns),
          {}};
}

}

Lines CalendarLines()
{
  const std::string itself = "itself with 200 events, as many in the months shown";
  return {
      {"calendar: opening", itself, 2.0, Opening},
      {"calendar: a step to another month", itself, 2.0, MonthStep},
      {"calendar: the details of an event", itself, 2.0, Details},
  };
}
