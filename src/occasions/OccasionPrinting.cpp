// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "occasions/OccasionPrinting.h"

#include "lookup/PrintedLines.h"
#include "lookup/modPrinterMargins.h"
#include "occasions/OccasionLines.h"

namespace OccasionPrinting {
namespace {

template <typename Occasion>
void PrintSection(const std::vector<Occasion>& occasions, const QString& label, const QString& none, bool withYears,
                  QDate today)
{
  QString prefix = label;
  for (const Occasion& occasion : occasions) {
    const QString line = OccasionLines::Of(occasion, withYears, today);
    PrintedLines::Print(prefix + line);
    prefix = PrintedLines::Tabs(4);
  }
  if (occasions.empty()) {
    PrintedLines::Print(prefix + none);
  }
  modPrinterMargins::PrinterMargins();
}

}

void Begin(bool withDate, QDate today)
{
  PrintedLines::SetBodyFont();
  if (withDate) {
    PrintedLines::Print(PrintedLines::DateText(today));
  }
}

void PrintMonth(Database& database, const QString& month, bool withYears, QDate today)
{
  PrintedLines::PrintHeading(month);
  PrintedLines::SetBodyFont();
  PrintSection(Occasions::BirthdaysOf(database, month), QStringLiteral("Birthdays:\t\t"),
               QStringLiteral("No birthdays this month"), withYears, today);
  PrintSection(Occasions::AnniversariesOf(database, month), QStringLiteral("Anniversaries:\t"),
               QStringLiteral("No anniversaries this month"), withYears, today);
}

}
