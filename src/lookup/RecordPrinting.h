// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

struct PersonResults;
class QFont;

// Prints what the look-up page shows of a person.
namespace RecordPrinting {

// The name, and what is ticked. `notes` are the lines of the notes.
void PrintStuff(const QString& fullName, PersonResults& results, const QStringList& notes);

// How notes in that font are broken into lines, each cut behind its 80th character.
[[nodiscard]] QStringList NotesLines(const QString& notes, const QFont& font);

}
