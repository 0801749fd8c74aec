// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Day.h"

#include "looks/Style.h"
#include "platform/Application.h"
#include "support/AddressCatcher.h"
#include "support/OwnDesktop.h"

#include <cstdio>

namespace {

// Programs that letters go to; they run for a part of a second.
void LayPrograms(const OwnDesktop& desktop)
{
  for (const char* name : {"gedit", "abiword", "lowriter"}) {
    desktop.LayScript(QLatin1String(name), "/bin/sleep 0.$(($$ % 9))");
  }
}

}

// long_day SEED ACTIONS LOG
int main(int argc, char** argv)
{
  if (argc != 4) {
    fprintf(stderr, "usage: long_day SEED ACTIONS LOG\n");
    return 2;
  }
  qputenv("CUPS_SERVER", "/nonexistent");  // no printer of this machine is printed on
  Application application(argc, argv);
  Style::Apply(application);
  const OwnDesktop desktop;
  LayPrograms(desktop);
  const AddressCatcher files;
  const AddressCatcher mail(QStringLiteral("mailto"));
  const AddressCatcher pages(QStringLiteral("https"));
  const QStringList arguments = QCoreApplication::arguments();
  Day(arguments[1].toUInt(), arguments[2].toInt(), arguments[3]).Run();
  return EXIT_SUCCESS;
}
