// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/Correspondence.h"

#include "controls/modID.h"
#include "lookup/AddressBlock.h"
#include "lookup/LetterTexts.h"
#include "lookup/Letters.h"
#include "lookup/Mail.h"
#include "lookup/NameList.h"
#include "platform/Attempt.h"
#include "platform/Clock.h"
#include "platform/MsgBox.h"

namespace Correspondence {
namespace {

QString TextIn(Recordset& person, const char* column)
{
  return person.Fields(QLatin1String(column)).Value().toString();
}

LetterTexts::Recipient ReadRecipient(Recordset& person)
{
  return {TextIn(person, "FirstName"), TextIn(person, "LastName"), ReadAddress(person)};
}

// Without any people there is nobody to select, and nothing is said.
bool MustHaveSelected(NameList& names, const char* message)
{
  if (names.IsEmpty()) {
    modID::SelectedPersonID = 0;
    return false;
  }
  if (modID::SelectedPersonID == 0) {
    MsgBox(QLatin1String(message));
    return false;
  }
  return true;
}

const char* FailureOf(LetterProgram program)
{
  switch (program) {
    case LetterProgram::kNotepad:
      return "Sorry, Microsoft Notepad is either not on your system or cannot be opened.";
    case LetterProgram::kWord:
      return "Sorry, Microsoft Word is either not on your system or cannot be opened.";
    case LetterProgram::kWordPad:
      break;
  }
  return "Error: Microsoft WordPad does not appear to be on your system.";
}

QString OpeningOf(Recordset& person, LetterProgram program, bool withAddress)
{
  const LetterTexts::Recipient recipient = ReadRecipient(person);
  return program == LetterProgram::kWord ? LetterTexts::WordText(recipient, Clock::Today(), withAddress)
                                         : LetterTexts::NotepadText(recipient, Clock::Today(), withAddress);
}

}

void WriteLetter(NameList& names, LetterProgram program, bool withAddress)
{
  const bool ended = Attempt([&] {
    if (MustHaveSelected(names, "You must first select a person")) {
      Letters::Open(program, OpeningOf(names.Person(), program, withAddress));
    }
  });
  if (!ended) {
    MsgBox(QLatin1String(FailureOf(program)));
  }
}

// A list that could not be read has no one to write to.
void SendEmail(NameList& names)
{
  Attempt([&] {
    if (!MustHaveSelected(names, "You must first select a name")) {
      return;
    }
    const QString address = TextIn(names.Person(), "Email");
    if (address.isEmpty()) {
      MsgBox(QStringLiteral("Sorry, there is no email address for this person in the database"));
    } else {
      Mail::Write(address);
    }
  });
}

}
