// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "charts/modConvert.h"

#include "charts/Tally.h"
#include "platform/Clock.h"
#include "platform/Months.h"
#include "platform/Numeric.h"
#include "store/Queries.h"

#include <algorithm>
#include <array>

namespace modConvert {
namespace {

constexpr qsizetype kShortMonth = 3;
constexpr int kYearsInClass = 10;
constexpr std::array<const char*, 10> kAgeClasses = {"<10",   "10-19", "20-29", "30-39", "40-49",
                                                     "50-59", "60-69", "70-79", "80-89", ">89"};

QString MonthKey(const QVariant& value)
{
  const QString month = value.toString();
  return MonthNumber(month) == 0 ? QString() : month.left(kShortMonth);
}

QString AgeKey(const QVariant& birthYear)
{
  const QString year = birthYear.toString();
  if (year.isEmpty()) {
    return {};
  }
  const qint64 age = qint64{Clock::Today().year()} - ToInteger(year);
  const qint64 lastClass = static_cast<qint64>(kAgeClasses.size()) - 1;
  return QLatin1String(kAgeClasses[static_cast<std::size_t>(std::clamp<qint64>(age / kYearsInClass, 0, lastClass))]);
}

}

QString CheckMonthDay(const QString& month, const QString& day)
{
  static const QStringList kMonthsOf30 = {QStringLiteral("April"), QStringLiteral("June"), QStringLiteral("September"),
                                          QStringLiteral("November")};
  const bool is30 = day == QLatin1String("30");
  const bool is31 = day == QLatin1String("31");
  const bool refused = (month == kMonthNames[1] && (is30 || is31)) || (kMonthsOf30.contains(month) && is31);
  return refused ? QStringLiteral("%1 %2 is not valid. Please try again.").arg(month, day) : QString();
}

void TallyAnniversaries()
{
  Tally::Run({Queries::kTotalAnn, QStringLiteral("Month")}, {Queries::kAnnMonths, QStringLiteral("AnnMonth")},
             MonthKey);
}

void TallyBirthdays()
{
  Tally::Run({Queries::kTotalBirthdays, QStringLiteral("Month")}, {Queries::kBirthMonths, QStringLiteral("BirthMonth")},
             MonthKey);
}

void TallyAges()
{
  Tally::Run({Queries::kTotalAge, QStringLiteral("Age")}, {Queries::kBirthYears, QStringLiteral("BirthYear")}, AgeKey);
}

}
