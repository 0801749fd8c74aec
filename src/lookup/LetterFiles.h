// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

// The files that letters are handed over in. Each stands in a folder of its own, and
// neither can be read by anybody but the user. A letter goes once it has stood for as long
// as any program needs to read it. What the user saved beside or over it is the user's:
// that is moved to the documents, and never removed.
namespace LetterFiles {

// Writes a new letter and gives its path; `suffix` is that of its name. Throws 75.
[[nodiscard]] QString Write(const QString& suffix, const QByteArray& content);

// Removes a letter that nobody was given.
void Discard(const QString& letter);

// Removes the letter if it has stood long enough.
void TidyUp(const QString& letter);

// The same for all letters, those of earlier runs too.
void TidyUpAll();

}
