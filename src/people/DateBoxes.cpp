// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "people/DateBoxes.h"

#include "controls/ComboBox.h"
#include "people/DateRules.h"
#include "platform/App.h"
#include "platform/Files.h"

namespace DateBoxes {
namespace {

void FillNumbers(ComboBox& box, int first, int last)
{
  QStringList lines;
  for (int number = first; number <= last; ++number) {
    lines.append(QString::number(number));
  }
  box.AddItems(lines);
}

}

void FillMonths(ComboBox& box)
{
  box.AddItems(Files::ReadLines(App::File(QStringLiteral("/months.txt"))));
}

void FillDays(ComboBox& box)
{
  FillNumbers(box, 1, 31);
}

void FillYears(ComboBox& box)
{
  FillNumbers(box, kFirstYear, kLastYear);
}

}
