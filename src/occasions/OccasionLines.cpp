// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "occasions/OccasionLines.h"

#include "occasions/OccasionSentences.h"

namespace OccasionLines {
namespace {

struct Words
{
  const char* none;
  const char* one;
  const char* many;
};

constexpr Words kAge = {", less than a year old", ", 1 year old", ", %1 years old"};
constexpr Words kMarried = {", married less than a year", ", married 1 year", ", married %1 years"};

// Nothing for a date that lies ahead.
QString Tail(int years, const Words& words)
{
  switch (years) {
    case 0:
      return QLatin1String(words.none);
    case 1:
      return QLatin1String(words.one);
    default:
      return years > 1 ? QString(QLatin1String(words.many)).arg(years) : QString();
  }
}

template <typename Occasion>
QString Line(const Occasion& occasion, const QString& names, bool withYears, const Words& words, QDate today)
{
  const QString date = occasion.month + QLatin1Char(' ') + occasion.date.toString();
  if (occasion.year.isNull() || occasion.date.isNull()) {
    return date + QStringLiteral(" - ") + names;
  }
  const int years =
      OccasionSentences::YearsSince(occasion.month, occasion.date.toString(), occasion.year.toString(), today);
  return date + QStringLiteral(", ") + occasion.year.toString() + QStringLiteral(" - ") + names +
         (withYears ? Tail(years, words) : QString());
}

}

QString Of(const Occasions::Birthday& birthday, bool withAge, QDate today)
{
  return Line(birthday, birthday.firstName + QLatin1Char(' ') + birthday.lastName, withAge, kAge, today);
}

QString Of(const Occasions::Anniversary& anniversary, bool withYears, QDate today)
{
  return Line(anniversary, anniversary.spouse1First + QStringLiteral(" and ") + anniversary.spouse2First, withYears,
              kMarried, today);
}

}
