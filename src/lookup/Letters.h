// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "lookup/LetterPrograms.h"

// Letters, begun here and written on in other programs.
namespace Letters {

// Hands a letter that begins with `text` over to a program and returns. The text travels
// in a private file. Throws 53 if no such program can be started, 75 if the file cannot be
// written.
void Open(LetterProgram program, const QString& text);

// Tidies up after earlier runs. The letters of this one go when their programs end, and
// when it ends itself.
void TidyUp();

}
