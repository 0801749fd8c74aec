// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/DaysToGo.h"

#include "platform/RuntimeError.h"
#include "support/ErrorOf.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

QVariant Text(const char* text)
{
  return text == nullptr ? QVariant() : QVariant(QString::fromUtf8(text));
}

std::optional<int> Yearly(QDate today, const char* month, const char* day)
{
  return DaysToGo(today).ToYearly(Text(month), Text(day));
}

}

TEST(DaysToGo, TwentyNinthOfFebruaryIsTheFirstOfMarchInACommonYear)
{
  EXPECT_EQ(Yearly(QDate(2026, 3, 1), "February", "29"), 0);
  EXPECT_EQ(Yearly(QDate(2026, 2, 28), "February", "29"), 1);
  EXPECT_EQ(Yearly(QDate(2026, 2, 26), "February", "29"), 3);
  EXPECT_EQ(Yearly(QDate(2028, 2, 28), "February", "29"), 1);
  EXPECT_EQ(Yearly(QDate(2028, 2, 29), "February", "29"), 0);
  EXPECT_EQ(Yearly(QDate(2028, 3, 1), "February", "29"), -1);
}

TEST(DaysToGo, OnlyDivisibilityByFourMakesALeapYear)
{
  EXPECT_EQ(Yearly(QDate(1900, 2, 28), "February", "29"), 1);
  EXPECT_EQ(Yearly(QDate(1900, 3, 1), "February", "29"), 0);
}

TEST(DaysToGo, DecemberSeesJanuaryAndNoOtherMonthOfNextYear)
{
  EXPECT_EQ(Yearly(QDate(2026, 12, 31), "January", "1"), 1);
  EXPECT_EQ(Yearly(QDate(2027, 1, 1), "January", "1"), 0);
  EXPECT_EQ(Yearly(QDate(2027, 1, 2), "January", "1"), -1);
  EXPECT_EQ(Yearly(QDate(2026, 12, 15), "January", "10"), 26);
  EXPECT_EQ(Yearly(QDate(2026, 11, 30), "January", "1"), -333);
  EXPECT_EQ(Yearly(QDate(2026, 12, 31), "February", "1"), -333);
  EXPECT_EQ(Yearly(QDate(2026, 12, 31), "December", "30"), -1);
}

TEST(DaysToGo, CountsEveryDayOfAYearForEveryBirthday)
{
  static const char* const months[] = {"January", "February", "March",     "April",   "May",      "June",
                                       "July",    "August",   "September", "October", "November", "December"};
  for (const int year : {2027, 2028}) {
    for (QDate today(year, 1, 1); today.year() == year; today = today.addDays(1)) {
      for (QDate birth(2024, 1, 1); birth.year() == 2024; birth = birth.addDays(5)) {
        const bool moved = birth.month() == 2 && birth.day() == 29 && year % 4 != 0;
        QDate expected = moved ? QDate(year, 3, 1) : QDate(year, birth.month(), birth.day());
        if (today.month() == 12 && birth.month() == 1) {
          expected = QDate(year + 1, 1, birth.day());
        }
        EXPECT_EQ(Yearly(today, months[birth.month() - 1], QByteArray::number(birth.day()).constData()),
                  static_cast<int>(today.daysTo(expected)));
      }
    }
  }
}

TEST(DaysToGo, ADayPastTheEndOfItsMonthRunsOn)
{
  EXPECT_EQ(Yearly(QDate(2026, 4, 30), "April", "31"), 1);
  EXPECT_EQ(Yearly(QDate(2026, 4, 30), "April", "0"), -30);
}

TEST(DaysToGo, UnknownMonthOrDayIsPassedOver)
{
  const QDate today(2026, 5, 5);
  EXPECT_FALSE(Yearly(today, nullptr, "5"));
  EXPECT_FALSE(Yearly(today, "May", nullptr));
  EXPECT_FALSE(Yearly(today, "", "5"));
  EXPECT_FALSE(Yearly(today, "May", ""));
  EXPECT_FALSE(DaysToGo(today).ToEvent(Text("May"), QVariant()));
  EXPECT_FALSE(DaysToGo(today).ToEvent(QVariant(), QDate(2026, 5, 5)));
  EXPECT_FALSE(DaysToGo(today).ToEvent(Text(""), QDate(2026, 5, 5)));
}

TEST(DaysToGo, AnOddMonthTakesThatOfTheRowBefore)
{
  DaysToGo days(QDate(2026, 5, 5));
  EXPECT_EQ(days.ToYearly(Text("may"), Text("6")), -150) << "month 0 is the December before";
  EXPECT_EQ(days.ToYearly(Text("May"), Text("7")), 2);
  EXPECT_EQ(days.ToYearly(QVariant(), Text("8")), std::nullopt);
  EXPECT_EQ(days.ToYearly(Text("Mai"), Text("9")), 4);
}

TEST(DaysToGo, ADayThatIsNoNumberFails)
{
  const QDate today(2026, 5, 5);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(Yearly(today, "May", "fifth")); }), 13);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(Yearly(today, "May", "5th")); }), 13);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(Yearly(today, "May", " ")); }), 13);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(DaysToGo(today).ToEvent(Text("May"), Text("soon"))); }), 13);
}

TEST(DaysToGo, AnEventHasItsOwnYearAndDoesNotRecur)
{
  DaysToGo days(QDate(2026, 12, 31));
  EXPECT_EQ(days.ToEvent(Text("January"), QDate(2027, 1, 2)), 2);
  EXPECT_EQ(days.ToEvent(Text("January"), QDate(2026, 1, 2)), -363);
  EXPECT_EQ(days.ToEvent(Text("December"), QDate(2026, 12, 31)), 0);
  EXPECT_EQ(days.ToEvent(Text("December"), QDate(2026, 12, 30)), -1);
}

TEST(DaysToGo, AnEventOnTheLastOfFebruaryStaysThere)
{
  EXPECT_EQ(DaysToGo(QDate(2028, 2, 28)).ToEvent(Text("February"), QDate(2028, 2, 29)), 1);
}
