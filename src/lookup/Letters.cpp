// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/Letters.h"

#include "lookup/LetterDocuments.h"
#include "lookup/LetterFiles.h"
#include "platform/RuntimeError.h"
#include "platform/Shell.h"

#include <QCoreApplication>

namespace Letters {
namespace {

struct Document
{
  QString suffix;
  QByteArray content;
  QStringList options;  // that the program needs to take it as a new letter
};

Document MakeDocument(const ProgramEntry& entry, LetterProgram program, const QString& text)
{
  if (LetterPrograms::IsLibreOffice(entry)) {
    return {QStringLiteral("fodt"), LetterDocuments::OpenDocument(text), {QStringLiteral("-n")}};
  }
  if (program == LetterProgram::kNotepad) {
    return {QStringLiteral("txt"), LetterDocuments::PlainText(text), {}};
  }
  return {QStringLiteral("rtf"), LetterDocuments::RichText(text), {}};
}

bool HandOver(const Document& document, const ProgramEntry& entry)
{
  const QString letter = LetterFiles::Write(document.suffix, document.content);
  if (Shell::Start(entry.CommandToOpen(letter, document.options), [letter] { LetterFiles::TidyUp(letter); })) {
    return true;
  }
  LetterFiles::Discard(letter);
  return false;
}

// Until then a letter stands for as long as its program runs, and for good if that has
// handed it on: it may be open, and its user about to save it.
void TidyUpAtTheEnd()
{
  static const auto connection = QObject::connect(qApp, &QCoreApplication::aboutToQuit, qApp, &TidyUp);
  Q_UNUSED(connection)
}

}

void Open(LetterProgram program, const QString& text)
{
  TidyUpAtTheEnd();
  for (const ProgramEntry& entry : LetterPrograms::For(program)) {
    if (HandOver(MakeDocument(entry, program, text), entry)) {
      return;
    }
  }
  RaiseError(ErrorNumber::kFileNotFound);
}

void TidyUp()
{
  LetterFiles::TidyUpAll();
}

}
