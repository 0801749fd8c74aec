// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "occasions/OccasionSentences.h"

#include "platform/Months.h"
#include "platform/RuntimeError.h"

#include <QRegularExpression>

namespace OccasionSentences {
namespace {

constexpr int kLeapCycle = 4;

// A day of the year, as it is kept.
struct YearDay
{
  QString month;
  QString day;

  [[nodiscard]] bool IsLeapDay() const { return month == kMonthNames[1] && day == QLatin1String("29"); }
};

YearDay FirstOfMarch()
{
  return {kMonthNames[2], QStringLiteral("1")};
}

QDate DateIn(const QString& year, const YearDay& yearDay)
{
  static const QRegularExpression kShape(
      QRegularExpression::anchoredPattern(QStringLiteral("([A-Za-z]+)[ ,]+(\\d{1,2})[ ,]+([1-9]\\d{2,3}) *")));
  const auto parts = kShape.match(QStringList{yearDay.month, yearDay.day, year}.join(QLatin1Char(' ')));
  const QDate date(parts.capturedView(3).toInt(), MonthNumber(parts.capturedView(1)), parts.capturedView(2).toInt());
  if (!date.isValid()) {
    RaiseError(ErrorNumber::kTypeMismatch);
  }
  return date;
}

// `whose` says whose occasion of what kind it is.
QString DaysSentence(const QString& whose, QDate occasion, QDate today)
{
  const qint64 days = today.daysTo(occasion);
  switch (days) {
    case 0:
      return whose + QStringLiteral(" is today!");
    case 1:
      return whose + QStringLiteral(" is tomorrow!");
    case -1:
      return whose + QStringLiteral(" was yesterday.");
    default:
      break;
  }
  const bool thisYear = occasion.year() == today.year();
  const QString when = thisYear ? QString() : QStringLiteral(" in %1").arg(occasion.year());
  const QString distance = days > 0 ? QStringLiteral(" is %1 days away.") : QStringLiteral(" was %1 days ago.");
  return whose + when + distance.arg(qAbs(days));
}

// All but the second sentence.
Details WithoutYears(const QString& whose, const YearDay& yearDay, int shownYear, QDate today)
{
  Details details;
  details.shifted = yearDay.IsLeapDay() && shownYear % kLeapCycle != 0;
  details.occasion = DateIn(QString::number(shownYear), details.shifted ? FirstOfMarch() : yearDay);
  details.text = DaysSentence(whose, details.occasion, today) + QStringLiteral("\r\n");
  return details;
}

QString Years(int years)
{
  switch (years) {
    case 0:
      return QStringLiteral("less than 1 year");
    case 1:
      return QStringLiteral("1 year");
    default:
      return QStringLiteral("%1 years").arg(years);
  }
}

QString Subject(const Occasions::Birthday& birthday)
{
  if (birthday.gender == QLatin1String("Male")) {
    return QStringLiteral("He");
  }
  return birthday.gender == QLatin1String("Female") ? QStringLiteral("She") : birthday.firstName;
}

QString AgeSentence(const Occasions::Birthday& birthday, const YearDay& birthDay, QDate today)
{
  const QString year = birthday.year.toString();
  if (year.isEmpty()) {
    return {};
  }
  const QDate birth = DateIn(year, birthDay);
  return Subject(birthday) + QStringLiteral(" was born in ") + year + QStringLiteral(" and is currently ") +
         Years(WholeYears(birth, today)) + QStringLiteral(" old.");
}

QString MarriageSentence(const Occasions::Anniversary& anniversary, const YearDay& weddingDay, QDate today)
{
  const QString year = anniversary.year.toString();
  if (year.isEmpty()) {
    return {};
  }
  const QDate wedding = DateIn(year, weddingDay);
  const bool thisYear = wedding.year() == today.year();
  return QStringLiteral("Their wedding ") + (thisYear ? QStringLiteral("is") : QStringLiteral("was")) +
         QStringLiteral(" in ") + year + QStringLiteral(", and they've been married ") +
         Years(thisYear ? 0 : WholeYears(wedding, today)) + QLatin1Char('.');
}

QString Caption(const Occasions::Anniversary& anniversary)
{
  const QString start = QStringLiteral("Anniversary details for ") + anniversary.spouse1First;
  const QString end = anniversary.spouse2First + QLatin1Char(' ') + anniversary.spouse2Last;
  const QString link = QStringLiteral(" and ");
  return anniversary.spouse1Last == anniversary.spouse2Last
             ? start + link + end + QStringLiteral("...")
             : start + QLatin1Char(' ') + anniversary.spouse1Last + link + end;
}

}

Details Of(const Occasions::Birthday& birthday, int shownYear, QDate today)
{
  const YearDay yearDay{birthday.month, birthday.date.toString()};
  Details details = WithoutYears(birthday.firstName + QStringLiteral("'s birthday"), yearDay, shownYear, today);
  details.caption = QStringLiteral("Birthday details for ") + birthday.firstName + QStringLiteral("...");
  details.text += AgeSentence(birthday, yearDay.IsLeapDay() ? FirstOfMarch() : yearDay, today);
  return details;
}

Details Of(const Occasions::Anniversary& anniversary, int shownYear, QDate today)
{
  const YearDay yearDay{anniversary.month, anniversary.date.toString()};
  const QString couple = anniversary.spouse1First + QStringLiteral(" and ") + anniversary.spouse2First;
  Details details = WithoutYears(couple + QStringLiteral("'s anniversary"), yearDay, shownYear, today);
  details.caption = Caption(anniversary);
  details.text += MarriageSentence(anniversary, details.shifted ? FirstOfMarch() : yearDay, today);
  return details;
}

int WholeYears(QDate event, QDate to)
{
  const int years = to.year() - event.year();
  return DateSerial(to.year(), event.month(), event.day()) > to ? years - 1 : years;
}

int YearsSince(const QString& month, const QString& day, const QString& year, QDate today)
{
  const YearDay yearDay{month, day};
  return WholeYears(DateIn(year, yearDay.IsLeapDay() ? FirstOfMarch() : yearDay), today);
}

}
