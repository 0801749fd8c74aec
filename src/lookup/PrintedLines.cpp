// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/PrintedLines.h"

#include "lookup/modPrinterMargins.h"
#include "platform/Printer.h"

#include <QLocale>

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

}

void SetBodyFont()
{
  SetFont(kBodySize, false);
}

void Print(const QString& line)
{
  modPrinterMargins::PrinterMargins();
  Printer::Print(line);
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
