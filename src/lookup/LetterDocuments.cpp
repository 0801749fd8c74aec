// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/LetterDocuments.h"

#include <QRegularExpression>
#include <QStringList>
#include <QXmlStreamWriter>

namespace LetterDocuments {
namespace {

const QString kOffice = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:office:1.0");
const QString kText = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:text:1.0");

// What a document cannot hold, in whatever format.
bool IsUnfit(char32_t character)
{
  return (character < U' ' && character != U'\t' && character != U'\n') || character == 0x7F ||
         QChar::isNonCharacter(character);
}

QString Cleaned(const QString& text)
{
  QString lines = text;
  lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
  QList<uint> characters = lines.toUcs4();
  characters.removeIf(IsUnfit);
  return QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()), characters.size());
}

void AddRich(QChar character, QByteArray& document)
{
  switch (character.unicode()) {
    case u'\n':
      document += "\\par\n";
      return;
    case u'\t':
      document += "\\tab ";
      return;
    case u'\\':
    case u'{':
    case u'}':
      document += '\\';
      break;
    default:
      break;
  }
  if (character.unicode() < 0x7F) {
    document += character.toLatin1();
  } else {
    document += "\\u" + QByteArray::number(static_cast<qint16>(character.unicode())) + '?';
  }
}

// A reader takes plain blanks at the ends of a paragraph, and all but one within it, for
// layout of the file; so these are written as elements, as tabs are.
void WriteParagraph(QXmlStreamWriter& writer, const QString& line)
{
  static const QRegularExpression spacing(QStringLiteral("\t|^ +| +$| {2,}"));
  writer.writeStartElement(kText, QStringLiteral("p"));
  qsizetype written = 0;
  for (const QRegularExpressionMatch& match : spacing.globalMatch(line)) {
    writer.writeCharacters(line.mid(written, match.capturedStart() - written));
    if (match.capturedView() == u"\t") {
      writer.writeEmptyElement(kText, QStringLiteral("tab"));
    } else {
      writer.writeEmptyElement(kText, QStringLiteral("s"));
      writer.writeAttribute(kText, QStringLiteral("c"), QString::number(match.capturedLength()));
    }
    written = match.capturedEnd();
  }
  writer.writeCharacters(line.mid(written));
  writer.writeEndElement();
}

}

QByteArray PlainText(const QString& text)
{
  return Cleaned(text).toUtf8();
}

QByteArray RichText(const QString& text)
{
  QByteArray document =
      "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1{\\fonttbl{\\f0\\froman Liberation Serif;}}\n\\f0\\fs24 ";
  const QString cleaned = Cleaned(text);
  for (const QChar character : cleaned) {
    AddRich(character, document);
  }
  return document + "}\n";
}

QByteArray OpenDocument(const QString& text)
{
  QByteArray document;
  QXmlStreamWriter writer(&document);
  writer.writeStartDocument();
  writer.writeNamespace(kOffice, QStringLiteral("office"));
  writer.writeNamespace(kText, QStringLiteral("text"));
  writer.writeStartElement(kOffice, QStringLiteral("document"));
  writer.writeAttribute(kOffice, QStringLiteral("version"), QStringLiteral("1.3"));
  writer.writeAttribute(kOffice, QStringLiteral("mimetype"), QStringLiteral("application/vnd.oasis.opendocument.text"));
  writer.writeStartElement(kOffice, QStringLiteral("body"));
  writer.writeStartElement(kOffice, QStringLiteral("text"));
  for (const QString& line : Cleaned(text).split(QLatin1Char('\n'))) {
    WriteParagraph(writer, line);
  }
  writer.writeEndDocument();
  return document;
}

}
