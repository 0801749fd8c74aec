// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/CalendarPrinting.h"

#include "calendar/CalendarEvents.h"
#include "calendar/EventTexts.h"
#include "calendar/MonthShape.h"
#include "calendar/PageGeometry.h"
#include "calendar/PrintedCell.h"
#include "controls/WrappedLines.h"
#include "lookup/modPrinterMargins.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace CalendarPrinting {
namespace {

constexpr double kTitleSize = 40;
constexpr double kDaySize = 12;
constexpr double kEventSize = 10;
constexpr double kSmallestSize = 5;
constexpr double kSizeStep = 0.5;
constexpr double kAscent = 0.8;  // of the height of a line
constexpr int kMostLetters = 200;
constexpr int kInset = 100;
constexpr int kGap = 40;
constexpr int kFirstEvent = 350;
constexpr int kEventPitch = 200;
constexpr int kDetailsPitch = 180;
constexpr int kListPitch = 250;

constexpr std::array kWeekdayNames = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
constexpr std::array kHeads = {"Date", "Event", "Time", "Details"};

const PageGeometry& GeometryOf(Format format)
{
  return format == Format::kLandscape ? kLandscapePage : kPortraitPage;
}

void SetFont(double size)
{
  Printer::SetFontName(QStringLiteral("arial"));
  Printer::SetFontSize(size);
}

void PrintAt(int left, int top, const QString& text)
{
  Printer::SetCurrentX(left);
  Printer::SetCurrentY(top);
  Printer::Print(text);
}

QString OnOneLine(QString text)
{
  std::replace_if(
      text.begin(), text.end(), [](QChar letter) { return letter.isSpace(); }, QLatin1Char(' '));
  return text;
}

// Without the letters at its end that have no room.
QString Shortened(const QString& text, int width)
{
  const QString start = text.left(kMostLetters);
  QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, start);
  letters.toEnd();
  QString shortened = start;
  while (Printer::TextWidth(shortened) > width && letters.toPreviousBoundary() > 0) {
    shortened = start.left(letters.position()) + QStringLiteral("...");
  }
  return shortened;
}

// A text that is too wide is set smaller on the same base line, so that it stays in its cell, and
// is cut off where even that is too wide.
void PrintWithin(int left, int top, int width, const QString& event)
{
  QString text = OnOneLine(event);
  while (text.endsWith(QLatin1Char(' '))) {
    text.chop(1);
  }
  const double height = Printer::TextHeight(text);
  double size = kEventSize;
  while (size > kSmallestSize && Printer::TextWidth(text) > width) {
    size -= kSizeStep;
    Printer::SetFontSize(size);
  }
  const double lower = kAscent * (height - Printer::TextHeight(text));
  PrintAt(left, top + qRound(lower), Shortened(text, width));
  Printer::SetFontSize(kEventSize);
}

void PrintTitle(const PrintedMonth& month)
{
  SetFont(kTitleSize);
  modPrinterMargins::PrinterMargins();
  Printer::Print(QStringLiteral("%1 %2").arg(month.name).arg(month.year));
}

void PrintWeekdays(const PageGeometry& page)
{
  SetFont(kDaySize);
  for (std::size_t day = 0; day < kWeekdayNames.size(); ++day) {
    PrintAt(page.weekdays[day], PageGeometry::kWeekdays, QLatin1String(kWeekdayNames[day]));
  }
}

void DrawGrid(const PageGeometry& page)
{
  for (int row = 0; row <= PageGeometry::kRows; ++row) {
    const int top = PageGeometry::kTop + row * PageGeometry::kRowHeight;
    Printer::Line(PageGeometry::kLeft, top, page.Right(), top);
  }
  for (int column = 0; column <= PageGeometry::kColumns; ++column) {
    const int left = PageGeometry::kLeft + column * page.columnWidth;
    Printer::Line(left, PageGeometry::kTop, left, PageGeometry::Bottom());
  }
}

void PrintEvents(const PrintedMonth::Cell& cell, Format format, int left, int top)
{
  const int width = GeometryOf(format).columnWidth - kInset - kGap;
  Printer::SetForeColor(Qt::black);
  int line = top + kFirstEvent;
  for (const QString& event : PrintedCell::Lines(cell.events)) {
    PrintWithin(left + kInset, line, width, format == Format::kPortrait ? PrintedCell::WithoutTime(event) : event);
    line += kEventPitch;
  }
}

void PrintDay(const PrintedMonth& month, int day, Format format, int left, int top)
{
  SetFont(kDaySize);
  PrintAt(left + kInset, top + kInset / 2, QString::number(day));
  SetFont(kEventSize);
  for (const PrintedMonth::Cell& cell : month.cells) {
    if (cell.shown && cell.date.day() == day) {
      PrintEvents(cell, format, left, top);
    }
  }
}

void PrintHeads(const PageGeometry& page)
{
  Printer::SetFontBold(true);
  for (std::size_t column = 0; column < kHeads.size(); ++column) {
    PrintAt(page.columns[column], page.listHeader, QLatin1String(kHeads[column]));
  }
  Printer::SetFontBold(false);
}

double WidestOf(const QStringList& lines)
{
  double widest = 0;
  for (const QString& line : lines) {
    widest = std::max(widest, Printer::TextWidth(line));
  }
  return widest;
}

QStringList Wrapped(const QString& notes, const QFont& font, int width)
{
  QStringList lines = WrappedLines(notes, font, width);
  std::transform(lines.begin(), lines.end(), lines.begin(), OnOneLine);
  return lines;
}

// The letters of the page may be narrower than those of the paper.
QStringList LinesOnPaper(const QString& notes, const PrintedMonth& month, const PageGeometry& page)
{
  const int room = static_cast<int>(Printer::ScaleWidth()) - page.columns[3];
  int width = std::min({month.detailsWidth, page.detailsWidth, room});
  QStringList lines = Wrapped(notes, month.detailsFont, width);
  for (double widest = WidestOf(lines); widest > room && width > kGap; widest = WidestOf(lines)) {
    width = static_cast<int>(width * room / widest) - kGap;
    lines = Wrapped(notes, month.detailsFont, width);
  }
  return lines;
}

void PrintDetails(const QString& notes, const PrintedMonth& month, const PageGeometry& page)
{
  bool first = true;
  for (const QString& line : LinesOnPaper(notes, month, page)) {
    if (!first) {
      modPrinterMargins::ListTop += kDetailsPitch;
      Printer::SetCurrentY(modPrinterMargins::ListTop);
      modPrinterMargins::PrinterMargins();
    }
    first = false;
    PrintAt(page.columns[3], modPrinterMargins::ListTop, line);
  }
}

void PrintListEvent(const CalendarEvent& event, const PrintedMonth::Cell& cell, const PrintedMonth& month,
                    const PageGeometry& page)
{
  SetFont(kEventSize);
  modPrinterMargins::PrinterMargins();
  const int top = modPrinterMargins::ListTop;
  PrintAt(modPrinterMargins::kLeftMargin, top, cell.day);
  PrintWithin(page.columns[1], top, page.columns[2] - page.columns[1] - kGap, event.title);
  PrintAt(page.columns[2], top, EventTexts::ShortTime(event.time));
  if (!event.notes.isEmpty()) {
    PrintDetails(event.notes, month, page);
  }
  modPrinterMargins::ListTop += kListPitch;
}

}

void PrintGrid(const PrintedMonth& month, Format format)
{
  const PageGeometry& page = GeometryOf(format);
  Printer::SetOrientation(page.orientation);
  Printer::Fit(page.Right(), PageGeometry::Bottom());
  PrintTitle(month);
  PrintWeekdays(page);
  DrawGrid(page);
  int left = PageGeometry::kLeft + page.columnWidth * (month.firstWeekday - 1);
  int top = PageGeometry::kTop;
  for (int day = 1; day <= month.days; ++day) {
    PrintDay(month, day, format, left, top);
    left += page.columnWidth;
    if (left >= page.Right()) {
      left = PageGeometry::kLeft;
      top += PageGeometry::kRowHeight;
    }
  }
}

void PrintList(const PrintedMonth& month, Format format, Database& database)
{
  const PageGeometry& page = GeometryOf(format);
  if (page.listOnNewPage) {
    Printer::NewPage();
  }
  SetFont(kEventSize);
  PrintHeads(page);
  modPrinterMargins::ListTop = page.firstListLine;
  const QDate first = month.cells.front().date;
  const QDate last = first.addDays(MonthShape::CellsOf(month.days, month.firstWeekday) - 1);
  for (const CalendarEvent& event : CalendarEvents::InOrderOfDate(database, month.name, first, last)) {
    for (const PrintedMonth::Cell& cell : month.cells) {
      if (cell.date == event.date) {
        PrintListEvent(event, cell, month, page);
      }
    }
  }
}

}
