// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/ResultTitles.h"

#include "controls/EntryBox.h"
#include "lookup/PersonResults.h"

#include <QCheckBox>

namespace {

const QString kContact = QStringLiteral("Contact");
const QString kSpecial = QStringLiteral("Special occasions");
const QString kNotes = QStringLiteral("Notes");

}

ResultTitles::ResultTitles(EntryBox& contact, EntryBox& special, QCheckBox& notes)
    : contact_(contact), special_(special), notes_(notes)
{
  contact_.SetLocked(true);
  special_.SetLocked(true);
}

void ResultTitles::ShowPlain()
{
  Set(kContact, kSpecial, kNotes);
}

void ResultTitles::Show(const QString& firstName, const PersonResults& results)
{
  Set(results.ContactWanted() ? QStringLiteral("Contact records for ") + firstName : kContact,
      results.SpecialWanted() ? QStringLiteral("Special occasions for ") + firstName : kSpecial,
      results.notes.IsWanted() ? QStringLiteral("Notes for ") + firstName : kNotes);
}

// An ampersand would underline what follows it.
void ResultTitles::Set(const QString& contact, const QString& special, const QString& notes)
{
  contact_.SetText(contact);
  special_.SetText(special);
  notes_.setText(QString(notes).replace(QLatin1Char('&'), QLatin1String("&&")));
}
