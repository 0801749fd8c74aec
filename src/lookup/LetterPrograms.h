// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/ProgramEntry.h"

#include <QList>

// What a letter is asked to be written in: a text editor, a word processor (always
// LibreOffice Writer), a rich-text editor.
enum class LetterProgram
{
  kNotepad,
  kWord,
  kWordPad
};

// The programs on this desktop that letters can be written in.
namespace LetterPrograms {

// Those that can be started, in the order to try them: what the user and the desktop have
// chosen for such documents, what is installed for them, and well-known ones.
[[nodiscard]] QList<ProgramEntry> For(LetterProgram program);

// LibreOffice takes any letter as a new document without a name.
[[nodiscard]] bool IsLibreOffice(const ProgramEntry& entry);

}
