// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/PrintDialog.h"
#include "platform/Printer.h"
#include "support/ErrorOf.h"
#include "support/PrintDialogScript.h"
#include "support/PrintedPages.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>

namespace {

// Twips by which a printed place may differ from what was asked for.
constexpr double kNear = 2;

class PrinterTest : public testing::Test
{
protected:
  ~PrinterTest() override { Printer::EndDoc(); }

  // The next document goes to the test's file, on such a paper.
  void Choose(QPageSize::PageSizeId paper = QPageSize::A4, const PrintDialogScript::Act& act = {})
  {
    QFile::remove(path);
    PrintDialogScript dialogs;
    dialogs.ExpectPdf(path, paper, act);
    ShowPrinter();
  }

  // Ends the document and reads it.
  [[nodiscard]] PrintedPages Printed() const
  {
    Printer::EndDoc();
    return PrintedPages(path);
  }

  static void PrintAt(double x, double y, const QString& text)
  {
    Printer::SetCurrentX(x);
    Printer::SetCurrentY(y);
    Printer::Print(text);
  }

  static void ExpectAt(const PrintedWord& word, double x, double y)
  {
    EXPECT_NEAR(word.x, x, kNear) << word.text.toStdString();
    EXPECT_NEAR(word.y, y, kNear) << word.text.toStdString();
  }

  // True if that place of a picture has this colour. Five twips are a dot of the picture.
  static bool IsInk(const QImage& picture, int x, int y, QRgb ink = qRgb(0, 0, 0))
  {
    constexpr int kMargin = PrintedPages::kMargin;
    return picture.pixel((x + kMargin) / 5, (y + kMargin) / 5) == ink;
  }

  QTemporaryDir folder;
  QString path = folder.filePath("list.pdf");
};

}

TEST_F(PrinterTest, PrintsWhereItIsTold)
{
  Choose();
  PrintAt(0, 0, "corner");
  PrintAt(1100, 1000, "margin");
  PrintAt(650.5, 2450.25, "cell");
  PrintAt(9000, 15000, "far");
  const PrintedPages pages = Printed();
  ASSERT_EQ(pages.Count(), 1);
  ExpectAt(pages.Word("corner"), 0, 0);
  ExpectAt(pages.Word("margin"), 1100, 1000);
  ExpectAt(pages.Word("cell"), 650.5, 2450.25);
  ExpectAt(pages.Word("far"), 9000, 15000);
}

TEST_F(PrinterTest, GoesOnAtTheLeftOfTheNextLine)
{
  Choose();
  PrintAt(1100, 1000, "first");
  EXPECT_EQ(Printer::CurrentX(), 0);
  EXPECT_NEAR(Printer::CurrentY(), 1276, 1);
  Printer::Print("second");
  Printer::Print();
  Printer::Print("fourth");
  const PrintedPages pages = Printed();
  const double height = 276;
  ExpectAt(pages.Word("first"), 1100, 1000);
  ExpectAt(pages.Word("second"), 0, 1000 + height);
  ExpectAt(pages.Word("fourth"), 0, 1000 + 3 * height);
}

TEST_F(PrinterTest, StaysOnTheLineIfAskedTo)
{
  Choose();
  Printer::SetCurrentX(700);
  Printer::SetCurrentY(1300);
  Printer::Print("14", Printer::LineEnd::kStay);
  EXPECT_NEAR(Printer::CurrentX(), 700 + Printer::TextWidth("14"), 0.01);
  EXPECT_EQ(Printer::CurrentY(), 1300);
  Printer::Print("th", Printer::LineEnd::kStay);
  Printer::SetCurrentX(2500);
  Printer::Print("Dentist");
  const PrintedPages pages = Printed();
  EXPECT_EQ(pages.Lines(1), QStringList({"14th Dentist"}));
  ExpectAt(pages.Word("14th"), 700, 1300);
  ExpectAt(pages.Word("Dentist"), 2500, 1300);
}

TEST_F(PrinterTest, StaysAtTheEndOfTheLastOfSeveralLines)
{
  Choose();
  PrintAt(1100, 1000, "");
  const double height = Printer::CurrentY() - 1000;
  Printer::SetCurrentY(1000);
  Printer::Print("one\r\ntwo", Printer::LineEnd::kStay);
  EXPECT_NEAR(Printer::CurrentY(), 1000 + height, 0.01);
  EXPECT_NEAR(Printer::CurrentX(), Printer::TextWidth("two"), 0.01);
}

// The stops stand where the captions of the lists, all with their own number of tabs, meet.
TEST_F(PrinterTest, LinesUpWhatFollowsTheCaptionsOfAList)
{
  Choose();
  const QStringList lines = {"Home phone:   \t1a", "Mobile:\t\t1b",    "Business phone:\t1c", "Email:\t\t1d",
                             "Address:\t\t1e",     "Birthday:\t\t1f",  "Anniversary:\t\t1g",  "Notes:\t\t1h",
                             "\t\t\t1i",           "Birthdays:\t\t1j", "Anniversaries:\t1k"};
  for (const QString& line : lines) {
    Printer::SetCurrentX(1100);
    Printer::Print(line);
  }
  const PrintedPages pages = Printed();
  const double fourthStop = pages.Word("1a").x;
  EXPECT_NEAR(fourthStop, 4 * 8 * 0.4415 * 240, 10);
  for (char letter = 'a'; letter <= 'k'; ++letter) {
    EXPECT_NEAR(pages.Word(QStringLiteral("1") + letter).x, fourthStop, kNear) << letter;
  }
}

TEST_F(PrinterTest, PrintsAnAddressOfSeveralLinesInOneGo)
{
  Choose();
  PrintAt(1100, 1000, "Address:\t\tStreet\r\n\t\t\tFlat\r\n\t\t\t\tCity\r\n\t\t\t\tCountry");
  const double below = Printer::CurrentY();
  EXPECT_EQ(Printer::CurrentX(), 0);
  const PrintedPages pages = Printed();
  const double stop = pages.Word("Street").x / 4;
  const double height = (below - 1000) / 4;
  ExpectAt(pages.Word("Address:"), 1100, 1000);
  ExpectAt(pages.Word("Flat"), 3 * stop, 1000 + height);
  ExpectAt(pages.Word("City"), 4 * stop, 1000 + 2 * height);
  ExpectAt(pages.Word("Country"), 4 * stop, 1000 + 3 * height);
}

TEST_F(PrinterTest, HoldsThePlaceItIsGivenExactly)
{
  Choose();
  Printer::SetCurrentX(Printer::ScaleLeft() + 1100);
  Printer::SetCurrentY(Printer::ScaleTop() + 1000);
  EXPECT_EQ(Printer::CurrentX(), 1100);
  EXPECT_EQ(Printer::CurrentY(), 1000);
  Printer::Print("x");
  Printer::SetCurrentY(1000);
  EXPECT_EQ(Printer::CurrentY(), 1000);
}

TEST_F(PrinterTest, KnowsTheSizeOfATextBeforeItIsPrinted)
{
  Choose();
  EXPECT_NEAR(Printer::TextHeight("one"), 276, 1);
  EXPECT_NEAR(Printer::TextHeight("one\r\ntwo\r\nthree"), 3 * 276, 3);
  EXPECT_NEAR(Printer::TextWidth("one\r\nmmmm\r\nthree"), Printer::TextWidth("mmmm"), 0.01);
  Printer::Print("mmmmmmmm");
  const double width = Printer::TextWidth("mmmmmmmm");
  EXPECT_NEAR(Printed().Word("mmmmmmmm").right, width, kNear);
}

TEST_F(PrinterTest, PrintsInTheFontSizeAndWeightOfTheMoment)
{
  Choose();
  Printer::SetFontSize(14);
  Printer::SetFontBold(true);
  Printer::Print("Anna");
  Printer::SetFontSize(12);
  Printer::SetFontBold(false);
  Printer::Print("Anna");
  EXPECT_EQ(Printer::FontSize(), 12);
  EXPECT_FALSE(Printer::FontBold());
  EXPECT_EQ(Printer::FontName(), "arial");
  const PrintedPages pages = Printed();
  ASSERT_EQ(pages.Words().size(), 2U);
  EXPECT_NEAR(pages.Words()[1].y, 322, kNear) << "14 points are 322 twips of line";
  EXPECT_GT(pages.Words()[0].right, pages.Words()[1].right * 14 / 12);
  QProcess fonts;
  fonts.start("pdffonts", {path});
  ASSERT_TRUE(fonts.waitForFinished());
  const QString names = fonts.readAllStandardOutput();
  EXPECT_TRUE(names.contains("LiberationSans-Bold") || names.contains("Arial-Bold")) << names.toStdString();
  EXPECT_TRUE(names.contains("LiberationSans ") || names.contains("ArialMT")) << names.toStdString();
}

TEST_F(PrinterTest, PrintsTextsInAnyScript)
{
  const QStringList words = {QStringLiteral("Zoë"), QStringLiteral("Ελλάδα"), QStringLiteral("Юлия"),
                             QStringLiteral("հայերեն"), QStringLiteral("ქართული")};
  Choose();
  for (const QString& word : words) {
    Printer::Print(word);
  }
  Printer::Print(QStringLiteral("עברית العربية 中文 हिन्दी 😀 e\u0301 \u202e"));
  Printer::Print(QString("half a pair: ") + QChar(0xd83d));
  Printer::Print("last");
  const PrintedPages pages = Printed();
  for (const QString& word : words) {
    EXPECT_NEAR(pages.Word(word).x, 0, kNear) << word.toStdString();
  }
  ExpectAt(pages.Word("last"), 0, 7 * 276);
}

TEST_F(PrinterTest, DrawsLinesAndTextInItsColour)
{
  Choose();
  Printer::Line(650, 2450, 11150, 2450);
  EXPECT_EQ(Printer::CurrentX(), 11150);
  EXPECT_EQ(Printer::CurrentY(), 2450);
  Printer::Line(650, 2450, 650, 10250);
  Printer::SetForeColor(Qt::red);
  Printer::Line(2000, 5000, 3000, 5000);
  Printer::SetFontSize(40);
  PrintAt(4000, 5000, QStringLiteral("█"));
  Printer::EndDoc();
  const QImage picture = PrintedPages(path).Picture(1, 288);
  EXPECT_TRUE(IsInk(picture, 655, 2450));
  EXPECT_TRUE(IsInk(picture, 6000, 2450));
  EXPECT_TRUE(IsInk(picture, 11145, 2450));
  EXPECT_TRUE(IsInk(picture, 650, 6000));
  EXPECT_TRUE(IsInk(picture, 650, 10245));
  EXPECT_FALSE(IsInk(picture, 11190, 2450));
  EXPECT_FALSE(IsInk(picture, 650, 10290));
  EXPECT_FALSE(IsInk(picture, 6000, 2480));
  EXPECT_FALSE(IsInk(picture, 6000, 2420));
  EXPECT_TRUE(IsInk(picture, 2500, 5000, qRgb(255, 0, 0)));
  EXPECT_TRUE(IsInk(picture, 4200, 5400, qRgb(255, 0, 0)));
}

TEST_F(PrinterTest, CutsOffWhatRunsOverTheEdgeOfThePaper)
{
  Choose();
  Printer::SetCurrentX(10'000);
  Printer::Print("start" + QString(500, 'W'));
  Printer::Print("below");
  const PrintedPages pages = Printed();
  EXPECT_EQ(pages.Count(), 1);
  ExpectAt(pages.Word("below"), 0, 276);
}

TEST_F(PrinterTest, KnowsThePrintableAreaOfItsPaper)
{
  const struct
  {
    QPageSize::PageSizeId paper;
    double width;
    double height;
  } kCases[] = {{QPageSize::A4, 11900, 16840}, {QPageSize::Letter, 12240, 15840}, {QPageSize::A5, 8400, 11900}};
  for (const auto& [paper, width, height] : kCases) {
    Choose(paper);
    EXPECT_EQ(Printer::ScaleLeft(), 0);
    EXPECT_EQ(Printer::ScaleTop(), 0);
    EXPECT_EQ(Printer::ScaleWidth(), width - 720);
    EXPECT_EQ(Printer::ScaleHeight(), height - 720);
    Printer::Print("x");
    const PrintedPages pages = Printed();
    EXPECT_EQ(pages.Size(1).width(), width);
    EXPECT_EQ(pages.Size(1).height(), height);
  }
}

TEST_F(PrinterTest, PrintsOneDocumentAcrossAndTheNextUpright)
{
  Choose(QPageSize::Letter);
  EXPECT_EQ(Printer::Orientation(), Printer::PageOrientation::kPortrait);
  Printer::SetOrientation(Printer::PageOrientation::kLandscape);
  EXPECT_EQ(Printer::Orientation(), Printer::PageOrientation::kLandscape);
  EXPECT_NEAR(Printer::ScaleWidth(), 15840 - 720, 1);
  EXPECT_NEAR(Printer::ScaleHeight(), 12240 - 720, 1);
  PrintAt(13100, 2100, "Saturday");
  PrintAt(650, 10250, "bottom");
  Printer::NewPage();
  Printer::Print("list");
  const PrintedPages across = Printed();
  EXPECT_EQ(across.Size(1), QSizeF(15840, 12240));
  EXPECT_EQ(across.Size(2), QSizeF(15840, 12240));
  ExpectAt(across.Word("Saturday"), 13100, 2100);
  ExpectAt(across.Word("bottom"), 650, 10250);

  Choose(QPageSize::Letter);
  PrintAt(1100, 1000, "upright");
  EXPECT_EQ(Printed().Size(1), QSizeF(12240, 15840));
}

TEST_F(PrinterTest, TurnsNoPageOfADocumentThatIsBegun)
{
  Choose();
  Printer::Print("x");
  EXPECT_EQ(ErrorOf([] { Printer::SetOrientation(Printer::PageOrientation::kLandscape); }), 396);
  EXPECT_EQ(ErrorOf([] { Printer::Fit(20'000, 1000); }), 396);
  Printer::Print("y");
  const PrintedPages pages = Printed();
  EXPECT_EQ(pages.Lines(1), QStringList({"x", "y"}));
  EXPECT_LT(pages.Size(1).width(), pages.Size(1).height());
}
