// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/LetterDocuments.h"

#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

// The paragraphs of an OpenDocument text as its readers take them: plain blanks at the ends
// of a paragraph, and all but one in a row, are none of the text.
QStringList Paragraphs(const QByteArray& document)
{
  QStringList paragraphs;
  QXmlStreamReader reader(document);
  while (!reader.atEnd()) {
    reader.readNext();
    if (reader.isStartElement() && reader.name() == u"p") {
      paragraphs.append(QString());
    } else if (reader.isStartElement() && reader.name() == u"tab") {
      paragraphs.last() += '\t';
    } else if (reader.isStartElement() && reader.name() == u"s") {
      paragraphs.last() +=
          QString(reader.attributes().value("urn:oasis:names:tc:opendocument:xmlns:text:1.0", "c").toInt(), ' ');
    } else if (reader.isCharacters() && !paragraphs.isEmpty()) {
      const QString run = reader.text().toString();
      EXPECT_FALSE(run.contains("  ") || run.contains('\t') || run.contains('\n')) << run.toStdString();
      paragraphs.last() += run;
    }
  }
  EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
  return paragraphs;
}

const char16_t kAwkward[] = u"a\u0001b\u0000c\u001Bd\u007Fe\uFFFEf\xD800g\xDC00h";

QString Awkward()
{
  return QString(reinterpret_cast<const QChar*>(kAwkward), std::size(kAwkward) - 1);
}

}

TEST(LetterDocuments, PlainTextIsTheTextItself)
{
  const struct
  {
    QString text;
    QByteArray document;
  } cases[] = {{"", ""},
               {"Dear Ann:", "Dear Ann:"},
               {"a\n\n\nb", "a\n\n\nb"},
               {"a\r\nb\rc\n", "a\nb\nc\n"},
               {"  a \t b ", "  a \t b "},
               {u"Zo\u00EB \u4E2D \U0001F600"_qs, "Zo\xC3\xAB \xE4\xB8\xAD \xF0\x9F\x98\x80"},
               {Awkward(), "abcdef\xEF\xBF\xBDg\xEF\xBF\xBDh"}};
  for (const auto& [text, document] : cases) {
    EXPECT_EQ(LetterDocuments::PlainText(text), document);
  }
}

TEST(LetterDocuments, RichTextEscapesWhatWouldBeItsOwnWords)
{
  const struct
  {
    QString text;
    QByteArray body;
  } cases[] = {{"", ""},
               {"Dear Ann:", "Dear Ann:"},
               {"a\n\nb", "a\\par\n\\par\nb"},
               {"{\\b x}", "\\{\\\\b x\\}"},
               {"\ta", "\\tab a"},
               {u"Zo\u00EB"_qs, "Zo\\u235?"},
               {u"\uFB01"_qs, "\\u-1279?"},
               {u"\U0001F600"_qs, "\\u-10179?\\u-8704?"},
               {Awkward(), "abcdef\\u-3?g\\u-3?h"}};
  for (const auto& [text, body] : cases) {
    const QByteArray document = LetterDocuments::RichText(text);
    EXPECT_TRUE(document.startsWith("{\\rtf1\\ansi"));
    EXPECT_TRUE(document.endsWith("\\fs24 " + body + "}\n")) << document.toStdString();
  }
}

TEST(LetterDocuments, AnOpenDocumentHasAParagraphALineAndKeepsEveryBlank)
{
  const QString cases[] = {
      "",           "Dear Ann:", "a\n\n\nb\n",   "<b> & \"c\" 'd' ]]> &amp; <!--",       " a", "a ",
      "a b  c   d", "   ",       "\t\ta \t b\t", u"Zo\u00EB \u4E2D \U0001F600 \u00A0"_qs};
  for (const QString& text : cases) {
    EXPECT_EQ(Paragraphs(LetterDocuments::OpenDocument(text)), text.split('\n')) << text.toStdString();
  }
  EXPECT_EQ(Paragraphs(LetterDocuments::OpenDocument(Awkward())), QStringList{u"abcdef\uFFFDg\uFFFDh"_qs});
  EXPECT_EQ(Paragraphs(LetterDocuments::OpenDocument("a\r\nb\rc")), (QStringList{"a", "b", "c"}));
}

TEST(LetterDocuments, TenMegabytesAreADocumentToo)
{
  const QString text = QString("Some words, and <more>.\n").repeated(10 * 1024 * 1024 / 24);
  EXPECT_EQ(LetterDocuments::PlainText(text).size(), text.size());
  EXPECT_EQ(Paragraphs(LetterDocuments::OpenDocument(text)).join('\n'), text);
  EXPECT_EQ(LetterDocuments::RichText(text).count("\\par\n"), text.count('\n'));
}
