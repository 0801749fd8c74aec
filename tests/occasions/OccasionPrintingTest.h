// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "OccasionsTest.h"

#include "platform/Printer.h"
#include "support/PrintDialogScript.h"
#include "support/PrintedPages.h"

#include <QFile>
#include <QTemporaryDir>

// The page of occasions prints to a PDF file of the test's own.
class OccasionPrintingTest : public OccasionsPageTest
{
protected:
  // Twips: how near a printed place is, the labels, the columns of a section's first
  // line and of all others, line heights.
  static constexpr double kNear = 3;
  static constexpr double kLeft = 1100;
  static constexpr double kTop = 1000;
  static constexpr double kColumn = 3390.7;
  static constexpr double kLaterColumn = 4239.4;
  static constexpr double kHeadingHeight = 322;
  static constexpr double kLineHeight = 276;

  static inline const QString kSelectedMonth = QStringLiteral("optPrint_0");
  static inline const QString kAllMonths = QStringLiteral("optPrint_1");

  ~OccasionPrintingTest() override { Printer::EndDoc(); }

  // Opens the page with its panel for printing, on that month.
  void OpenOn(int month)
  {
    Open();
    ClickMonth(month);
    Click("lblOptions_4");
  }

  // Presses "Print" and has the file printed.
  PrintedPages Print(QPageSize::PageSizeId paper = QPageSize::A4)
  {
    QFile::remove(path);
    dialogs.ExpectPdf(path, paper);
    boxes.Expect("Printing completed");
    Click("lblOptions_2");
    return PrintedPages(path);
  }
  PrintedPages PrintWith(const QString& option, QPageSize::PageSizeId paper = QPageSize::A4)
  {
    Tick(option);
    return Print(paper);
  }

  // All lines, with a bar between them, whatever page they are on.
  static std::string AllLines(const PrintedPages& pages)
  {
    QStringList all;
    for (int page = 1; page <= pages.Count(); ++page) {
      all += pages.Lines(page);
    }
    return all.join('|').toStdString();
  }
  static void ExpectAt(const PrintedPages& pages, const QString& text, double x, double y)
  {
    const PrintedWord word = pages.Word(text);
    EXPECT_NEAR(word.x, x, kNear) << text.toStdString();
    EXPECT_NEAR(word.y, y, kNear) << text.toStdString();
  }
  static double WidthOf(const QString& text, double size, bool bold)
  {
    Printer::SetFontSize(size);
    Printer::SetFontBold(bold);
    const double width = Printer::TextWidth(text);
    Printer::SetFontSize(12);
    Printer::SetFontBold(false);
    return width;
  }
  static void ExpectFont(const PrintedPages& pages, const QString& text, double size, bool bold)
  {
    const PrintedWord word = pages.Word(text);
    EXPECT_NEAR(word.right - word.x, WidthOf(text, size, bold), kNear) << text.toStdString();
  }

  QTemporaryDir output;
  QString path = output.filePath("list.pdf");
  PrintDialogScript dialogs;
};
