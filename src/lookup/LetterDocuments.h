// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

// A letter's text as a document. A line is a paragraph; tabs and blanks are kept, other
// control characters are left out.
namespace LetterDocuments {

// UTF-8, with no line end behind the last line.
[[nodiscard]] QByteArray PlainText(const QString& text);

// Rich text format.
[[nodiscard]] QByteArray RichText(const QString& text);

// An OpenDocument text in one file, without any style of its own.
[[nodiscard]] QByteArray OpenDocument(const QString& text);

}
