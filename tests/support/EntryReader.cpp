// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/EntryReader.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringDecoder>

#include <stdexcept>

namespace {

[[noreturn]] void Refuse(const QString& what)
{
  throw std::runtime_error("no desktop entry: " + what.toStdString());
}

QString Unescaped(const QString& written)
{
  static const QMap<QChar, QChar> kMeant = {{u's', u' '}, {u'n', u'\n'}, {u't', u'\t'}, {u'r', u'\r'}, {u'\\', u'\\'}};
  QString meant;
  for (auto at = written.begin(); at != written.end(); ++at) {
    if (*at != u'\\') {
      meant += *at;
    } else if (++at == written.end() || !kMeant.contains(*at)) {
      Refuse("escape in " + written);
    } else {
      meant += kMeant[*at];
    }
  }
  return meant;
}

QString WithoutFieldCodes(const QString& argument)
{
  QString plain;
  for (auto at = argument.begin(); at != argument.end(); ++at) {
    if (*at == u'%' && (++at == argument.end() || *at != u'%')) {
      Refuse("field code in " + argument);
    }
    plain += *at;
  }
  return plain;
}

// One quoted argument at the head of a command line, or one that needs no quotes.
const QRegularExpression kArgument(R"re(\A(?:"((?:[^"`$\\]|\\["`$\\])*)"|([^\s"'\\><~|&;$*?#()`]+))(?: +|\z))re");

}

EntryReader::EntryReader(const QByteArray& entry)
{
  QStringDecoder decoder(QStringDecoder::Utf8);
  const QString text = decoder(entry);
  if (decoder.hasError() || !text.endsWith(u'\n')) {
    Refuse(text);
  }
  QStringList lines = text.chopped(1).split(u'\n');
  if (lines.takeFirst() != "[Desktop Entry]") {
    Refuse(text);
  }
  static const QRegularExpression keyAndValue(R"re(\A([A-Za-z0-9-]+) *= *([^\x{00}-\x{1F}]*?) *\z)re");
  for (const QString& line : lines) {
    const QRegularExpressionMatch match = keyAndValue.match(line);
    if (!match.hasMatch() || values_.contains(match.captured(1))) {
      Refuse(line);
    }
    values_[match.captured(1)] = Unescaped(match.captured(2));
  }
}

EntryReader EntryReader::OfFile(const QString& path)
{
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    Refuse(path);
  }
  return EntryReader(file.readAll());
}

QStringList EntryReader::Command() const
{
  static const QRegularExpression escape(R"re(\\(["`$\\]))re");
  QString rest = Value("Exec");
  QStringList arguments;
  while (!rest.isEmpty()) {
    const QRegularExpressionMatch match = kArgument.match(rest);
    if (!match.hasMatch()) {
      Refuse(rest);
    }
    arguments.append(WithoutFieldCodes(match.captured(1).replace(escape, "\\1") + match.captured(2)));
    rest.remove(0, match.capturedLength());
  }
  return arguments;
}
