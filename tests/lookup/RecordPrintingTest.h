// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/Label.h"
#include "lookup/frmQuillmark.h"
#include "people/modImages.h"
#include "platform/Printer.h"
#include "support/PageTest.h"
#include "support/PrintDialogScript.h"
#include "support/PrintedPages.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <array>

// The look-up page prints, on 5 November 2026, to a PDF file of the test's own.
class RecordPrintingTest : public PageTest<frmQuillmark>
{
protected:
  // Twips: how near a printed place is, the captions' column and that of the second line of a
  // street, and the heights of lines.
  static constexpr double kNear = 3;
  static constexpr double kLeft = 1100;
  static constexpr double kTop = 1000;
  static constexpr double kColumn = 3390.7;
  static constexpr double kStreetColumn = 2543;
  static constexpr double kHeadingHeight = 322;
  static constexpr double kLineHeight = 276;

  static constexpr std::array<const char*, 8> kBoxes = {"chkInfo_0", "chkInfo_3",     "chkInfo_4",     "chkInfo_1",
                                                        "chkInfo_2", "chkPersonal_0", "chkPersonal_1", "chkNotes"};

  RecordPrintingTest() : PageTest(QStringList()) { Clock::StopOn(QDate(2026, 11, 5)); }

  ~RecordPrintingTest() override { Printer::EndDoc(); }

  // --- The database. Returns the key.

  int AddPerson(const QString& first, const QString& last, QVariantMap columns = {}) const
  {
    columns["FirstName"] = first;
    columns["LastName"] = last;
    const QStringList names = columns.keys();
    folder.Execute(QStringLiteral("INSERT INTO People (%1) VALUES (%2)")
                       .arg(names.join(','), QStringList(names.size(), "?").join(',')),
                   columns.values());
    return folder.Value("SELECT max(PeopleID) FROM People").toInt();
  }

  // Somebody of whom everything is known.
  int AddAnna() const
  {
    return AddPerson("Anna", "Wood",
                     {{"Phone", "555-1000"},
                      {"Mobile", "555-2000"},
                      {"Business", "555-3000"},
                      {"Email", "anna@example.com"},
                      {"Street", "1High Street"},
                      {"SecondAddress", "Flat Two"},
                      {"City", "Leeds"},
                      {"Province", "Yorkshire"},
                      {"Country", "England"},
                      {"Postal", "LS1 1AA"},
                      {"BirthMonth", "March"},
                      {"BirthDate", "5"},
                      {"BirthYear", "1962"},
                      {"AnnMonth", "June"},
                      {"AnnDate", "12"},
                      {"AnnYear", "1990"},
                      {"Notes", "Likes tea"}});
  }

  // --- The page.

  static ListBox& Names() { return dynamic_cast<ListBox&>(Control("lstNames")); }
  static std::string Name() { return Caption("lblName"); }

  static void ClickName(int line) { Hands::ClickLine(Names(), line); }

  // Opens the page and its panel for printing, with everything ticked.
  void OpenWithAll()
  {
    Open();
    Click("lblAll_0");
    Click("lblOptions_1");
  }

  // --- Printing.

  // Presses "Print" and has the file printed.
  PrintedPages Print(QPageSize::PageSizeId paper = QPageSize::A4)
  {
    QFile::remove(path);
    dialogs.ExpectPdf(path, paper);
    boxes.Expect("Printing completed");
    Click("lblOptions_10");
    return PrintedPages(path);
  }
  PrintedPages PrintOne(int line = 0)
  {
    ClickName(line);
    Tick("optPrint_0");
    return Print();
  }
  PrintedPages PrintAll(QPageSize::PageSizeId paper = QPageSize::A4)
  {
    Tick("optPrint_1");
    return Print(paper);
  }

  // All lines, with a bar between them, and two bars between pages.
  static std::string Lines(const PrintedPages& pages)
  {
    QStringList all;
    for (int page = 1; page <= pages.Count(); ++page) {
      all.append(pages.Lines(page).join('|'));
    }
    return all.join("||").toStdString();
  }
  static void ExpectAt(const PrintedPages& pages, const QString& text, double x, double y, int page = 1)
  {
    const PrintedWord word = pages.Word(text);
    EXPECT_EQ(word.page, page) << text.toStdString();
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
  // Nothing printed stands outside the printable area, or above or below the margins' lines.
  static void ExpectWithinMargins(const PrintedPages& pages)
  {
    constexpr double kRims = 2 * PrintedPages::kMargin;
    for (const PrintedWord& word : pages.Words()) {
      const QSizeF paper = pages.Size(word.page);
      EXPECT_GE(word.x, kLeft - kNear) << word.text.toStdString();
      EXPECT_GE(word.y, kTop - kNear) << word.text.toStdString();
      EXPECT_LE(word.right, paper.width() - kRims + kNear) << word.text.toStdString();
      EXPECT_LE(word.y, paper.height() - kRims - 1000 + kNear) << word.text.toStdString();
    }
  }

  QTemporaryDir output;
  QString path = output.filePath("list.pdf");
  PrintDialogScript dialogs;
};
