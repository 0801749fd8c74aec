// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The look-up page: opening and reordering against the names and keys read in order by bare
// SQLite calls, a click on a name against itself.

#include "BareReading.h"
#include "Household.h"
#include "Measure.h"
#include "OpenPage.h"

#include "controls/Label.h"
#include "controls/ListBox.h"

#include <QCheckBox>

namespace {

OpenPage LookUp(int people)
{
  return {"frmQuillmark", [&](const QString& path) { MakeHousehold(path, people); }};
}

double SecondsForNames(const OpenPage& page)
{
  return SecondsFor([&] {
    ReadBare(page.DatabasePath(),
             "SELECT FirstName || ' ' || LastName, PeopleID FROM People ORDER BY FirstName || LastName");
  });
}

Figures Opening(int people)
{
  OpenPage page = LookUp(people);
  return ByTurns(
      [&] {
        const double seconds = SecondsFor([&] { page.Open(); });
        page.Close();
        return seconds;
      },
      [&] { return SecondsForNames(page); });
}

Figures Reordering(int people)
{
  OpenPage page = LookUp(people);
  page.Open();
  int order = 0;
  const auto reorder = [&] {
    auto& label = page.Get<Label>(++order % 2 == 0 ? "lblNames_0" : "lblNames_1");
    return SecondsFor([&] { Command::Run([&] { Q_EMIT label.Click(); }); });
  };
  return ByTurns(reorder, [&] { return SecondsForNames(page); });
}

Figures Click(int people)
{
  OpenPage page = LookUp(people);
  page.Open();
  for (const char* box : {"chkInfo_0", "chkInfo_2", "chkPersonal_0", "chkNotes"}) {
    page.Get<QCheckBox>(box).setChecked(true);
  }
  auto& list = page.Get<ListBox>("lstNames");
  int line = 0;
  return {MedianOf([&] {
            line = (line + people / 3 + 1) % people;
            return SecondsFor([&] { Command::Run([&] { list.SetListIndex(line); }); });
          }),
          {}};
}

}

Lines LookUpLines()
{
  const std::string names = "the names and keys read in order by bare SQLite calls into a list";
  return {
      {"look-up page: opening", names, 3.0, Opening},
      {"look-up page: another order", names, 3.0, Reordering},
      {"look-up page: a click on a name", "itself with 200 people", 2.0, Click},
  };
}
