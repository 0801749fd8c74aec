// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Measures all lines of the table of speed and prints it, and how each grows. A line that
// misses its limit makes the program fail.

#include "BareFrame.h"
#include "SpeedTable.h"

#include "looks/Style.h"
#include "platform/Application.h"
#include "shell/StartUp.h"

namespace {

Lines AllLines()
{
  Lines all;
  for (const auto& part : {StartLines, ReminderCheckLines, EditorLines, LookUpLines, OccasionLines, CalendarLines,
                           ChartLines, PrintingLines}) {
    const Lines lines = part();
    all.insert(all.end(), lines.begin(), lines.end());
  }
  return all;
}

}

int main(int argc, char** argv)
{
  if (qEnvironmentVariableIsEmpty("DISPLAY")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  Application application(argc, argv);
  Style::Apply(application);
  const BareFrame frame;
  RegisterForms();
  benchmark::Initialize(&argc, argv);
  SpeedTable table(AllLines());
  benchmark::RunSpecifiedBenchmarks(&table);
  return table.Print() ? EXIT_SUCCESS : EXIT_FAILURE;
}
