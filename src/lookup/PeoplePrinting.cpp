// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/PeoplePrinting.h"

#include "controls/MultiLineTextBox.h"
#include "controls/modID.h"
#include "lookup/NameList.h"
#include "lookup/PersonResults.h"
#include "lookup/PrintedLines.h"
#include "lookup/RecordPrinting.h"
#include "platform/Attempt.h"
#include "platform/Clock.h"
#include "platform/MsgBox.h"
#include "platform/PrintDialog.h"
#include "platform/PrintProgress.h"
#include "platform/Printer.h"

namespace {

void Begin(bool withDate)
{
  ShowPrinter();
  PrintedLines::SetBodyFont();
  if (withDate) {
    PrintedLines::Print(PrintedLines::DateText(Clock::Today()));
    Printer::Print();
  }
}

}

PeoplePrinting::PeoplePrinting(NameList& names, PersonResults& results, MultiLineTextBox& notes,
                               std::function<void()> show)
    : names_(names), results_(results), notes_(notes), show_(std::move(show))
{}

void PeoplePrinting::Print(const Choices& choices)
{
  const bool ended = Attempt([&] {
    if (!IsRefused(choices)) {
      PrintPeople(choices);
      MsgBox(QStringLiteral("Printing completed"));
    }
  });
  if (ended) {
    return;
  }
  Attempt([] { Printer::EndDoc(); });
  // The cursor has left the person of the chosen line.
  if (choices.all) {
    modID::SelectedPersonID = 0;
  }
}

bool PeoplePrinting::IsRefused(const Choices& choices)
{
  if (names_.IsEmpty()) {
    MsgBox(QStringLiteral("There are no records in the database"));
  } else if (!results_.AnyWanted()) {
    MsgBox(QStringLiteral("Please select items to print, such as address, birthday and so on."));
  } else if (choices.one && modID::SelectedPersonID == 0) {
    MsgBox(QStringLiteral("Please select a name"));
  } else if (!choices.one && !choices.all) {
    MsgBox(QStringLiteral("You must select a printing option"));
  } else {
    return false;
  }
  return true;
}

void PeoplePrinting::PrintPeople(const Choices& choices)
{
  if (choices.one) {
    Begin(choices.withDate);
    PrintPerson();
  } else {
    names_.Person().MoveLast();
    names_.Person().MoveFirst();
    modID::SelectedPersonID = names_.Person().Fields(QStringLiteral("PeopleID")).Value().toInt();
    Begin(choices.withDate);
    PrintEverybody();
  }
  Printer::EndDoc();
}

void PeoplePrinting::PrintEverybody()
{
  PrintProgress progress(names_.Count());
  for (; !names_.Person().Eof(); names_.Person().MoveNext()) {
    show_();
    PrintPerson();
    progress.Step();
  }
  modID::SelectedPersonID = 0;
}

void PeoplePrinting::PrintPerson()
{
  QStringList notes;
  if (results_.notes.IsWanted()) {
    notes_.SetText(results_.notes.Text());
    notes = RecordPrinting::NotesLines(notes_.Text(), notes_.font());
  }
  RecordPrinting::PrintStuff(names_.Person().Fields(QStringLiteral("FullName")).Value().toString(), results_, notes);
}
