// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ProgramEntry.h"

#include "platform/CommandWords.h"
#include "platform/KeyFile.h"

#include <QStandardPaths>
#include <QUrl>

#include <algorithm>

namespace {

const QString kGroup = QStringLiteral("Desktop Entry");

// What a backslash stands for in any value; before other characters it is one.
QString WithoutEscapes(const QString& value)
{
  const QString codes = QStringLiteral("sntr\\");
  const QString meanings = QStringLiteral(" \n\t\r\\");
  QString text;
  for (qsizetype i = 0; i < value.size(); ++i) {
    const qsizetype code = value[i] == u'\\' && i + 1 < value.size() ? codes.indexOf(value[i + 1]) : -1;
    text += code < 0 ? value[i] : meanings[code];
    i += code < 0 ? 0 : 1;
  }
  return text;
}

bool HasFileCode(const QString& word)
{
  for (qsizetype i = word.indexOf(u'%'); i >= 0 && i + 1 < word.size(); i = word.indexOf(u'%', i + 2)) {
    if (QStringLiteral("fFuU").contains(word[i + 1])) {
      return true;
    }
  }
  return false;
}

// A box for programs lets them see only the files that stand between marks such as "@@u"
// and "@@".
bool BeginsFiles(const QString& word)
{
  return HasFileCode(word) || word.startsWith(QLatin1String("@@"));
}

QString Meaning(QChar code, const ProgramEntry& entry, const QString& file)
{
  switch (code.unicode()) {
    case u'f':
    case u'F':
      return file;
    case u'u':
    case u'U':
      return QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded);
    case u'c':
      return entry.name;
    case u'k':
      return entry.path;
    case u'%':
      return QStringLiteral("%");
    default:
      return {};
  }
}

// A word that was nothing but codes without a meaning is no argument.
QStringList Expanded(const QString& word, const ProgramEntry& entry, const QString& file)
{
  if (word == QLatin1String("%i")) {
    return entry.icon.isEmpty() ? QStringList() : QStringList{QStringLiteral("--icon"), entry.icon};
  }
  QString expanded;
  for (qsizetype i = 0; i < word.size(); ++i) {
    const bool isCode = word[i] == u'%' && i + 1 < word.size();
    expanded += isCode ? Meaning(word[i + 1], entry, file) : QString(word[i]);
    i += isCode ? 1 : 0;
  }
  return expanded.isEmpty() && !word.isEmpty() ? QStringList() : QStringList{expanded};
}

bool IsInstalled(const QString& program)
{
  return !program.isEmpty() && !QStandardPaths::findExecutable(program).isEmpty();
}

}

ProgramEntry ProgramEntry::Read(const QString& path)
{
  const KeyFile file(path);
  if (file.Value(kGroup, QStringLiteral("Type")) != QLatin1String("Application") ||
      file.IsTrue(kGroup, QStringLiteral("Hidden"))) {
    return {};
  }
  const auto value = [&](const char* key) { return WithoutEscapes(file.Value(kGroup, QLatin1String(key))); };
  return {path,
          value("Name"),
          value("Icon"),
          value("Exec"),
          value("TryExec"),
          file.Values(kGroup, QStringLiteral("Categories")),
          file.IsTrue(kGroup, QStringLiteral("Terminal"))};
}

bool ProgramEntry::CanStart() const
{
  return !runsInTerminal && (probe.isEmpty() || IsInstalled(probe)) &&
         IsInstalled(CommandToOpen(QStringLiteral("/")).value(0));
}

QStringList ProgramEntry::CommandToOpen(const QString& file, const QStringList& options) const
{
  QStringList words = CommandWords(command);
  if (words.isEmpty()) {
    return {};
  }
  if (std::none_of(words.cbegin(), words.cend(), HasFileCode)) {
    words.append(QStringLiteral("%f"));
  }
  QStringList arguments;
  bool optionsStand = false;
  for (const QString& word : words) {
    if (!optionsStand && BeginsFiles(word)) {
      arguments += options;
      optionsStand = true;
    }
    arguments += Expanded(word, *this, file);
  }
  return arguments;
}
