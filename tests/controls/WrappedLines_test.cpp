// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/WrappedLines.h"

#include <QFont>
#include <QFontMetricsF>

#include <gtest/gtest.h>

namespace {

constexpr int kTwipsPerPixel = 15;

QFont BoxFont()
{
  QFont font("arial");
  font.setPixelSize(13);
  return font;
}

// The lines with a bar between them.
std::string Wrapped(const QString& text, int width)
{
  return WrappedLines(text, BoxFont(), width).join('|').toStdString();
}

// Just enough for the text, in twips.
int Room(const QString& text)
{
  return kTwipsPerPixel * (static_cast<int>(QFontMetricsF(BoxFont()).horizontalAdvance(text)) + 2);
}

TEST(WrappedLines, LeavesWhatFitsOnOneLine)
{
  EXPECT_EQ(Wrapped("Bring the letter", 9000), "Bring the letter");
  EXPECT_EQ(Wrapped("Bring the letter", Room("Bring the letter")), "Bring the letter");
  EXPECT_EQ(Wrapped("x", 9000), "x");
}

TEST(WrappedLines, BreaksBetweenWords)
{
  EXPECT_EQ(Wrapped("Bring the letter", Room("Bring the")), "Bring the |letter");
  EXPECT_EQ(Wrapped("Bring the letter", Room("Bring")), "Bring |the |letter");
}

TEST(WrappedLines, BreaksAtTheLineBreaksOfTheText)
{
  EXPECT_EQ(Wrapped("one\ntwo\r\nthree\rfour", 9000), "one|two|three|four");
  EXPECT_EQ(Wrapped("one\r\n\r\nthree", 9000), "one||three");
  EXPECT_EQ(Wrapped("\r\none\r\n", 9000), "|one|");
  EXPECT_EQ(Wrapped("\n", 9000), "|");
}

TEST(WrappedLines, OfNothingAreOneEmptyLineAsInABox)
{
  EXPECT_EQ(WrappedLines({}, BoxFont(), 9000), QStringList({""}));
}

TEST(WrappedLines, BreakAWordThatIsTooLong)
{
  const QString word(200, 'm');
  const QStringList lines = WrappedLines("a " + word + " b", BoxFont(), 1500);
  ASSERT_GT(lines.size(), 10);
  EXPECT_EQ(lines.join(QString()), "a " + word + " b");
  for (const QString& line : lines) {
    EXPECT_LE(QFontMetricsF(BoxFont()).horizontalAdvance(line.trimmed()), 1500.0 / kTwipsPerPixel + 1);
  }
}

TEST(WrappedLines, LoseNoLetterAtAnyWidth)
{
  const QString text = QStringLiteral("Ελλάδα Юлия עברית العربية 中文字 हिन्दी 😀 e\u0301\tend ") + QChar(0xd83d);
  for (const int width : {-100, 0, 1, 15, 200, 1000, 3135, 7000, 9000, 100'000}) {
    EXPECT_EQ(WrappedLines(text, BoxFont(), width).join(QString()), text) << width;
  }
  EXPECT_EQ(WrappedLines(text, BoxFont(), 100'000).size(), 1);
}

TEST(WrappedLines, NeedMoreLinesInLargerLettersAndFewerInAWiderBox)
{
  const QString text = QString("every word counts ").repeated(100);
  QFont large = BoxFont();
  large.setPixelSize(26);
  const auto lines = WrappedLines(text, BoxFont(), 3135).size();
  EXPECT_GT(WrappedLines(text, large, 3135).size(), lines);
  EXPECT_LT(WrappedLines(text, BoxFont(), 7000).size(), lines);
}

}
