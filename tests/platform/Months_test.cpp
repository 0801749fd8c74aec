// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Months.h"
#include "platform/RuntimeError.h"
#include "support/ErrorOf.h"

#include <gtest/gtest.h>

#include <limits>

TEST(Months, AreTwelveInTheirOrder)
{
  const char* const kNames[] = {"January", "February", "March",     "April",   "May",      "June",
                                "July",    "August",   "September", "October", "November", "December"};
  int number = 0;
  for (const char* name : kNames) {
    EXPECT_EQ(kMonthNames.at(number), QLatin1StringView(name));
    EXPECT_EQ(MonthNumber(QString(name)), ++number) << name;
  }
}

TEST(Months, OtherTextsAreNone)
{
  for (const char* text :
       {"", " ", "january", "JANUARY", "Jan", "Januar", "January ", " January", "Januaryy", "1", "0", "may", "Mai"}) {
    EXPECT_EQ(MonthNumber(QString(text)), 0) << '"' << text << '"';
  }
}

TEST(DateSerial, OfADayIsThatDay)
{
  for (QDate day(1899, 12, 31); day < QDate(1905, 1, 2); day = day.addDays(1)) {
    ASSERT_EQ(DateSerial(day.year(), day.month(), day.day()), day);
  }
  for (QDate day(1999, 12, 31); day < QDate(2001, 1, 2); day = day.addDays(1)) {
    ASSERT_EQ(DateSerial(day.year(), day.month(), day.day()), day);
  }
}

TEST(DateSerial, CarriesWhatIsTooMany)
{
  const struct
  {
    int year;
    int month;
    int day;
    QDate date;
  } kCases[] = {
      {2025, 2, 29, {2025, 3, 1}},    {2024, 2, 29, {2024, 2, 29}},   {2024, 2, 30, {2024, 3, 1}},
      {1900, 2, 29, {1900, 3, 1}},    {2000, 2, 29, {2000, 2, 29}},   {2026, 4, 31, {2026, 5, 1}},
      {2026, 12, 32, {2027, 1, 1}},   {2026, 1, 0, {2025, 12, 31}},   {2026, 3, 0, {2026, 2, 28}},
      {2026, 3, -1, {2026, 2, 27}},   {2026, 1, 366, {2027, 1, 1}},   {2026, 0, 1, {2025, 12, 1}},
      {2026, 0, 31, {2025, 12, 31}},  {2026, 0, 32, {2026, 1, 1}},    {2026, 0, 0, {2025, 11, 30}},
      {2026, -1, 30, {2025, 11, 30}}, {2026, -11, 1, {2025, 1, 1}},   {2026, -12, 1, {2024, 12, 1}},
      {2026, 13, 1, {2027, 1, 1}},    {2026, 24, 31, {2027, 12, 31}}, {2026, 25, 1, {2028, 1, 1}},
      {1900, 0, 31, {1899, 12, 31}},  {2023, 14, 29, {2024, 2, 29}},
  };
  for (const auto& [year, month, day, date] : kCases) {
    EXPECT_EQ(DateSerial(year, month, day), date) << year << '-' << month << '-' << day;
  }
}

TEST(DateSerial, WithoutSuchADateFails)
{
  constexpr int kMost = std::numeric_limits<int>::max();
  EXPECT_EQ(ErrorOf([] { static_cast<void>(DateSerial(kMost, 13, 1)); }), ErrorNumber::kOverflow);
  EXPECT_EQ(ErrorOf([] { static_cast<void>(DateSerial(kMost, kMost, kMost)); }), ErrorNumber::kOverflow);
}

TEST(DateSerial, FarBackFailsAsWell)
{
  constexpr int kLeast = std::numeric_limits<int>::min();
  EXPECT_EQ(ErrorOf([] { static_cast<void>(DateSerial(kLeast, 0, 1)); }), ErrorNumber::kOverflow);
  EXPECT_EQ(ErrorOf([] { static_cast<void>(DateSerial(kLeast, kLeast, kLeast)); }), ErrorNumber::kOverflow);
}
