// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/CalendarPrinting.h"

#include "lookup/modPrinterMargins.h"
#include "platform/PrintDialog.h"
#include "platform/Printer.h"
#include "store/DBEngine.h"
#include "support/PrintDialogScript.h"
#include "support/PrintedPages.h"
#include "support/ProgramFolder.h"

#include <QFile>
#include <QLocale>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

using CalendarPrinting::Format;

namespace {

constexpr double kNear = 3;
constexpr int kRowHeight = 1300;
constexpr std::array kWeekdays = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

// Where a format has what, in twips.
struct Measures
{
  int columnWidth;
  int right;
  std::array<int, 7> weekdays;
  int listPage;
  int listHeader;
  std::array<int, 4> columns;
  int firstListLine;
};

constexpr Measures kLandscape = {
    2000, 14650, {1200, 3300, 5150, 7000, 9200, 11300, 13100}, 2, 1000, {1100, 2500, 4500, 6000}, 1300};
constexpr Measures kPortrait = {
    1500, 11150, {970, 2450, 3870, 5280, 6850, 8550, 9850}, 1, 10500, {700, 1400, 3400, 4400}, 10800};

using FormatOnPaper = std::tuple<Format, QPageSize::PageSizeId>;

class CalendarPrintingTest : public testing::TestWithParam<FormatOnPaper>
{
protected:
  ~CalendarPrintingTest() override { Printer::EndDoc(); }

  static Format TheFormat() { return std::get<0>(GetParam()); }
  static bool IsPortrait() { return TheFormat() == Format::kPortrait; }
  static const Measures& Page() { return IsPortrait() ? kPortrait : kLandscape; }
  static int Left(int column) { return 650 + column * Page().columnWidth; }
  static int Top(int row) { return 2450 + row * kRowHeight; }

  // The month as the calendar page has it, without events.
  static PrintedMonth Month(int year, int number)
  {
    const QDate first(year, number, 1);
    PrintedMonth month;
    month.name = QLocale::c().monthName(number);
    month.year = year;
    month.firstWeekday = first.dayOfWeek() % 7 + 1;
    month.days = first.daysInMonth();
    for (int cell = 0; cell < 37; ++cell) {
      const QDate date = first.addDays(cell + 1 - month.firstWeekday);
      month.cells.push_back({date, QString::number(date.day()), false, {}});
    }
    month.detailsFont = QFont("arial", 10);
    month.detailsWidth = 3135;
    return month;
  }
  static PrintedMonth::Cell& Cell(PrintedMonth& month, int day)
  {
    PrintedMonth::Cell& cell = month.cells.at(static_cast<std::size_t>(day + month.firstWeekday - 2));
    cell.shown = true;
    return cell;
  }

  void Store(const char* date, const QString& event, const QVariant& time = {}, const QVariant& notes = {},
             const char* month = "August") const
  {
    folder.Execute("INSERT INTO Reminders (Month, Date, Event, Time, Notes) VALUES (?,?,?,?,?)",
                   {month, date, event, time, notes});
  }

  void Choose() const
  {
    QFile::remove(path);
    PrintDialogScript dialogs;
    dialogs.ExpectPdf(path, std::get<1>(GetParam()));
    ShowPrinter();
  }
  [[nodiscard]] PrintedPages Grid(const PrintedMonth& month) const
  {
    Choose();
    CalendarPrinting::PrintGrid(month, TheFormat());
    Printer::EndDoc();
    return PrintedPages(path);
  }
  [[nodiscard]] PrintedPages GridAndList(const PrintedMonth& month) const
  {
    Choose();
    CalendarPrinting::PrintGrid(month, TheFormat());
    Database database = DBEngine::OpenDatabase();
    CalendarPrinting::PrintList(month, TheFormat(), database);
    Printer::EndDoc();
    return PrintedPages(path);
  }

  // The words of the line that begins at this place, joined by blanks, up to `end`; empty without one.
  static std::string LineAt(const PrintedPages& pages, int page, double x, double y, double end)
  {
    QStringList line;
    for (const PrintedWord& word : pages.Words()) {
      if (word.page == page && std::abs(word.y - y) <= kNear && word.x >= x - kNear && word.x < end) {
        line.append(word.text);
      }
    }
    return line.join(' ').toStdString();
  }
  // A line of the cell in that column and row of the grid.
  static std::string InCell(const PrintedPages& pages, int column, int row, int line)
  {
    return LineAt(pages, 1, Left(column) + 100, Top(row) + 350 + 200 * line, Left(column + 1));
  }
  static std::string InList(const PrintedPages& pages, int page, std::size_t column, double y)
  {
    const auto& columns = Page().columns;
    const int left = column == 0 ? modPrinterMargins::kLeftMargin : columns.at(column);
    return LineAt(pages, page, left, y, column == 3 ? 1e6 : columns.at(column + 1));
  }
  static std::vector<PrintedWord> WordsAt(const PrintedPages& pages, double x)
  {
    std::vector<PrintedWord> words;
    std::copy_if(pages.Words().begin(), pages.Words().end(), std::back_inserter(words),
                 [&](const PrintedWord& word) { return std::abs(word.x - x) <= kNear; });
    return words;
  }

  static double WidthOf(const QString& text, double size, bool bold = false)
  {
    Printer::SetFontName("arial");
    Printer::SetFontSize(size);
    Printer::SetFontBold(bold);
    const double width = Printer::TextWidth(text);
    Printer::EndDoc();
    return width;
  }
  static void ExpectWord(const PrintedWord& word, double x, double y, double size, bool bold = false)
  {
    SCOPED_TRACE(word.text.toStdString());
    EXPECT_NEAR(word.x, x, kNear);
    EXPECT_NEAR(word.y, y, kNear);
    EXPECT_NEAR(word.right - word.x, WidthOf(word.text, size, bold), kNear);
  }

  // No word is over another one, over the edge of its cell or off the printable area.
  static void ExpectTidy(const PrintedPages& pages)
  {
    constexpr double kLine = 100;
    const auto& words = pages.Words();
    for (auto word = words.begin(); word != words.end(); ++word) {
      EXPECT_GE(word->x, -kNear) << word->text.toStdString();
      EXPECT_LE(word->right, pages.Size(word->page).width() - 720 + kNear) << word->text.toStdString();
      EXPECT_LE(word->y + 200, pages.Size(word->page).height() - 720) << word->text.toStdString();
      for (auto other = word + 1; other != words.end(); ++other) {
        const bool sameLine = other->page == word->page && std::abs(other->y - word->y) < kLine;
        const bool apart = other->x >= word->right - kNear || word->x >= other->right - kNear;
        EXPECT_TRUE(!sameLine || apart) << word->text.toStdString() << " over " << other->text.toStdString();
      }
      if (word->page == 1 && word->y > Top(0) && word->y < Top(6)) {
        const int column = static_cast<int>((word->x - Left(0)) / Page().columnWidth);
        EXPECT_LE(word->right, Left(column + 1)) << word->text.toStdString();
      }
    }
  }

  // A month with everything that makes one full.
  PrintedMonth BusyMonth() const
  {
    PrintedMonth month = Month(2026, 8);
    const QStringList events = {" Dentist 9:30am",      " Swimming 10:00am", " WWWWWWWWWWWW 12:30pm",
                                " Parents' eve 7:15pm", " Bins out ",        " Ελλάδα Юлия "};
    for (int day = 1; day <= month.days; ++day) {
      Cell(month, day).events = events.mid(0, day % 7);
    }
    Cell(month, 8).events = QStringList(40, " Party 4:00pm");
    for (int day = 1; day <= 31; ++day) {
      const QString date = QDate(2026, 8, day).toString(Qt::ISODate);
      Store(date.toLatin1(), day % 2 == 0 ? "WWWWWWWWWWWW" : "Dentist",
            day % 3 == 0 ? QVariant() : QVariant("12:30:00"),
            day % 4 == 0 ? QVariant(QString("bring the letter, and the old brush too ").repeated(day)) : QVariant());
    }
    return month;
  }

  ProgramFolder folder;
  QString path = folder.File("/month.pdf");
};

}

TEST_P(CalendarPrintingTest, SetsTitleWeekdaysAndDaysAtTheirPlaces)
{
  const PrintedPages pages = Grid(Month(2026, 5));
  ASSERT_EQ(pages.Count(), 1);
  EXPECT_EQ(pages.Size(1).width() > pages.Size(1).height(), !IsPortrait());
  ExpectWord(pages.Word("May"), 1100, 1000, 40);
  ExpectWord(pages.Word("2026"), 1100 + WidthOf("May ", 40), 1000, 40);
  for (std::size_t day = 0; day < kWeekdays.size(); ++day) {
    ExpectWord(pages.Word(kWeekdays.at(day)), Page().weekdays.at(day), 2100, 12);
  }
  for (int day = 1; day <= 31; ++day) {
    const int cell = day + 4;
    ExpectWord(pages.Word(QString::number(day)), Left(cell % 7) + 100, Top(cell / 7) + 50, 12);
  }
  EXPECT_EQ(pages.Words().size(), 2U + 7 + 31);
}

TEST_P(CalendarPrintingTest, FillsTheSixthRowInAMonthOf31DaysThatStartsOnASaturday)
{
  PrintedMonth month = Month(2026, 8);
  Cell(month, 31).events = QStringList{" Last "};
  const PrintedPages pages = Grid(month);
  ExpectWord(pages.Word("1"), Left(6) + 100, Top(0) + 50, 12);
  ExpectWord(pages.Word("30"), Left(0) + 100, Top(5) + 50, 12);
  ExpectWord(pages.Word("31"), Left(1) + 100, Top(5) + 50, 12);
  ExpectWord(pages.Word("Last"), Left(1) + 100 + WidthOf(" ", 10), Top(5) + 350, 10);
}

TEST_P(CalendarPrintingTest, DrawsSevenLinesAcrossAndEightDown)
{
  const QImage picture = Grid(Month(2026, 2)).Picture(1, 288);
  const auto isInk = [&](int x, int y) { return qGray(picture.pixel((x + 360) / 5, (y + 360) / 5)) < 128; };
  for (int line = 0; line <= 6; ++line) {
    EXPECT_TRUE(isInk(Left(0) + 5, Top(line)));
    EXPECT_TRUE(isInk(Page().right - 5, Top(line)));
  }
  for (int line = 0; line <= 7; ++line) {
    EXPECT_TRUE(isInk(Left(line), Top(0) + 5));
    EXPECT_TRUE(isInk(Left(line), 10245));
  }
  // Beside the numbers, a row and a column without any are crossed as often as there are lines.
  int across = 0;
  for (int y = 2000; y < 10800; y += 5) {
    across += isInk(Left(1) - 100, y) && !isInk(Left(1) - 100, y - 5) ? 1 : 0;
  }
  int down = 0;
  for (int x = 300; x < Page().right + 30; x += 5) {
    down += isInk(x, Top(5) + 700) && !isInk(x - 5, Top(5) + 700) ? 1 : 0;
  }
  EXPECT_EQ(across, 7);
  EXPECT_EQ(down, 8);
  EXPECT_FALSE(isInk(Left(0) - 30, Top(2)));
  EXPECT_FALSE(isInk(Left(3), Top(0) - 30));
  EXPECT_FALSE(isInk(Left(3), 10290));
}

TEST_P(CalendarPrintingTest, SetsUpToFourEventsOfADayUnderEachOther)
{
  PrintedMonth month = Month(2026, 5);
  for (int count = 1; count <= 4; ++count) {
    for (int i = 1; i <= count; ++i) {
      Cell(month, 10 + count).events.append(QStringLiteral(" Of%1-%2 ").arg(count).arg(i));
    }
  }
  const PrintedPages pages = Grid(month);
  for (int count = 1; count <= 4; ++count) {
    for (int i = 1; i <= count; ++i) {
      ExpectWord(pages.Word(QStringLiteral("Of%1-%2").arg(count).arg(i)), Left(count) + 100 + WidthOf(" ", 10),
                 Top(2) + 350 + 200 * (i - 1), 10);
    }
  }
  EXPECT_EQ(pages.Words().size(), 2U + 7 + 31 + 10);
}

TEST_P(CalendarPrintingTest, SetsThreeOfFiveEventsOfADayAndMore)
{
  PrintedMonth month = Month(2026, 5);
  Cell(month, 12).events = QStringList{" One ", " Two ", " Three ", " Four ", " Five "};
  Cell(month, 13).events = QStringList(40, " Party ");
  const PrintedPages pages = Grid(month);
  EXPECT_EQ(InCell(pages, 2, 2, 0), "One");
  EXPECT_EQ(InCell(pages, 2, 2, 1), "Two");
  EXPECT_EQ(InCell(pages, 2, 2, 2), "Three");
  EXPECT_EQ(InCell(pages, 2, 2, 3), "more...");
  ExpectWord(pages.Word("more..."), Left(2) + 100 + WidthOf(" ", 10), Top(2) + 950, 10);
  EXPECT_EQ(InCell(pages, 3, 2, 2), "Party");
  EXPECT_EQ(InCell(pages, 3, 2, 3), "more...");
  EXPECT_EQ(pages.Words().size(), 2U + 7 + 31 + 8);
}

TEST_P(CalendarPrintingTest, ShowsNoEventsOfACellWhoseListIsHidden)
{
  PrintedMonth month = Month(2026, 5);
  month.cells[0].events = QStringList{" Gone "};  // of 26 April
  Cell(month, 12).events = QStringList{" Hidden "};
  Cell(month, 12).shown = false;
  EXPECT_EQ(Grid(month).Words().size(), 2U + 7 + 31);
}

TEST_P(CalendarPrintingTest, CutsTheTimeOffInPortraitAlone)
{
  PrintedMonth month = Month(2026, 5);
  Cell(month, 12).events = QStringList{" Dentist 9:30pm", " Tea 12:30pm", " Bins ", " A:B 9:30pm"};
  const PrintedPages pages = Grid(month);
  EXPECT_EQ(InCell(pages, 2, 2, 0), IsPortrait() ? "Dentist" : "Dentist 9:30pm");
  EXPECT_EQ(InCell(pages, 2, 2, 1), IsPortrait() ? "Tea" : "Tea 12:30pm");
  EXPECT_EQ(InCell(pages, 2, 2, 2), "Bins");
  EXPECT_EQ(InCell(pages, 2, 2, 3), "A:B 9:30pm");
}

TEST_P(CalendarPrintingTest, MakesSmallerWhatWouldLeaveItsCellAndNothingElse)
{
  PrintedMonth month = Month(2026, 5);
  Cell(month, 12).events = QStringList{" Fits ", " WWWWWWWWWWWW ", " Swimming 10:00am"};
  Cell(month, 16).events = QStringList{' ' + QString("nibs ").repeated(60), ' ' + QString(300, 'W'), " last "};
  const PrintedPages pages = Grid(month);
  ExpectWord(pages.Word("Fits"), Left(2) + 100 + WidthOf(" ", 10), Top(2) + 350, 10);
  if (!IsPortrait()) {
    ExpectWord(pages.Word("Swimming"), Left(2) + 100 + WidthOf(" ", 10), Top(2) + 750, 10);
    ExpectWord(pages.Word("10:00am"), Left(2) + 100 + WidthOf(" Swimming ", 10), Top(2) + 750, 10);
  }
  EXPECT_LE(pages.Word("WWWWWWWWWWWW").right, Left(3) - 30);
  EXPECT_LT(pages.Word("WWWWWWWWWWWW").right - pages.Word("WWWWWWWWWWWW").x, WidthOf("WWWWWWWWWWWW", 10) - 100);
  ExpectWord(pages.Word("last"), Left(6) + 100 + WidthOf(" ", 10), Top(2) + 750, 10);
  ExpectTidy(pages);
}

TEST_P(CalendarPrintingTest, KeepsALineOfACellOnOneLine)
{
  PrintedMonth month = Month(2026, 5);
  Cell(month, 12).events = QStringList{" one\ntwo\r\nthree ", " four "};
  const PrintedPages pages = Grid(month);
  EXPECT_EQ(InCell(pages, 2, 2, 0), "one two three");
  EXPECT_EQ(InCell(pages, 2, 2, 1), "four");
  ExpectTidy(pages);
}

TEST_P(CalendarPrintingTest, ListsTheEventsByDateUnderBoldHeads)
{
  Store("2026-08-12", "Dentist", "21:30:00", "Bring the letter");
  Store("2026-08-03", "Second", "08:05:00");
  Store("2026-08-03", "First");
  Store("2026-08-20", "Elsewhere", {}, {}, "May");
  Store("2025-08-20", "Lastyear");
  Store("2026-09-01", "Next", {}, {}, "September");
  const PrintedPages pages = GridAndList(Month(2026, 8));
  const int page = Page().listPage;
  ASSERT_EQ(pages.Count(), page);
  const std::array heads = {"Date", "Event", "Time", "Details"};
  for (std::size_t i = 0; i < heads.size(); ++i) {
    ExpectWord(pages.Word(heads.at(i)), Page().columns.at(i), Page().listHeader, 10, true);
    EXPECT_EQ(pages.Word(heads.at(i)).page, page);
  }
  const std::array<std::array<const char*, 4>, 3> lines = {
      {{"3", "Second", "8:05am", ""}, {"3", "First", "", ""}, {"12", "Dentist", "9:30pm", "Bring the letter"}}};
  for (std::size_t line = 0; line < lines.size(); ++line) {
    for (std::size_t column = 0; column < 4; ++column) {
      EXPECT_EQ(InList(pages, page, column, Page().firstListLine + 250.0 * static_cast<double>(line)),
                lines.at(line).at(column));
    }
  }
  ExpectWord(pages.Word("Dentist"), Page().columns[1], Page().firstListLine + 500, 10);
  EXPECT_EQ(pages.Words().size(), 2U + 7 + 31 + 4 + 3 + 2 + 6);
}

TEST_P(CalendarPrintingTest, PrintsNothingInTheColumnOfTheTimeForAnEventWithoutOne)
{
  Store("2026-08-12", "Dentist", {}, "Letter");
  const PrintedPages pages = GridAndList(Month(2026, 8));
  EXPECT_EQ(InList(pages, Page().listPage, 1, Page().firstListLine), "Dentist");
  EXPECT_EQ(InList(pages, Page().listPage, 2, Page().firstListLine), "");
  EXPECT_EQ(InList(pages, Page().listPage, 3, Page().firstListLine), "Letter");
  EXPECT_EQ(WordsAt(pages, Page().columns[2]).size(), 1U) << "the head alone";
}

TEST_P(CalendarPrintingTest, PrintsAListWithoutEventsAsItsHeads)
{
  const PrintedPages pages = GridAndList(Month(2026, 8));
  EXPECT_EQ(pages.Count(), Page().listPage);
  EXPECT_EQ(pages.Words().size(), 2U + 7 + 31 + 4);
}

TEST_P(CalendarPrintingTest, WrapsDetailsAtTheWidthThatTheirBoxHasAndSetsTheLines180Apart)
{
  Store("2026-08-12", "Dentist", "21:30:00", QString("word ").repeated(40).trimmed() + "\r\n\r\nend");
  Store("2026-08-13", "Next");
  std::size_t linesBefore = 1000;
  for (const int width : {1500, 3135, 5000}) {
    SCOPED_TRACE(width);
    PrintedMonth month = Month(2026, 8);
    month.detailsWidth = width;
    const PrintedPages pages = GridAndList(month);
    std::vector<PrintedWord> firsts = WordsAt(pages, Page().columns[3]);
    firsts.erase(firsts.begin());  // the head
    EXPECT_LT(firsts.size(), linesBefore) << "a wider box takes fewer lines";
    linesBefore = firsts.size();
    ASSERT_GE(firsts.size(), 3U);
    for (std::size_t i = 0; i + 1 < firsts.size(); ++i) {
      EXPECT_NEAR(firsts[i].y, Page().firstListLine + 180.0 * static_cast<double>(i), kNear);
    }
    EXPECT_EQ(firsts.back().text.toStdString(), "end");
    const double end = Page().firstListLine + 180.0 * static_cast<double>(firsts.size());
    EXPECT_NEAR(firsts.back().y, end, kNear) << "below an empty line";
    EXPECT_NEAR(pages.Word("Next").y, end + 250, kNear);
    for (const PrintedWord& word : pages.Words()) {
      EXPECT_TRUE(word.text != "word" || word.right <= Page().columns[3] + width * 1.06);
    }
  }
}

TEST_P(CalendarPrintingTest, WrapsNoDetailsOverTheEdgeOfThePaper)
{
  Store("2026-08-12", "Dentist", "21:30:00", QString("every word of it counts ").repeated(200));
  for (const int pixels : {8, 13, 40}) {
    PrintedMonth month = Month(2026, 8);
    month.detailsWidth = 20'000;
    month.detailsFont.setPixelSize(pixels);
    const PrintedPages pages = GridAndList(month);
    ExpectTidy(pages);
    EXPECT_EQ(pages.Words().size(), 2U + 7 + 31 + 4 + 3 + 1000) << "nothing is lost";
  }
}

TEST_P(CalendarPrintingTest, GoesOnAtTheTopMarginOfTheNextPageWithAListPastTheBottomMargin)
{
  for (int i = 0; i < 100; ++i) {
    Store("2026-08-12", QStringLiteral("E%1").arg(i));
  }
  const PrintedPages pages = GridAndList(Month(2026, 8));
  int page = Page().listPage;
  double y = Page().firstListLine;
  for (int i = 0; i < 100; ++i) {
    const PrintedWord word = pages.Word(QStringLiteral("E%1").arg(i));
    if (word.page != page) {
      EXPECT_GT(y, pages.Size(page).height() - 720 - 1000) << "the page is full";
      EXPECT_EQ(word.page, page + 1);
      page = word.page;
      y = 1000;
    }
    ExpectWord(word, Page().columns[1], y, 10);
    EXPECT_EQ(InList(pages, page, 0, y), "12");
    y += 250;
  }
  EXPECT_GT(page, Page().listPage);
  EXPECT_EQ(pages.Count(), page);
  ExpectTidy(pages);
}

TEST_P(CalendarPrintingTest, GoesOnOnTheNextPageWithinDetailsOf5000Words)
{
  Store("2026-08-12", "Long", {}, QString("word ").repeated(5000));
  Store("2026-08-13", "Next");
  const PrintedPages pages = GridAndList(Month(2026, 8));
  const auto& words = pages.Words();
  EXPECT_EQ(std::count_if(words.begin(), words.end(), [](const PrintedWord& word) { return word.text == "word"; }),
            5000);
  std::vector<PrintedWord> firsts = WordsAt(pages, Page().columns[3]);
  for (std::size_t i = 2; i < firsts.size(); ++i) {
    const bool turned = firsts[i].page != firsts[i - 1].page;
    EXPECT_NEAR(firsts[i].y, turned ? 1000 : firsts[i - 1].y + 180, kNear);
  }
  EXPECT_GT(firsts.back().page, Page().listPage);
  EXPECT_EQ(pages.Word("Next").page, firsts.back().page);
  EXPECT_NEAR(pages.Word("Next").y, firsts.back().y + 250, kNear);
  ExpectTidy(pages);
}

TEST_P(CalendarPrintingTest, KeepsTheTitleOfAnEventInItsColumnOfTheList)
{
  Store("2026-08-12", "WWWWWWWWWWWW", "21:30:00", "Letter");
  Store("2026-08-13", QString(200, 'x'), "21:30:00", "Second");
  Store("2026-08-14", "up\nand down", "21:30:00", "Third");
  const PrintedPages pages = GridAndList(Month(2026, 8));
  ExpectTidy(pages);
  EXPECT_EQ(InList(pages, Page().listPage, 1, Page().firstListLine + 500), "up and down");
  EXPECT_NEAR(pages.Word("Third").y, Page().firstListLine + 500, kNear);
}

TEST_P(CalendarPrintingTest, PrintsTextsInAnyScript)
{
  const QString any = QStringLiteral("Ελλάδα Юлия հայերեն עברית العربية 中文 हिन्दी 😀 e\u0301 \u202e");
  Store("2026-08-12", any.left(12), "21:30:00", any + '\n' + any + QChar(0xd83d));
  Store("2026-08-13", "Last");
  PrintedMonth month = Month(2026, 8);
  Cell(month, 12).events = QStringList{' ' + any + ' ', ' ' + any.left(12) + " 9:30pm", " Plain "};
  const PrintedPages pages = GridAndList(month);
  EXPECT_EQ(InCell(pages, 3, 2, 2), "Plain");
  EXPECT_EQ(InList(pages, Page().listPage, 1, pages.Word("Last").y), "Last");
  EXPECT_NE(pages.Word("Юлия").page, 0);
}

TEST_P(CalendarPrintingTest, IsMadeSmallerBetweenWideMargins)
{
  constexpr double kWide = 2 * 1440;
  const PrintedMonth month = BusyMonth();
  QFile::remove(path);
  PrintDialogScript dialogs;
  dialogs.ExpectPdf(path, std::get<1>(GetParam()),
                    [](QPrintDialog& dialog) { PrintDialogScript::ChooseMargins(dialog, 2 * 25.4); });
  ShowPrinter();
  CalendarPrinting::PrintGrid(month, TheFormat());
  Database database = DBEngine::OpenDatabase();
  CalendarPrinting::PrintList(month, TheFormat(), database);
  Printer::EndDoc();
  const PrintedPages pages(path, kWide);
  for (const PrintedWord& word : pages.Words()) {
    EXPECT_GE(word.x, 0) << word.text.toStdString();
    EXPECT_LE(word.right, pages.Size(word.page).width() - 2 * kWide) << word.text.toStdString();
    EXPECT_LE(word.y, pages.Size(word.page).height() - 2 * kWide) << word.text.toStdString();
  }
  const double scale = pages.Word("Monday").x / Page().weekdays[1];
  EXPECT_LT(scale, 1);
  EXPECT_NEAR(pages.Word("31").x, scale * (Left(1) + 100), kNear);
  EXPECT_NEAR(pages.Word("31").y, scale * (Top(5) + 50), kNear);
  EXPECT_EQ(pages.Word("Details").page, Page().listPage);
}

TEST_P(CalendarPrintingTest, HangsTidilyOnTheKitchenDoorWithABusyMonth)
{
  const PrintedPages pages = GridAndList(BusyMonth());
  ExpectTidy(pages);
  const QString pictures = qEnvironmentVariable("QUILLMARK_PICTURES");
  if (!pictures.isEmpty()) {
    const QString format = QString(testing::UnitTest::GetInstance()->current_test_info()->name()).split('/').last();
    QFile::copy(path, pictures + '/' + format + ".pdf");
  }
}

INSTANTIATE_TEST_SUITE_P(Formats, CalendarPrintingTest,
                         testing::Combine(testing::Values(Format::kPortrait, Format::kLandscape),
                                          testing::Values(QPageSize::A4, QPageSize::Letter)),
                         [](const auto& format) {
                           const bool upright = std::get<0>(format.param) == Format::kPortrait;
                           const bool a4 = std::get<1>(format.param) == QPageSize::A4;
                           return std::string(upright ? "Portrait" : "Landscape") + (a4 ? "A4" : "Letter");
                         });
