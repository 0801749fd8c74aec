// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "people/DateRules.h"

#include "charts/modConvert.h"
#include "platform/Attempt.h"
#include "platform/Months.h"
#include "platform/Numeric.h"

namespace {

QString RefuseMonth(const PartialDate& date)
{
  return date.month.isEmpty() || MonthNumber(date.month) > 0
             ? QString()
             : date.month + QStringLiteral(" is not valid. Please try again.");
}

// Every fourth year has a 29 February here, full centuries included.
QString RefuseLeapDay(const PartialDate& date)
{
  if (date.month != kMonthNames[1] || date.day != QLatin1String("29") || date.year.isEmpty()) {
    return {};
  }
  bool refused = false;
  Attempt([&] { refused = ToInteger(date.year) % 4 != 0; });
  return refused
             ? QStringLiteral("%1 %2, %3 is not a valid date. Please try again.").arg(date.month, date.day, date.year)
             : QString();
}

QString Invalid(const QString& text)
{
  return text + QStringLiteral(" is an invalid value. Please try again.");
}

QString RefuseText(const QString& text)
{
  return text.isEmpty() || IsNumeric(text) ? QString() : Invalid(text);
}

QString RefuseOutside(const QString& text, int lowest, int highest)
{
  bool refused = false;
  Attempt([&] {
    const int number = ToInteger(text);
    refused = number < lowest || number > highest;
  });
  return refused ? Invalid(text) : QString();
}

// A date without a day is never compared with today. Then only the month and the year
// can tell.
bool LiesAhead(const PartialDate& date, QDate today)
{
  const int month = MonthNumber(date.month);
  bool ahead = false;
  Attempt([&] { ahead = DateSerial(ToInteger(date.year), month, ToInteger(date.day)) > today; });
  Attempt([&] {
    const int year = ToInteger(date.year);
    ahead = ahead || (month > today.month() && year >= today.year()) || year > today.year();
  });
  return ahead;
}

QString RefuseFuture(const PartialDate& date, QDate today)
{
  return !date.year.isEmpty() && LiesAhead(date, today)
             ? QStringLiteral("That date has not yet occurred. Please try again.")
             : QString();
}

}

QString RefuseDate(const PartialDate& date, QDate today)
{
  for (const QString& refusal :
       {RefuseMonth(date), modConvert::CheckMonthDay(date.month, date.day), RefuseLeapDay(date), RefuseText(date.day),
        RefuseText(date.year), RefuseOutside(date.day, 1, 31), RefuseOutside(date.year, kFirstYear, kLastYear),
        RefuseFuture(date, today)}) {
    if (!refusal.isEmpty()) {
      return refusal;
    }
  }
  return {};
}
