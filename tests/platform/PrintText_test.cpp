// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/PrintFont.h"
#include "platform/PrintText.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QStringList>

#include <vector>

namespace {

const QString kArial = QStringLiteral("arial");

// The pieces of a text as "line:text", to compare them at a glance.
QStringList PiecesOf(const QString& text)
{
  QStringList pieces;
  for (const PrintPiece& piece : CutForPrinting(text, PrintFont(kArial, 12, false), 0).pieces) {
    pieces.append(QString::number(piece.line) + ":" + piece.text);
  }
  return pieces;
}

}

TEST(PrintFont, IsArialOrTheFontThatMeasuresLikeIt)
{
  const PrintFont font(kArial, 12, false);
  const QString family = QFontInfo(font.Font()).family();
  EXPECT_TRUE(family == "Arial" || family == "Liberation Sans") << family.toStdString();
}

TEST(PrintFont, MeasuresInTwipsInProportionToItsSize)
{
  for (const double points : {8.0, 8.25, 10.0, 12.0, 14.0, 40.0}) {
    const PrintFont font(kArial, points, false);
    EXPECT_NEAR(font.Ascent(), 0.905 * points * 20, 1) << points;
    EXPECT_NEAR(font.LineHeight(), 1.15 * points * 20, 1) << points;
    EXPECT_NEAR(font.Width("m"), 0.833 * points * 20, 1) << points;
    EXPECT_NEAR(font.Width("mmmmmmmmmm"), 8.33 * points * 20, 2) << points;
  }
  EXPECT_GT(PrintFont(kArial, 12, true).Width("quillmark"), PrintFont(kArial, 12, false).Width("quillmark"));
}

TEST(PrintFont, SetsTabStopsEightAverageCharactersApart)
{
  constexpr double kAverage = 0.4415 * 240;
  const PrintFont font(kArial, 12, false);
  for (int stop = 1; stop <= 10; ++stop) {
    EXPECT_NEAR(font.NextTabStop((stop - 0.5) * 8 * kAverage), stop * 8 * kAverage, 3);
  }
  EXPECT_NEAR(PrintFont(kArial, 10, false).NextTabStop(0), 8 * kAverage * 10 / 12, 2);
  EXPECT_GT(PrintFont(kArial, 12, true).NextTabStop(0), font.NextTabStop(0));
}

TEST(PrintFont, GoesOnFromOneTabStopToTheNext)
{
  for (const double points : {8.25, 10.0, 12.0, 14.0}) {
    const PrintFont font(kArial, points, false);
    const double first = font.NextTabStop(0);
    double x = 0;
    for (int stop = 1; stop <= 1000; ++stop) {
      x = font.NextTabStop(x);
      ASSERT_NEAR(x, stop * first, 0.01) << points;
    }
  }
}

TEST(PrintText, IsCutAtTabsAndLineBreaks)
{
  const struct
  {
    QString text;
    QStringList pieces;
    int lines;
  } kCases[] = {
      {"", {}, 1},
      {"one", {"0:one"}, 1},
      {"one two", {"0:one two"}, 1},
      {"one\ttwo", {"0:one", "0:two"}, 1},
      {"\t\tone\t", {"0:one"}, 1},
      {"one\r\ntwo", {"0:one", "1:two"}, 2},
      {"one\ntwo\rthree", {"0:one", "1:two", "2:three"}, 3},
      {"one\r\n\r\ntwo", {"0:one", "2:two"}, 3},
      {"one\n\rtwo", {"0:one", "2:two"}, 3},
      {"one\r\n", {"0:one"}, 2},
      {QStringLiteral("one\u2028two\u2029three"), {"0:one", "1:two", "2:three"}, 3},
      {QStringLiteral("b\u0007e\u0000l\u001b\u007fl\u0085"), {"0:bell"}, 1},
      {QStringLiteral("Zoë 中文 😀"), {QStringLiteral("0:Zoë 中文 😀")}, 1},
  };
  for (const auto& [text, pieces, lines] : kCases) {
    EXPECT_EQ(PiecesOf(text), pieces) << text.toStdString();
    EXPECT_EQ(CutForPrinting(text, PrintFont(kArial, 12, false), 0).lines, lines) << text.toStdString();
  }
}

TEST(PrintText, GoesOnAtTheTabStopsOfThePageAndAtItsLeftAfterABreak)
{
  const PrintFont font(kArial, 12, false);
  const double stop = font.NextTabStop(0);
  const PrintText cut =
      CutForPrinting("Address:\t\t1 High Street\r\n\t\t\tFlat 2\r\n\t\t\t\tLondon\r\nend", font, 1100);
  ASSERT_EQ(cut.pieces.size(), 5U);
  EXPECT_EQ(cut.pieces[0].x, 1100);
  EXPECT_NEAR(cut.pieces[1].x, 4 * stop, 0.01);
  EXPECT_NEAR(cut.pieces[2].x, 3 * stop, 0.01);
  EXPECT_NEAR(cut.pieces[3].x, 4 * stop, 0.01);
  EXPECT_EQ(cut.pieces[4].x, 0);
  EXPECT_NEAR(cut.endX, font.Width("end"), 0.01);
  EXPECT_NEAR(cut.width, 4 * stop + font.Width("1 High Street"), 0.01);
}

TEST(PrintText, TakesHugeTexts)
{
  const PrintFont font(kArial, 12, false);
  const PrintText tabs = CutForPrinting(QString(100'000, '\t') + "end", font, 0);
  ASSERT_EQ(tabs.pieces.size(), 1U);
  EXPECT_NEAR(tabs.pieces[0].x / font.NextTabStop(0), 100'000, 0.01);
  EXPECT_EQ(CutForPrinting(QString(100'000, '\n'), font, 0).lines, 100'001);
}
