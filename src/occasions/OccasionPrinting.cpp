// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "occasions/OccasionPrinting.h"

#include "lookup/PrintedLines.h"
#include "lookup/modPrinterMargins.h"
#include "occasions/OccasionLines.h"
#include "platform/Attempt.h"
#include "platform/Clock.h"
#include "platform/Months.h"
#include "platform/MsgBox.h"
#include "platform/PrintDialog.h"
#include "platform/PrintProgress.h"
#include "platform/Printer.h"
#include "store/Database.h"

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

// A month under its name. Throws 13 for a date that is none.
void PrintMonth(Database& database, const QString& month, bool withYears)
{
  const QDate today = Clock::Today();
  PrintedLines::PrintHeading(month);
  PrintedLines::SetBodyFont();
  PrintSection(Occasions::BirthdaysOf(database, month), QStringLiteral("Birthdays:\t\t"),
               QStringLiteral("No birthdays this month"), withYears, today);
  PrintSection(Occasions::AnniversariesOf(database, month), QStringLiteral("Anniversaries:\t"),
               QStringLiteral("No anniversaries this month"), withYears, today);
}

void Begin(bool withDate)
{
  ShowPrinter();
  PrintedLines::SetBodyFont();
  if (withDate) {
    PrintedLines::Print(PrintedLines::DateText(Clock::Today()));
  }
}

void PrintMonths(Database& database, const Choices& choices)
{
  Begin(choices.withDate);
  const QStringList months =
      choices.allMonths ? QStringList(kMonthNames.begin(), kMonthNames.end()) : QStringList(choices.month);
  PrintProgress progress(static_cast<int>(months.size()));
  for (const QString& month : months) {
    PrintMonth(database, month, choices.withYears);
    progress.Step();
  }
  Printer::EndDoc();
}

bool IsRefused(Database& database, const Choices& choices)
{
  if (database.OpenRecordset(QStringLiteral("People"), Database::kTable)->Eof()) {
    MsgBox(QStringLiteral("There are no records in the database"));
  } else if (choices.month.isEmpty() && !choices.allMonths) {
    MsgBox(QStringLiteral("You must select a printing option"));
  } else {
    return false;
  }
  return true;
}

}

void Print(Database& database, const Choices& choices)
{
  const bool ended = Attempt([&] {
    if (!IsRefused(database, choices)) {
      PrintMonths(database, choices);
      MsgBox(QStringLiteral("Printing completed"));
    }
  });
  if (!ended) {
    Attempt([] { Printer::EndDoc(); });
  }
}

}
