// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "lookup/LetterPrograms.h"

class NameList;

// Writing to the selected person, who is the cursor's. Tells the user what is missing, if
// anything is.
namespace Correspondence {

// Begins a letter in a program of that kind.
void WriteLetter(NameList& names, LetterProgram program, bool withAddress);

// Begins a message in the desktop's mail program.
void SendEmail(NameList& names);

}
