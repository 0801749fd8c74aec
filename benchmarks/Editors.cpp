// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The record editor and the couple editor: their opening and their list of names against bare
// SQLite calls, their steps and writes against themselves, their search against a bare scan.

#include "BareReading.h"
#include "Household.h"
#include "Measure.h"
#include "OpenPage.h"

#include "people/AddressList.h"
#include "people/PersonRecords.h"
#include "people/RecordBoxes.h"

#include <QPushButton>

namespace {

constexpr auto kNames =
    "SELECT LastName || ', ' || FirstName, PeopleID, Gender FROM People ORDER BY LastName || FirstName";

OpenPage Editor(int people, const char* page = "frmNew")
{
  return {page, [&](const QString& path) { MakeFamilies(path, people); }};
}

Figures Opening(int people, const char* name)
{
  OpenPage page = Editor(people, name);
  return ByTurns(
      [&] {
        const double seconds = SecondsFor([&] { page.Open(); });
        page.Close();
        return seconds;
      },
      [&] { return SecondsFor([&] { ReadBare(page.DatabasePath(), kNames); }); });
}

void Push(OpenPage& page, const char* button)
{
  Command::Run([&] { page.Get<QPushButton>(button).click(); });
}

// Away from both ends first.
Figures Step(int people, const char* button)
{
  OpenPage page = Editor(people);
  page.Open();
  for (int i = 0; i < 2 * kRuns; ++i) {
    Push(page, "cmdNext");
  }
  return {MedianOf([&] { return SecondsFor([&] { Push(page, button); }); }), {}};
}

// The list of names, as it is rebuilt after each write, which has its order found anew.
Figures NameList(int people)
{
  OpenPage page = Editor(people);
  PersonRecords records;
  ComboBox box;
  AddressList list(box);
  const auto rebuild = [&] {
    Command::Run([&] {
      const auto person = records.Find(people / 2);
      person->Edit();
      person->Fields(QStringLiteral("Notes")).SetValue(QStringLiteral("Changed"));
      person->Update();
    });
    return SecondsFor([&] { Command::Run([&] { list.Refresh(*records.OpenAddresses()); }); });
  };
  return ByTurns(rebuild, [&] { return SecondsFor([&] { ReadBare(page.DatabasePath(), kNames); }); });
}

// Finish and Delete but for the list.
Figures Write(int people, const std::function<void(PersonRecords&, const RecordBoxes&)>& write)
{
  OpenPage page = Editor(people);
  page.Open();
  const RecordBoxes boxes(page.Page());
  PersonRecords records;
  return {MedianOf([&] {
            return SecondsFor([&] {
              Command::Run([&] {
                records.Step(&Recordset::MoveNext);
                write(records, boxes);
              });
            });
          }),
          {}};
}

Line WriteLine(const std::string& command, const std::function<void(PersonRecords&, const RecordBoxes&)>& write)
{
  return {"record editor: " + command + ", without the list of names", "itself with 200 people", 2.0,
          [=](int people) { return Write(people, write); }};
}

Line StepLine(const std::string& person, const char* button)
{
  return {"record editor: " + person + " person", "itself with 200 people", 2.0,
          [=](int people) { return Step(people, button); }};
}

// With all three tallies. The names are for comparison.
Figures Leaving(int people)
{
  OpenPage page = Editor(people);
  return ByTurns(
      [&] {
        page.Open();
        return SecondsFor([&] { page.Close(); });
      },
      [&] { return SecondsFor([&] { ReadBare(page.DatabasePath(), kNames); }); });
}

Figures Search(int people)
{
  OpenPage page = Editor(people);
  PersonRecords records;
  return ByTurns(
      [&] { return SecondsFor([&] { Command::Run([&] { records.FindName(QStringLiteral("nobody, at all")); }); }); },
      [&] {
        return SecondsFor([&] {
          ScanBare(page.DatabasePath(),
                   "SELECT PeopleID FROM People WHERE LastName || ', ' || FirstName = 'Nobody, At all'");
        });
      });
}

}

Lines EditorLines()
{
  const std::string names = "the names, keys and genders read in order by bare SQLite calls into a list";
  return {
      {"record editor: opening", names, 3.0, [](int people) { return Opening(people, "frmNew"); }},
      {"couple editor: opening", names, 3.0, [](int people) { return Opening(people, "frmAnn"); }},
      StepLine("first", "cmdFirst"),
      StepLine("previous", "cmdPrevious"),
      StepLine("next", "cmdNext"),
      StepLine("last", "cmdLast"),
      WriteLine("Finish of an addition", [](PersonRecords& records, const RecordBoxes& boxes) { records.Add(boxes); }),
      WriteLine("Finish of a change", [](PersonRecords& records, const RecordBoxes& boxes) { records.Change(boxes); }),
      WriteLine("Delete",
                [](PersonRecords& records, const RecordBoxes&) { records.Delete(records.CouplesOfCurrent()); }),
      {"record editor: the list of names, rebuilt after a write", names, 3.0, NameList},
      {"record editor: search for a name", "a bare SQLite scan for it", 2.0, Search},
      {"record editor: leaving, with all tallies", names, std::numeric_limits<double>::infinity(), Leaving},
  };
}
