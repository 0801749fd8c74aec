// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "occasions/OccasionLines.h"
#include "platform/RuntimeError.h"

#include "support/ErrorOf.h"

#include <gtest/gtest.h>

namespace {

const QDate kToday(2026, 11, 21);

Occasions::Birthday BirthdayOf(const QString& month, const QVariant& day, const QVariant& year)
{
  Occasions::Birthday birthday;
  birthday.firstName = "Ann";
  birthday.lastName = "Lee";
  birthday.month = month;
  birthday.date = day;
  birthday.year = year;
  return birthday;
}

Occasions::Anniversary WeddingOf(const QString& month, const QVariant& day, const QVariant& year)
{
  Occasions::Anniversary wedding;
  wedding.spouse1First = "Ann";
  wedding.spouse1Last = "Lee";
  wedding.spouse2First = "Bob";
  wedding.spouse2Last = "Roe";
  wedding.month = month;
  wedding.date = day;
  wedding.year = year;
  return wedding;
}

struct Case
{
  const char* month;
  QVariant day;
  QVariant year;
  bool ticked;
  const char* birthday;
  const char* wedding;
};

const Case kCases[] = {
    {"May", "9", "1962", true, "May 9, 1962 - Ann Lee, 64 years old", "May 9, 1962 - Ann and Bob, married 64 years"},
    {"May", "9", "1962", false, "May 9, 1962 - Ann Lee", "May 9, 1962 - Ann and Bob"},
    {"November", "21", "2026", true, "November 21, 2026 - Ann Lee, less than a year old",
     "November 21, 2026 - Ann and Bob, married less than a year"},
    {"November", "22", "2025", true, "November 22, 2025 - Ann Lee, less than a year old",
     "November 22, 2025 - Ann and Bob, married less than a year"},
    {"November", "21", "2025", true, "November 21, 2025 - Ann Lee, 1 year old",
     "November 21, 2025 - Ann and Bob, married 1 year"},
    {"November", "21", "2024", true, "November 21, 2024 - Ann Lee, 2 years old",
     "November 21, 2024 - Ann and Bob, married 2 years"},
    {"November", "22", "2024", true, "November 22, 2024 - Ann Lee, 1 year old",
     "November 22, 2024 - Ann and Bob, married 1 year"},
    {"May", "9", QVariant(), true, "May 9 - Ann Lee", "May 9 - Ann and Bob"},
    {"May", QVariant(), "1962", true, "May  - Ann Lee", "May  - Ann and Bob"},
    {"May", QVariant(), QVariant(), true, "May  - Ann Lee", "May  - Ann and Bob"},
    {"May", QVariant(), QVariant(), false, "May  - Ann Lee", "May  - Ann and Bob"},
};

TEST(OccasionLines, OfEveryCombinationOfParts)
{
  for (const Case& line : kCases) {
    EXPECT_EQ(OccasionLines::Of(BirthdayOf(line.month, line.day, line.year), line.ticked, kToday).toStdString(),
              line.birthday);
    EXPECT_EQ(OccasionLines::Of(WeddingOf(line.month, line.day, line.year), line.ticked, kToday).toStdString(),
              line.wedding);
  }
}

TEST(OccasionLines, OfADateAheadHaveNoTail)
{
  EXPECT_EQ(OccasionLines::Of(BirthdayOf("May", "9", "2030"), true, kToday).toStdString(), "May 9, 2030 - Ann Lee");
  EXPECT_EQ(OccasionLines::Of(WeddingOf("May", "9", "2030"), true, kToday).toStdString(), "May 9, 2030 - Ann and Bob");
}

TEST(OccasionLines, TheLeapDayIsReachedOnTheFirstOfMarchInEveryYear)
{
  const auto line = [](QDate today) {
    return OccasionLines::Of(BirthdayOf("February", "29", "2000"), true, today).toStdString();
  };
  EXPECT_EQ(line(QDate(2027, 2, 28)), "February 29, 2000 - Ann Lee, 26 years old");
  EXPECT_EQ(line(QDate(2027, 3, 1)), "February 29, 2000 - Ann Lee, 27 years old");
  EXPECT_EQ(line(QDate(2028, 2, 29)), "February 29, 2000 - Ann Lee, 27 years old");
  EXPECT_EQ(line(QDate(2028, 3, 1)), "February 29, 2000 - Ann Lee, 28 years old");
}

TEST(OccasionLines, ADateThatIsNoneFailsWithAndWithoutTheAge)
{
  for (const bool ticked : {true, false}) {
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(OccasionLines::Of(BirthdayOf("May", "40", "1962"), ticked, kToday)); }),
              ErrorNumber::kTypeMismatch);
  }
}

}
