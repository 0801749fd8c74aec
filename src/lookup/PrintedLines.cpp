// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/PrintedLines.h"

#include "lookup/modPrinterMargins.h"
#include "platform/Printer.h"

#include <QLocale>
#include <QStringList>
#include <QTextBoundaryFinder>

namespace PrintedLines {
namespace {

constexpr double kHeadingSize = 14;
constexpr double kBodySize = 12;

void SetFont(double size, bool bold)
{
  Printer::SetFontName(QStringLiteral("arial"));
  Printer::SetFontSize(size);
  Printer::SetFontBold(bold);
}

// Where the text after the caption and its tabs begins.
qsizetype TextStart(const QString& row)
{
  qsizetype start = row.indexOf(QLatin1Char('\t')) + 1;
  while (start > 0 && start < row.size() && row[start] == QLatin1Char('\t')) {
    ++start;
  }
  return start;
}

// How many characters there are before the last such boundary within the room; 0 without any.
qsizetype FittingTo(QTextBoundaryFinder::BoundaryType type, const QString& text, double room)
{
  QTextBoundaryFinder boundaries(type, text);
  qsizetype fitting = 0;
  for (qsizetype end = boundaries.toNextBoundary(); end > 0; end = boundaries.toNextBoundary()) {
    QStringView part = QStringView(text).left(end);
    while (part.endsWith(QLatin1Char(' '))) {
      part.chop(1);
    }
    if (Printer::TextWidth(part.toString()) > room) {
      break;
    }
    fitting = end;
  }
  return fitting;
}

// Between words if possible, and never nothing.
qsizetype Fitting(const QString& text, double room)
{
  if (Printer::TextWidth(text) <= room) {
    return text.size();
  }
  const qsizetype words = FittingTo(QTextBoundaryFinder::Line, text, room);
  const qsizetype fitting = words > 0 ? words : FittingTo(QTextBoundaryFinder::Grapheme, text, room);
  return fitting > 0 ? fitting : text.size();
}

// What is too wide for the paper goes on below, in its own column.
void PrintRow(const QString& row)
{
  const qsizetype start = TextStart(row);
  Printer::Print(row.left(start), Printer::LineEnd::kStay);
  const double column = Printer::CurrentX();
  const double room = Printer::ScaleWidth() - column;
  QString rest = row.mid(start);
  for (qsizetype end = Fitting(rest, room); end < rest.size(); end = Fitting(rest, room)) {
    Printer::Print(rest.left(end));
    rest.remove(0, end);
    modPrinterMargins::PrinterMargins();
    Printer::SetCurrentX(column);
  }
  Printer::Print(rest);
}

// Rows below the first may stand in the bottom margin, but not below it.
void StayOnPaper(const QString& row)
{
  if (Printer::CurrentY() + Printer::TextHeight(row) > Printer::ScaleHeight()) {
    Printer::NewPage();
    Printer::SetCurrentY(Printer::ScaleTop() + modPrinterMargins::kTopMargin);
  }
}

}

void SetBodyFont()
{
  SetFont(kBodySize, false);
}

void Print(const QString& line)
{
  modPrinterMargins::PrinterMargins();
  const QStringList rows = line.split(QStringLiteral("\r\n"));
  PrintRow(rows.constFirst());
  for (const QString& row : rows.mid(1)) {
    StayOnPaper(row);
    PrintRow(row);
  }
}

void PrintHeading(const QString& heading)
{
  SetFont(kHeadingSize, true);
  modPrinterMargins::PrinterMargins();
  if (Printer::CurrentY() != modPrinterMargins::kTopMargin) {
    Printer::Print();
  }
  Print(heading);
}

QString DateText(QDate date)
{
  return QLocale::c().toString(date, QStringLiteral("MMMM dd, yyyy"));
}

QString Tabs(int count)
{
  return QString(count, QLatin1Char('\t'));
}

}
