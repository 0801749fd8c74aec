// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/PrintedPages.h"

#include <QProcess>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kTwipsPerPoint = 20;

QByteArray OutputOf(const QString& program, const QStringList& arguments)
{
  QProcess process;
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForFinished(60'000)) << program.toStdString();
  EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
  return process.readAllStandardOutput();
}

double Twips(const QXmlStreamReader& reader, const char* attribute)
{
  return reader.attributes().value(QLatin1String(attribute)).toDouble() * kTwipsPerPoint;
}

}

PrintedPages::PrintedPages(const QString& path, double margin) : path_(path)
{
  QXmlStreamReader reader(OutputOf(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), path, QStringLiteral("-")}));
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) {
      continue;
    }
    if (reader.name() == QLatin1String("page")) {
      sizes_.emplace_back(Twips(reader, "width"), Twips(reader, "height"));
    } else if (reader.name() == QLatin1String("word")) {
      const double left = Twips(reader, "xMin") - margin;
      const double top = Twips(reader, "yMin") - margin;
      const double right = Twips(reader, "xMax") - margin;
      words_.push_back({reader.readElementText(), Count(), left, top, right});
    }
  }
  EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
}

PrintedWord PrintedPages::Word(const QString& text) const
{
  const auto found =
      std::find_if(words_.begin(), words_.end(), [&](const PrintedWord& word) { return word.text == text; });
  if (found == words_.end()) {
    ADD_FAILURE() << "not printed: " << text.toStdString();
    return {text, 0, std::nan(""), std::nan(""), std::nan("")};
  }
  return *found;
}

QStringList PrintedPages::Lines(int page) const
{
  constexpr double kSameLine = 60;
  std::vector<PrintedWord> words;
  std::copy_if(words_.begin(), words_.end(), std::back_inserter(words),
               [&](const PrintedWord& word) { return word.page == page; });
  std::stable_sort(words.begin(), words.end(),
                   [](const PrintedWord& one, const PrintedWord& other) { return one.y < other.y; });
  QStringList lines;
  for (auto begin = words.begin(); begin != words.end();) {
    const auto end =
        std::find_if(begin, words.end(), [&](const PrintedWord& word) { return word.y - begin->y > kSameLine; });
    std::sort(begin, end, [](const PrintedWord& one, const PrintedWord& other) { return one.x < other.x; });
    QStringList line;
    std::for_each(begin, end, [&](const PrintedWord& word) { line.append(word.text); });
    lines.append(line.join(QLatin1Char(' ')));
    begin = end;
  }
  return lines;
}

QImage PrintedPages::Picture(int page, int dotsPerInch) const
{
  const QString number = QString::number(page);
  const QByteArray picture =
      OutputOf(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QString::number(dotsPerInch), QStringLiteral("-f"),
                                            number, QStringLiteral("-l"), number, path_});
  return QImage::fromData(picture, "PPM");
}
