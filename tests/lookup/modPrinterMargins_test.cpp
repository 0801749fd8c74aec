// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/modPrinterMargins.h"

#include "platform/PrintDialog.h"
#include "platform/Printer.h"
#include "support/PrintDialogScript.h"
#include "support/PrintedPages.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <cmath>

using modPrinterMargins::ListTop;
using modPrinterMargins::PrinterMargins;

namespace {

constexpr double kNear = 2;

class PrinterMarginsTest : public testing::TestWithParam<QPageSize::PageSizeId>
{
protected:
  PrinterMarginsTest()
  {
    PrintDialogScript dialogs;
    dialogs.ExpectPdf(path, GetParam());
    ShowPrinter();
    ListTop = 0;
  }
  ~PrinterMarginsTest() override { Printer::EndDoc(); }

  QTemporaryDir folder;
  QString path = folder.filePath("list.pdf");
};

}

TEST_P(PrinterMarginsTest, StartsAFreshDocumentAtBothMargins)
{
  PrinterMargins();
  EXPECT_EQ(Printer::CurrentX(), 1100);
  EXPECT_EQ(Printer::CurrentY(), 1000);
  EXPECT_EQ(ListTop, 0);
}

TEST_P(PrinterMarginsTest, StartsALaterLineAtTheLeftMarginAlone)
{
  PrinterMargins();
  Printer::Print("first");
  const double y = Printer::CurrentY();
  PrinterMargins();
  EXPECT_EQ(Printer::CurrentX(), 1100);
  EXPECT_EQ(Printer::CurrentY(), y);
  PrinterMargins();
  EXPECT_EQ(Printer::CurrentY(), y) << "running it twice changes nothing";
  EXPECT_EQ(ListTop, 0);
}

TEST_P(PrinterMarginsTest, BreaksThePageWhereTheBottomMarginIsPassedAndNotWhereItIsReached)
{
  const double last = Printer::ScaleHeight() - 1000;
  Printer::SetCurrentY(last);
  PrinterMargins();
  EXPECT_EQ(Printer::CurrentY(), last);
  EXPECT_EQ(ListTop, 0);
  Printer::Print("low");

  Printer::SetCurrentY(std::nextafter(last, last + 1));
  Printer::SetCurrentX(5000);
  PrinterMargins();
  EXPECT_EQ(Printer::CurrentX(), 1100);
  EXPECT_EQ(Printer::CurrentY(), 1000);
  EXPECT_EQ(ListTop, 1000);
  Printer::Print("high");
  Printer::EndDoc();
  const PrintedPages pages(path);
  ASSERT_EQ(pages.Count(), 2);
  EXPECT_NEAR(pages.Word("low").y, last, kNear);
  EXPECT_EQ(pages.Word("high").page, 2);
  EXPECT_NEAR(pages.Word("high").x, 1100, kNear);
  EXPECT_NEAR(pages.Word("high").y, 1000, kNear);
}

TEST_P(PrinterMarginsTest, FillsEveryPageOfALongListBetweenItsMargins)
{
  const double height = Printer::TextHeight("x");
  const double bottom = Printer::ScaleHeight() - 1000;
  const int perPage = static_cast<int>(std::floor((bottom - 1000) / height)) + 1;
  for (int line = 0; line < 3 * perPage + 1; ++line) {
    PrinterMargins();
    Printer::Print(QStringLiteral("line%1").arg(line));
  }
  Printer::EndDoc();
  const PrintedPages pages(path);
  ASSERT_EQ(pages.Count(), 4);
  for (const PrintedWord& word : pages.Words()) {
    EXPECT_NEAR(word.x, 1100, kNear);
    EXPECT_GE(word.y, 1000 - kNear);
    EXPECT_LE(word.y, bottom + kNear);
  }
  for (int page = 1; page <= 3; ++page) {
    EXPECT_EQ(pages.Lines(page).size(), perPage);
    EXPECT_EQ(pages.Lines(page).constFirst(), QStringLiteral("line%1").arg((page - 1) * perPage));
  }
  EXPECT_EQ(pages.Lines(4).size(), 1);
}

TEST_P(PrinterMarginsTest, BreaksPagesOfADocumentThatIsMadeSmaller)
{
  Printer::Fit(2 * Printer::ScaleWidth(), 1000);
  const double bottom = Printer::ScaleHeight() - 1000;
  Printer::SetCurrentY(bottom);
  PrinterMargins();
  EXPECT_EQ(Printer::CurrentY(), bottom);
  Printer::Print("low");
  PrinterMargins();
  EXPECT_EQ(Printer::CurrentY(), 1000);
  Printer::Print("high");
  Printer::EndDoc();
  const PrintedPages pages(path);
  EXPECT_NEAR(pages.Word("low").x, 550, kNear);
  EXPECT_NEAR(pages.Word("low").y, bottom / 2, kNear);
  EXPECT_NEAR(pages.Word("high").y, 500, kNear);
}

INSTANTIATE_TEST_SUITE_P(Papers, PrinterMarginsTest, testing::Values(QPageSize::A4, QPageSize::Letter),
                         [](const auto& paper) { return paper.param == QPageSize::A4 ? "A4" : "Letter"; });
