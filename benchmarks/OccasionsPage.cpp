// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The page of birthdays and anniversaries: opening it on a month with a tenth of all people
// against the same rows read by bare calls, steps and clicks against themselves.

#include "BareReading.h"
#include "Household.h"
#include "Measure.h"
#include "OpenPage.h"

#include "controls/Label.h"
#include "controls/ListBox.h"
#include "platform/Clock.h"

namespace {

OpenPage Families(int people)
{
  return {"frmSpecial", [&](const QString& path) { MakeFamilies(path, people); }};
}

Figures Opening(int people)
{
  Clock::StopOn(QDate(2026, 6, 15));
  OpenPage page = Families(people);
  const Figures figures = ByTurns(
      [&] {
        const double seconds = SecondsFor([&] { page.Open(); });
        page.Close();
        return seconds;
      },
      [&] {
        return SecondsFor([&] {
          ReadBare(page.DatabasePath(),
                   "SELECT BirthMonth || ' ' || BirthDate || ' - ' || FirstName || ' ' || LastName, PeopleID FROM "
                   "People WHERE BirthMonth = 'June' ORDER BY BirthMonth, BirthDate");
          ReadBare(page.DatabasePath(),
                   "SELECT AnnMonth || ' ' || AnnDate || ' - ' || Spouse1First || ' and ' || Spouse2First, AnnID "
                   "FROM Ann WHERE AnnMonth = 'June' ORDER BY AnnMonth, AnnDate");
        });
      });
  Clock::StopOn({});
  return figures;
}

void Choose(OpenPage& page, const char* month)
{
  Command::Run([&] { Q_EMIT page.Get<Label>(month).Click(); });
}

Figures MonthStep(int people)
{
  OpenPage page = Families(people);
  page.Open();
  bool january = false;
  return {MedianOf([&] {
            january = !january;
            return SecondsFor([&] {
              Choose(page, january ? "lblMonth_0" : "lblMonth_1");
              page.Page().repaint();
            });
          }),
          {}};
}

Figures Click(int people, const char* list)
{
  OpenPage page = Families(people);
  page.Open();
  Choose(page, "lblMonth_0");
  auto& lines = page.Get<ListBox>(list);
  int line = 0;
  return {MedianOf([&] {
            line = (line + 1) % lines.ListCount();
            return SecondsFor([&] { Command::Run([&] { lines.SetListIndex(line); }); });
          }),
          {}};
}

}

Lines OccasionLines()
{
  return {
      {"occasions page: opening on a month with a tenth of all",
       "the same rows read in order by bare SQLite calls into lists", 3.0, Opening},
      {"the same: a step to another month", "itself with 200 people, as many in the months shown", 2.0, MonthStep},
      {"the same: a click on a birthday", "itself with 200 people", 2.0,
       [](int people) { return Click(people, "lstBirthdays"); }},
      {"the same: a click on an anniversary", "itself with 200 people", 2.0,
       [](int people) { return Click(people, "lstAnn"); }},
  };
}
