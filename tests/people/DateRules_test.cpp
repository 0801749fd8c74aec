// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "people/DateRules.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

const QDate kToday(2026, 5, 5);
const char* const kNotYet = "That date has not yet occurred. Please try again.";
const char* const kMonths[] = {"January", "February", "March",     "April",   "May",      "June",
                               "July",    "August",   "September", "October", "November", "December"};

struct Case
{
  const char* month;
  const char* day;
  const char* year;
  std::string message;
};

std::string Refused(const char* month, const QString& day, const QString& year, QDate today = kToday)
{
  return RefuseDate({month, day, year}, today).toStdString();
}

std::string Refused(QDate date, QDate today)
{
  return Refused(kMonths[date.month() - 1], QString::number(date.day()), QString::number(date.year()), today);
}

void Check(const std::vector<Case>& cases, QDate today = kToday)
{
  for (const auto& [month, day, year, message] : cases) {
    EXPECT_EQ(Refused(month, day, year, today), message) << '"' << month << "\" \"" << day << "\" \"" << year << '"';
  }
}

std::string NotValid(const std::string& text)
{
  return text + " is not valid. Please try again.";
}

std::string NoDate(const std::string& text)
{
  return text + " is not a valid date. Please try again.";
}

std::string Invalid(const std::string& text)
{
  return text + " is an invalid value. Please try again.";
}

}

TEST(DateRules, YearsOfADateAreThoseOfTheProgram)
{
  EXPECT_EQ(kFirstYear, 1900);
  EXPECT_EQ(kLastYear, 2050);
}

TEST(DateRules, EveryPartMayBeLeftOpen)
{
  Check({
      {"", "", "", ""},
      {"May", "6", "", ""},
      {"December", "31", "", ""},
      {"May", "", "", ""},
      {"December", "", "", ""},
      {"", "31", "", ""},
      {"", "1", "", ""},
      {"", "", "1900", ""},
      {"", "", "2026", ""},
      {"", "", "2027", kNotYet},
      {"", "", "2050", kNotYet},
      {"May", "", "2026", ""},
      {"January", "", "2026", ""},
      {"June", "", "2026", kNotYet},
      {"December", "", "2026", kNotYet},
      {"June", "", "2025", ""},
      {"January", "", "2027", kNotYet},
      {"May", "", "2027", kNotYet},
      {"", "31", "2026", ""},
      {"", "1", "2026", ""},
      {"", "1", "2027", kNotYet},
      {"", "31", "2050", kNotYet},
      {"May", "5", "2026", ""},
      {"May", "6", "2026", kNotYet},
      {"May", "4", "2026", ""},
  });
}

TEST(DateRules, MonthsAreComparedExactly)
{
  for (const char* month :
       {"Januar", "january", "JANUARY", " January", "January ", "Jan", "1", " ", "Smarch", "0", "%1"}) {
    EXPECT_EQ(Refused(month, "", ""), NotValid(month));
    EXPECT_EQ(Refused(month, "5", "1990"), NotValid(month));
  }
}

TEST(DateRules, DaysThatAMonthNeverHasAreRefused)
{
  for (const char* month : kMonths) {
    const QString name(month);
    const bool isFebruary = name == "February";
    const bool isShort = name == "April" || name == "June" || name == "September" || name == "November";
    for (int day = 1; day <= 31; ++day) {
      const bool refused = (isFebruary && day >= 30) || (isShort && day == 31);
      const QString text = QString::number(day);
      const std::string message = refused ? NotValid(month + (" " + text.toStdString())) : std::string();
      for (const char* year : {"", "1900", "2000", "2025"}) {
        if (!isFebruary || day != 29 || *year == '\0') {
          EXPECT_EQ(Refused(month, text, year), message) << month << day << ' ' << year;
        }
      }
    }
  }
}

TEST(DateRules, The29thOfFebruaryIsThereEveryFourthYear)
{
  Check({
      {"February", "29", "", ""},
      {"February", "29", "1900", ""},
      {"February", "29", "1904", ""},
      {"February", "29", "2000", ""},
      {"February", "29", "2024", ""},
      {"February", "29", "1999", NoDate("February 29, 1999")},
      {"February", "29", "1901", NoDate("February 29, 1901")},
      {"February", "29", "2025", NoDate("February 29, 2025")},
      {"February", "29", "2050", NoDate("February 29, 2050")},
      {"February", "29", "2048", kNotYet},
      {"February", "29", "19", NoDate("February 29, 19")},
      {"February", "29", "1", NoDate("February 29, 1")},
      {"February", "29", "20", Invalid("20")},
      {"February", "29", "0", Invalid("0")},
      {"February", "29", "-3", NoDate("February 29, -3")},
      {"February", "29", "199x", Invalid("199x")},
      {"February", "28", "1999", ""},
  });
}

TEST(DateRules, DaysAndYearsAreNumbersInTheirRange)
{
  Check({
      {"May", "x", "", Invalid("x")},
      {"May", " ", "", Invalid(" ")},
      {"May", "%1", "%2", Invalid("%1")},
      {"", "", "%1", Invalid("%1")},
      {"May", "5th", "", Invalid("5th")},
      {"", "x", "", Invalid("x")},
      {"May", "0", "", Invalid("0")},
      {"May", "-1", "", Invalid("-1")},
      {"May", "32", "", Invalid("32")},
      {"", "99", "", Invalid("99")},
      {"", "", "x", Invalid("x")},
      {"", "", " ", Invalid(" ")},
      {"", "", "19 90", Invalid("19 90")},
      {"", "", "0", Invalid("0")},
      {"", "", "-1990", Invalid("-1990")},
      {"", "", "19", Invalid("19")},
      {"May", "5", "199", Invalid("199")},
      {"May", "5", "1899", Invalid("1899")},
      {"May", "5", "1900", ""},
      {"May", "5", "2050", kNotYet},
      {"May", "5", "2051", Invalid("2051")},
      {"", "", "2051", Invalid("2051")},
      {"", "", "9999", Invalid("9999")},
  });
}

TEST(DateRules, NumbersMayBeWrittenInOtherWays)
{
  Check({
      {"May", "1e1", "", ""},
      {"May", "1e2", "", Invalid("1e2")},
      {"May", "5.5", "", ""},
      {"May", " 7 ", "", ""},
      {"May", "+7", "", ""},
      {"May", "007", "", ""},
      {"May", "31.4", "", ""},
      {"May", "31.5", "", Invalid("31.5")},
      {"May", "0.5", "", Invalid("0.5")},
      {"May", "0.6", "", ""},
      {"", "", "1.99e3", ""},
      {"", "", " 1990 ", ""},
      {"", "", "1899.5", ""},
      {"", "", "1899.4", Invalid("1899.4")},
      {"", "", "2050.5", kNotYet},
      {"", "", "2050.6", Invalid("2050.6")},
      {"May", "5.4", "2026", ""},
      {"May", "5.6", "2026", kNotYet},
      {"May", " 5 ", " 2026 ", ""},
      {"May", "1e1", "2026", kNotYet},
      {"April", " 31 ", "", ""},
      {"February", "29.0", "1999", ""},
      {"February", "29", "1998.5", NoDate("February 29, 1998.5")},
  });
}

TEST(DateRules, NumbersThatAreTooLargeArePassedOver)
{
  Check({
      {"May", "99999999999", "", ""},
      {"May", "2147483647", "", Invalid("2147483647")},
      {"May", "2147483648", "", ""},
      {"", "", "99999999999", ""},
      {"", "", "2147483647", Invalid("2147483647")},
      {"February", "29", "99999999999", ""},
      {"June", "99999999999", "2025", ""},
      {"May", "99999999999", "2026", ""},
      {"June", "99999999999", "2026", kNotYet},
      {"May", "99999999999", "2027", kNotYet},
      {"June", "5", "99999999999", ""},
  });
}

TEST(DateRules, TheFirstThatIsBrokenIsTold)
{
  Check({
      {"Smarch", "31", "1999", NotValid("Smarch")},
      {"Smarch", "x", "x", NotValid("Smarch")},
      {"February", "30", "x", NotValid("February 30")},
      {"April", "31", "3000", NotValid("April 31")},
      {"June", "31", "2026", NotValid("June 31")},
      {"February", "29", "1899", NoDate("February 29, 1899")},
      {"May", "x", "y", Invalid("x")},
      {"May", "32", "y", Invalid("y")},
      {"May", "32", "1800", Invalid("32")},
      {"December", "32", "2027", Invalid("32")},
      {"December", "31", "2051", Invalid("2051")},
  });
}

TEST(DateRules, TodayIsAcceptedAndTomorrowIsNot)
{
  for (QDate today(2023, 12, 30); today < QDate(2026, 1, 3); today = today.addDays(1)) {
    ASSERT_EQ(Refused(today, today), "") << today.toString().toStdString();
    ASSERT_EQ(Refused(today.addDays(1), today), kNotYet) << today.toString().toStdString();
    ASSERT_EQ(Refused(today.addDays(-1), today), "") << today.toString().toStdString();
  }
}

TEST(DateRules, EveryDayThatIsPastIsAccepted)
{
  for (QDate day(2024, 1, 1); day < QDate(2026, 1, 1); day = day.addDays(1)) {
    ASSERT_EQ(Refused(day, kToday), "") << day.toString().toStdString();
  }
  for (QDate day(1900, 1, 1); day < QDate(1901, 1, 1); day = day.addDays(1)) {
    ASSERT_EQ(Refused(day, QDate(2050, 12, 31)), "") << day.toString().toStdString();
  }
}

TEST(DateRules, EveryDayThatIsToComeIsRefused)
{
  for (QDate day(2026, 5, 6); day <= QDate(2028, 12, 31); day = day.addDays(1)) {
    ASSERT_EQ(Refused(day, kToday), kNotYet) << day.toString().toStdString();
  }
}

TEST(DateRules, TheYearTurns)
{
  Check({{"December", "31", "2026", ""},
         {"January", "1", "2027", kNotYet},
         {"January", "", "2027", kNotYet},
         {"December", "", "2026", ""},
         {"", "31", "2026", ""}},
        QDate(2026, 12, 31));
  Check({{"December", "31", "2026", ""},
         {"January", "1", "2027", ""},
         {"January", "2", "2027", kNotYet},
         {"January", "", "2027", ""},
         {"February", "", "2027", kNotYet},
         {"", "31", "2027", ""}},
        QDate(2027, 1, 1));
}

TEST(DateRules, DaysBeyondTheMonthCarryOver)
{
  Check({{"April", "30.6", "2026", kNotYet}, {"April", "30.4", "2026", ""}}, QDate(2026, 4, 30));
  Check({{"February", "29", "1900", kNotYet}}, QDate(1900, 2, 28));
  Check({{"February", "29", "1900", ""}}, QDate(1900, 3, 1));
}

TEST(DateRules, TheLastYearIsOneToo)
{
  Check({{"December", "31", "2050", ""}, {"", "", "2050", ""}, {"", "", "2051", Invalid("2051")}}, QDate(2050, 12, 31));
}
