// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/LetterPrograms.h"

#include "platform/Associations.h"

#include <QRegularExpression>

#include <vector>

namespace LetterPrograms {
namespace {

// Where the programs of one kind are looked for.
struct Search
{
  std::vector<const char*> mimeTypes;
  const char* category;  // of what is taken without having been chosen
  std::vector<const char*> wellKnown;
  bool onlyLibreOffice = false;
};

Search SearchFor(LetterProgram program)
{
  switch (program) {
    case LetterProgram::kNotepad:
      return {{"text/plain"},
              "TextEditor",
              {"gnome-text-editor", "gedit", "kate", "kwrite", "mousepad", "xed", "pluma", "featherpad", "l3afpad",
               "leafpad", "geany", "gvim -f"}};
    case LetterProgram::kWord:
      return {{"application/vnd.oasis.opendocument.text"},
              "WordProcessor",
              {"lowriter", "libreoffice --writer", "soffice --writer"},
              true};
    case LetterProgram::kWordPad:
      return {{"application/rtf", "text/rtf"},
              "WordProcessor",
              {"abiword", "lowriter", "libreoffice --writer", "soffice --writer", "calligrawords", "ted",
               "onlyoffice-desktopeditors"}};
  }
  Q_UNREACHABLE();
}

QList<ProgramEntry> Found(const Search& search)
{
  QList<ProgramEntry> entries;
  for (const char* mimeType : search.mimeTypes) {
    entries += Associations::Chosen(QLatin1String(mimeType));
  }
  for (const char* mimeType : search.mimeTypes) {
    for (const ProgramEntry& entry : Associations::Able(QLatin1String(mimeType))) {
      if (entry.categories.contains(QLatin1String(search.category))) {
        entries.append(entry);
      }
    }
  }
  for (const char* command : search.wellKnown) {
    ProgramEntry entry;
    entry.command = QLatin1String(command);
    entries.append(entry);
  }
  return entries;
}

}

QList<ProgramEntry> For(LetterProgram program)
{
  const Search search = SearchFor(program);
  QList<ProgramEntry> entries = Found(search);
  entries.removeIf([&](const ProgramEntry& entry) {
    return !entry.CanStart() || (search.onlyLibreOffice && !IsLibreOffice(entry));
  });
  return entries;
}

bool IsLibreOffice(const ProgramEntry& entry)
{
  static const QRegularExpression name(QStringLiteral("\\b(libreoffice|soffice|lowriter)"),
                                       QRegularExpression::CaseInsensitiveOption);
  return entry.command.contains(name);
}

}
