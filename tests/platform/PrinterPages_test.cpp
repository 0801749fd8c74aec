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
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>

namespace {

constexpr double kNear = 2;

class PrinterPagesTest : public testing::Test
{
protected:
  ~PrinterPagesTest() override { Printer::EndDoc(); }

  void Choose(QPageSize::PageSizeId paper = QPageSize::A4, const PrintDialogScript::Act& act = {})
  {
    QFile::remove(path);
    PrintDialogScript dialogs;
    dialogs.ExpectPdf(path, paper, act);
    ShowPrinter();
  }

  static void PrintAt(double x, double y, const QString& text)
  {
    Printer::SetCurrentX(x);
    Printer::SetCurrentY(y);
    Printer::Print(text);
  }

  [[nodiscard]] PrintedPages Printed(double margin = PrintedPages::kMargin) const
  {
    Printer::EndDoc();
    return PrintedPages(path, margin);
  }

  // Every property has its first value, and nothing is open.
  static void ExpectFreshStart()
  {
    EXPECT_EQ(Printer::CurrentX(), 0);
    EXPECT_EQ(Printer::CurrentY(), 0);
    EXPECT_EQ(Printer::FontName(), "arial");
    EXPECT_EQ(Printer::FontSize(), 12);
    EXPECT_FALSE(Printer::FontBold());
    EXPECT_EQ(Printer::ForeColor(), QColor(Qt::black));
    EXPECT_EQ(Printer::Orientation(), Printer::PageOrientation::kPortrait);
  }

  QTemporaryDir folder;
  QString path = folder.filePath("list.pdf");
};

// The area that a calendar across the page needs.
constexpr double kWide = 14'650;
constexpr double kHigh = 10'250;

}

TEST_F(PrinterPagesTest, OpensNothingBeforeSomethingIsPrinted)
{
  Choose();
  Printer::SetFontSize(40);
  Printer::SetCurrentY(1000);
  Printer::SetOrientation(Printer::PageOrientation::kLandscape);
  static_cast<void>(Printer::ScaleHeight());
  static_cast<void>(Printer::TextWidth("x"));
  EXPECT_FALSE(QFile::exists(path));
  Printer::EndDoc();
  EXPECT_FALSE(QFile::exists(path));
  ExpectFreshStart();
}

TEST_F(PrinterPagesTest, BeginsWithTheFirstLineEvenAnEmptyOne)
{
  Choose();
  Printer::Print();
  EXPECT_TRUE(QFile::exists(path));
  EXPECT_EQ(Printed().Count(), 1);
}

TEST_F(PrinterPagesTest, GoesOnAtTheTopOfANewPage)
{
  Choose();
  PrintAt(1100, 1000, "one");
  Printer::NewPage();
  EXPECT_EQ(Printer::CurrentX(), 0);
  EXPECT_EQ(Printer::CurrentY(), 0);
  PrintAt(1100, 1000, "two");
  Printer::NewPage();
  Printer::Line(0, 0, 100, 100);
  const PrintedPages pages = Printed();
  EXPECT_EQ(pages.Count(), 3);
  EXPECT_EQ(pages.Lines(1), QStringList({"one"}));
  EXPECT_EQ(pages.Lines(2), QStringList({"two"}));
  EXPECT_NEAR(pages.Word("two").x, 1100, kNear);
  EXPECT_NEAR(pages.Word("two").y, 1000, kNear);
}

TEST_F(PrinterPagesTest, KeepsFontAndColourOverAPageBreak)
{
  Choose();
  Printer::SetFontSize(14);
  Printer::SetFontBold(true);
  Printer::SetForeColor(Qt::blue);
  Printer::Print("one");
  Printer::NewPage();
  Printer::Print("one");
  Printer::EndDoc();
  const PrintedPages pages(path);
  ASSERT_EQ(pages.Words().size(), 2U);
  EXPECT_NEAR(pages.Words()[0].right, pages.Words()[1].right, 0.1);
  EXPECT_EQ(pages.Picture(1), pages.Picture(2));
}

TEST_F(PrinterPagesTest, LeavesNoEmptyPageAtTheEnd)
{
  Choose();
  Printer::Print("one");
  Printer::NewPage();
  EXPECT_EQ(Printed().Count(), 1);
}

TEST_F(PrinterPagesTest, LeavesPagesEmptyThatAreSkipped)
{
  Choose();
  Printer::NewPage();
  Printer::NewPage();
  Printer::Print("three");
  const PrintedPages pages = Printed();
  EXPECT_EQ(pages.Count(), 3);
  EXPECT_EQ(pages.Word("three").page, 3);
}

TEST_F(PrinterPagesTest, EndsWithEveryPropertyAtItsFirstValue)
{
  Choose();
  Printer::SetFontName("courier");
  Printer::SetFontSize(40);
  Printer::SetFontBold(true);
  Printer::SetForeColor(Qt::red);
  Printer::SetOrientation(Printer::PageOrientation::kLandscape);
  Printer::Fit(40'000, 40'000);
  PrintAt(1100, 1000, "x");
  Printer::EndDoc();
  ExpectFreshStart();
  Choose();
  EXPECT_NEAR(Printer::ScaleWidth(), 11'900 - 720, 0.01);
  PrintAt(1100, 1000, "mmmm");
  const PrintedWord word = Printed().Word("mmmm");
  EXPECT_NEAR(word.right - word.x, 4 * 0.833 * 240, kNear);
}

TEST_F(PrinterPagesTest, PrintsAsAskedForWhereThereIsRoom)
{
  for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
    Choose(paper);
    Printer::SetOrientation(Printer::PageOrientation::kLandscape);
    const double width = Printer::ScaleWidth();
    Printer::Fit(kWide, kHigh);
    EXPECT_EQ(Printer::ScaleWidth(), width);
    PrintAt(kWide - 1000, kHigh - 300, "corner");
    const PrintedPages pages = Printed();
    EXPECT_NEAR(pages.Word("corner").x, kWide - 1000, kNear);
    EXPECT_NEAR(pages.Word("corner").y, kHigh - 300, kNear);
  }
}

TEST_F(PrinterPagesTest, MakesAllSmallerByOneFactorWhereThereIsNot)
{
  const struct
  {
    QPageSize::PageSizeId paper;
    double printableWidth;
    double printableHeight;
  } kCases[] = {{QPageSize::A5, 11'900 - 720, 8400 - 720}, {QPageSize::A6, 8400 - 720, 5940 - 720}};
  for (const auto& [paper, printableWidth, printableHeight] : kCases) {
    Choose(paper);
    Printer::SetOrientation(Printer::PageOrientation::kLandscape);
    Printer::Fit(kWide, kHigh);
    const double factor = std::min(printableWidth / kWide, printableHeight / kHigh);
    EXPECT_NEAR(Printer::ScaleWidth(), printableWidth / factor, 0.01);
    EXPECT_NEAR(Printer::ScaleHeight(), printableHeight / factor, 0.01);
    PrintAt(1000, 2000, "mmmm");
    const double lineHeight = Printer::CurrentY() - 2000;
    Printer::Print("below");
    PrintAt(kWide - 1000, kHigh - 300, "corner");
    Printer::Line(kWide, 0, kWide, kHigh);
    const PrintedPages pages = Printed();
    const PrintedWord word = pages.Word("mmmm");
    EXPECT_NEAR(word.x, 1000 * factor, kNear);
    EXPECT_NEAR(word.y, 2000 * factor, kNear);
    EXPECT_NEAR(word.right - word.x, 4 * 0.833 * 240 * factor, kNear);
    EXPECT_NEAR(lineHeight, 276, 1);
    EXPECT_NEAR(pages.Word("below").y, (2000 + lineHeight) * factor, kNear);
    EXPECT_NEAR(pages.Word("corner").x, (kWide - 1000) * factor, kNear);
    EXPECT_NEAR(pages.Word("corner").y, (kHigh - 300) * factor, kNear);
    const QImage picture = pages.Picture(1, 720);
    const QPointF onLine(kWide * factor + PrintedPages::kMargin, kHigh * factor / 2);
    EXPECT_EQ(picture.pixel((onLine / 2).toPoint()), qRgb(0, 0, 0));
  }
}

TEST_F(PrinterPagesTest, FitsIntoTheMarginsThatTheUserWants)
{
  constexpr double kMillimetre = 1440 / 25.4;
  constexpr double kMargin = 40 * kMillimetre;
  Choose(QPageSize::A4, [](QPrintDialog& dialog) { PrintDialogScript::ChooseMargins(dialog, 40); });
  const double printable = 11'900 - 2 * kMargin;
  EXPECT_NEAR(Printer::ScaleWidth(), printable, 1);
  Printer::Fit(11'150, 10'250);
  EXPECT_NEAR(Printer::ScaleWidth(), 11'150, 0.01);
  PrintAt(10'000, 0, "x");
  EXPECT_NEAR(Printed(kMargin).Word("x").x, 10'000 * printable / 11'150, kNear);
}

TEST_F(PrinterPagesTest, PrintsTheSamePlacesAtAnyResolution)
{
  for (const int resolution : {72, 150, 300, 600, 1200, 2400}) {
    auto printer = std::make_unique<QPrinter>();
    printer->setPageMargins(QMarginsF(18, 18, 18, 18), QPageLayout::Point);
    printer->setOutputFileName(path);
    printer->setResolution(resolution);
    Printer::Use(std::move(printer));
    Printer::SetCurrentX(1100);
    const QString sentence = "The quick brown fox jumps over the lazy dog";
    Printer::Print("Address:\t\t" + sentence + "\r\n\t\t\t\tCountry");
    const double width = Printer::TextWidth(sentence);
    Printer::SetFontSize(10);
    PrintAt(5000, 7777, "ten");
    const PrintedPages pages = Printed();
    const double stop = 4 * 8 * 0.4415 * 240;
    EXPECT_NEAR(pages.Word("Address:").x, 1100, kNear) << resolution;
    EXPECT_NEAR(pages.Word("The").x, stop, kNear) << resolution;
    EXPECT_NEAR(pages.Word("dog").right, stop + width, kNear) << resolution;
    EXPECT_NEAR(pages.Word("Country").x, stop, kNear) << resolution;
    EXPECT_NEAR(pages.Word("ten").y, 7777, kNear) << resolution;
  }
}

TEST_F(PrinterPagesTest, PrintsOnlyThePagesThatWereChosen)
{
  Choose(QPageSize::A4, [](QPrintDialog& dialog) { PrintDialogScript::ChoosePages(dialog, 2, 3); });
  for (const char* text : {"one", "two", "three", "four", "five"}) {
    PrintAt(1100, 1000, text);
    Printer::Line(0, 0, 5000, 0);
    Printer::NewPage();
  }
  const PrintedPages pages = Printed();
  ASSERT_EQ(pages.Count(), 2);
  EXPECT_EQ(pages.Lines(1), QStringList({"two"}));
  EXPECT_EQ(pages.Lines(2), QStringList({"three"}));
}

TEST_F(PrinterPagesTest, PrintsNothingIfNoChosenPageComes)
{
  Choose(QPageSize::A4, [](QPrintDialog& dialog) { PrintDialogScript::ChoosePages(dialog, 7, 9); });
  Printer::Print("one");
  Printer::EndDoc();
  EXPECT_FALSE(QFile::exists(path));
}

TEST_F(PrinterPagesTest, FailsWithoutAPrinterAndWithoutAFile)
{
  for (int time = 0; time < 2; ++time) {
    Printer::SetFontSize(14);
    EXPECT_EQ(ErrorOf([] { Printer::Print("lost"); }), 482);
    ExpectFreshStart();
    EXPECT_EQ(ErrorOf([] { Printer::EndDoc(); }), 0);
  }
  EXPECT_EQ(ErrorOf([] { Printer::Line(0, 0, 1, 1); }), 482);
  EXPECT_EQ(ErrorOf([] { Printer::NewPage(); }), 482);
}

TEST_F(PrinterPagesTest, PrintsNoSecondDocumentOverTheFirst)
{
  Choose();
  Printer::Print("first");
  Printer::EndDoc();
  EXPECT_EQ(ErrorOf([] { Printer::Print("second"); }), 482);
  EXPECT_EQ(PrintedPages(path).Lines(1), QStringList({"first"}));
}

TEST_F(PrinterPagesTest, FailsOnAFileThatCannotBeWrittenAndPrintsTheNextOne)
{
  const QString gone = folder.filePath("gone");
  ASSERT_TRUE(QDir().mkdir(gone));
  {
    PrintDialogScript dialogs;
    dialogs.ExpectPdf(gone + "/list.pdf");
    ShowPrinter();
  }
  ASSERT_TRUE(QDir().rmdir(gone));
  Printer::SetFontBold(true);
  EXPECT_EQ(ErrorOf([] { Printer::Print("lost"); }), 482);
  ExpectFreshStart();
  EXPECT_EQ(ErrorOf([] { Printer::EndDoc(); }), 0);

  Choose();
  PrintAt(1100, 1000, "found");
  EXPECT_EQ(Printed().Lines(1), QStringList({"found"}));
}

TEST_F(PrinterPagesTest, FailsOnADiskThatFillsUp)
{
  Choose();
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto previous = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{2000, before.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  Printer::Print("too much");
  const int error = ErrorOf([] { Printer::EndDoc(); });
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
  std::signal(SIGXFSZ, previous);
  EXPECT_EQ(error, 482);
  ExpectFreshStart();

  Choose();
  Printer::Print("room");
  EXPECT_EQ(Printed().Lines(1), QStringList({"room"}));
}

TEST_F(PrinterPagesTest, ComesOutWithWhatWasPrintedBeforeAFailure)
{
  Choose();
  EXPECT_EQ(ErrorOf([] {
              Printer::Print("one");
              Printer::NewPage();
              Printer::Print("two");
              RaiseError(ErrorNumber::kTypeMismatch);
            }),
            ErrorNumber::kTypeMismatch);
  const PrintedPages pages = Printed();
  EXPECT_EQ(pages.Count(), 2);
  EXPECT_EQ(pages.Lines(2), QStringList({"two"}));
}
