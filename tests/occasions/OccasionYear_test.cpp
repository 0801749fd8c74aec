// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "occasions/OccasionSentences.h"

#include <array>
#include <gtest/gtest.h>
#include <tuple>

// Every day of a year against a count of days of the test's own.
namespace {

struct Day
{
  int year;
  int month;
  int day;
};

constexpr std::array<const char*, 12> kNames = {"January", "February", "March",     "April",   "May",      "June",
                                                "July",    "August",   "September", "October", "November", "December"};
constexpr std::array<int, 12> kLengths = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
// The years of birth and wedding, a leap year for 29 February only.
constexpr int kEventYear = 1973;
constexpr int kLeapEventYear = 1972;

bool IsLeap(int year)
{
  return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

int Count(const Day& date)
{
  const int before = date.year - 1;
  int days = before * 365 + before / 4 - before / 100 + before / 400 + date.day;
  for (int month = 1; month < date.month; ++month) {
    days += month == 2 && !IsLeap(date.year) ? 28 : kLengths.at(static_cast<std::size_t>(month - 1));
  }
  return days;
}

std::string Distance(int days, const std::string& in)
{
  const std::string count = std::to_string(days < 0 ? -days : days);
  if (days == 0 || days == 1) {
    return days == 0 ? " is today!" : " is tomorrow!";
  }
  if (days == -1) {
    return " was yesterday.";
  }
  return days > 0 ? in + " is " + count + " days away." : in + " was " + count + " days ago.";
}

// For years that are more than one.
std::string Years(const Day& event, const Day& today)
{
  const bool reached = std::tie(event.month, event.day) <= std::tie(today.month, today.day);
  return std::to_string(today.year - event.year - (reached ? 0 : 1)) + " years";
}

// Compares all that is told about one day of the year.
void Compare(const Day& date, const Day& today)
{
  SCOPED_TRACE(testing::Message() << date.year << '-' << date.month << '-' << date.day << " on " << today.year << '-'
                                  << today.month << '-' << today.day);
  const bool leapDay = date.month == 2 && date.day == 29;
  const bool shifted = leapDay && !IsLeap(date.year);
  const Day march{date.year, 3, 1};
  const Day occasion = shifted ? march : date;
  const std::string rest =
      Distance(Count(occasion) - Count(today), date.year == today.year ? "" : " in " + std::to_string(date.year)) +
      "\r\n";
  const int year = leapDay ? kLeapEventYear : kEventYear;
  const Day birth = leapDay ? Day{year, 3, 1} : Day{year, date.month, date.day};
  const Day wedding = shifted ? birth : Day{year, date.month, date.day};
  const QString month = kNames.at(static_cast<std::size_t>(date.month - 1));
  const QString day = QString::number(date.day);
  const QDate now(today.year, today.month, today.day);

  const auto person = OccasionSentences::Of(
      Occasions::Birthday{1, "Ann", "Lee", "Female", month, day, QString::number(year)}, date.year, now);
  EXPECT_EQ(person.text.toStdString(), "Ann's birthday" + rest + "She was born in " + std::to_string(year) +
                                           " and is currently " + Years(birth, today) + " old.");
  const auto couple = OccasionSentences::Of(
      Occasions::Anniversary{1, 2, 3, "Ann", "Lee", "Bob", "Lee", month, day, QString::number(year)}, date.year, now);
  EXPECT_EQ(couple.text.toStdString(), "Ann and Bob's anniversary" + rest + "Their wedding was in " +
                                           std::to_string(year) + ", and they've been married " +
                                           Years(wedding, today) + ".");
  for (const OccasionSentences::Details& details : {person, couple}) {
    EXPECT_EQ(details.shifted, shifted);
    EXPECT_EQ(details.occasion, QDate(occasion.year, occasion.month, occasion.day));
  }
}

void CompareYear(int shownYear, const Day& today)
{
  for (int month = 1; month <= 12; ++month) {
    for (int day = 1; day <= kLengths.at(static_cast<std::size_t>(month - 1)); ++day) {
      Compare({shownYear, month, day}, today);
    }
  }
}

}

class OccasionYear : public testing::TestWithParam<Day>
{
};

TEST_P(OccasionYear, Leap)
{
  CompareYear(2000, GetParam());
  CompareYear(2004, GetParam());
}

TEST_P(OccasionYear, Common)
{
  CompareYear(2001, GetParam());
  CompareYear(2003, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Todays, OccasionYear,
                         testing::Values(Day{2003, 1, 1}, Day{2003, 2, 28}, Day{2003, 3, 1}, Day{2003, 12, 31},
                                         Day{2004, 1, 1}, Day{2004, 2, 28}, Day{2004, 2, 29}, Day{2004, 3, 1},
                                         Day{2004, 7, 9}, Day{2004, 12, 31}, Day{2002, 12, 15}));
