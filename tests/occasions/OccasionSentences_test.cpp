// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "occasions/OccasionSentences.h"

#include "platform/RuntimeError.h"
#include "support/ErrorOf.h"

#include <gtest/gtest.h>

using OccasionSentences::Details;
using OccasionSentences::WholeYears;

namespace {

const QDate kToday(2002, 12, 15);

Occasions::Birthday Person(const QString& month, const QVariant& day, const QVariant& year = {},
                           const QString& gender = {})
{
  return {1, "Ann", "Lee", gender, month, day, year};
}

Occasions::Anniversary Couple(const QString& month, const QVariant& day, const QVariant& year = {},
                              const QString& spouse2Last = "Lee")
{
  return {1, 2, 3, "Ann", "Lee", "Bob", spouse2Last, month, day, year};
}

template <typename Row>
QStringList Sentences(const Row& row, int shownYear, QDate today = kToday)
{
  return OccasionSentences::Of(row, shownYear, today).text.split("\r\n");
}

template <typename Row>
std::string First(const Row& row, int shownYear, QDate today = kToday)
{
  return Sentences(row, shownYear, today).at(0).toStdString();
}

template <typename Row>
std::string Second(const Row& row, int shownYear, QDate today = kToday)
{
  return Sentences(row, shownYear, today).at(1).toStdString();
}

template <typename Row>
int ErrorFor(const Row& row, int shownYear, QDate today = kToday)
{
  return ErrorOf([&] { static_cast<void>(OccasionSentences::Of(row, shownYear, today)); });
}

template <typename Row>
QDate OccasionOf(const Row& row, int shownYear)
{
  return OccasionSentences::Of(row, shownYear, kToday).occasion;
}

}

TEST(OccasionSentences, JanuaryBirthdaySeenInDecember)
{
  const Occasions::Birthday person = Person("January", "10", "1970", "Female");
  EXPECT_EQ(OccasionSentences::Of(person, 2002, kToday).text,
            "Ann's birthday was 339 days ago.\r\nShe was born in 1970 and is currently 32 years old.");
  EXPECT_EQ(OccasionSentences::Of(person, 2003, kToday).text,
            "Ann's birthday in 2003 is 26 days away.\r\nShe was born in 1970 and is currently 32 years old.");
}

TEST(OccasionSentences, OneOfEveryDistance)
{
  const struct
  {
    const char* month;
    const char* day;
    int shownYear;
    const char* rest;
  } kCases[] = {
      {"December", "15", 2002, " is today!"},
      {"December", "16", 2002, " is tomorrow!"},
      {"December", "14", 2002, " was yesterday."},
      {"December", "17", 2002, " is 2 days away."},
      {"December", "31", 2002, " is 16 days away."},
      {"December", "13", 2002, " was 2 days ago."},
      {"January", "1", 2002, " was 348 days ago."},
      {"January", "1", 2003, " in 2003 is 17 days away."},
      {"December", "31", 2001, " in 2001 was 349 days ago."},
      {"December", "15", 2003, " in 2003 is 365 days away."},
      {"December", "15", 1900, " in 1900 was 37255 days ago."},
      {"December", "15", 2050, " in 2050 is 17532 days away."},
  };
  for (const auto& one : kCases) {
    const std::string rest = one.rest;
    EXPECT_EQ(First(Person(one.month, one.day), one.shownYear), "Ann's birthday" + rest);
    EXPECT_EQ(First(Couple(one.month, one.day), one.shownYear), "Ann and Bob's anniversary" + rest);
  }
}

TEST(OccasionSentences, TomorrowAndYesterdayDoNotLookAtTheYear)
{
  const QDate lastDay(2002, 12, 31);
  const QDate firstDay(2003, 1, 1);
  EXPECT_EQ(First(Person("January", "1"), 2003, lastDay), "Ann's birthday is tomorrow!");
  EXPECT_EQ(First(Person("January", "2"), 2003, lastDay), "Ann's birthday in 2003 is 2 days away.");
  EXPECT_EQ(First(Person("December", "31"), 2002, firstDay), "Ann's birthday was yesterday.");
  EXPECT_EQ(First(Person("December", "30"), 2002, firstDay), "Ann's birthday in 2002 was 2 days ago.");
  EXPECT_EQ(First(Couple("January", "1"), 2003, lastDay), "Ann and Bob's anniversary is tomorrow!");
  EXPECT_EQ(First(Couple("December", "31"), 2002, firstDay), "Ann and Bob's anniversary was yesterday.");
}

TEST(OccasionSentences, NamesAreTakenAsTheyAre)
{
  const Occasions::Birthday person{1, "%1 %2", "Lee", {}, "December", "25", "1970"};
  EXPECT_EQ(OccasionSentences::Of(person, 2002, kToday).text,
            "%1 %2's birthday is 10 days away.\r\n%1 %2 was born in 1970 and is currently 31 years old.");
}

TEST(OccasionSentences, OfTheLeapDayCountToTheFirstOfMarch)
{
  const QDate today(2001, 2, 27);
  for (const int shownYear : {1901, 1999, 2001, 2002, 2003, 2005}) {
    EXPECT_EQ(OccasionOf(Person("February", "29"), shownYear), QDate(shownYear, 3, 1));
    EXPECT_EQ(OccasionOf(Couple("February", "29"), shownYear), QDate(shownYear, 3, 1));
    EXPECT_TRUE(OccasionSentences::Of(Person("February", "29"), shownYear, today).shifted);
    EXPECT_TRUE(OccasionSentences::Of(Couple("February", "29"), shownYear, today).shifted);
  }
  EXPECT_EQ(First(Person("February", "29"), 2001, today), "Ann's birthday is 2 days away.");
  EXPECT_EQ(First(Couple("February", "29"), 2001, QDate(2001, 2, 28)), "Ann and Bob's anniversary is tomorrow!");
  EXPECT_EQ(First(Couple("February", "29"), 2001, QDate(2001, 3, 1)), "Ann and Bob's anniversary is today!");
}

TEST(OccasionSentences, OfTheLeapDayCountToItInALeapYear)
{
  for (const int shownYear : {1904, 2000, 2004, 2048}) {
    EXPECT_EQ(OccasionOf(Person("February", "29"), shownYear), QDate(shownYear, 2, 29));
    EXPECT_EQ(OccasionOf(Couple("February", "29"), shownYear), QDate(shownYear, 2, 29));
    EXPECT_FALSE(OccasionSentences::Of(Person("February", "29"), shownYear, kToday).shifted);
    EXPECT_FALSE(OccasionSentences::Of(Couple("February", "29"), shownYear, kToday).shifted);
  }
  EXPECT_EQ(First(Person("February", "29"), 2004, QDate(2004, 2, 29)), "Ann's birthday is today!");
  EXPECT_EQ(First(Person("February", "29"), 2004, QDate(2004, 3, 1)), "Ann's birthday was yesterday.");
}

TEST(OccasionSentences, OfTheLeapDayFailInAFullCentury)
{
  for (const int shownYear : {1900, 2100}) {
    EXPECT_EQ(ErrorFor(Person("February", "29"), shownYear), ErrorNumber::kTypeMismatch);
    EXPECT_EQ(ErrorFor(Couple("February", "29"), shownYear), ErrorNumber::kTypeMismatch);
    EXPECT_EQ(OccasionOf(Person("February", "28"), shownYear), QDate(shownYear, 2, 28));
    EXPECT_EQ(OccasionOf(Couple("March", "1"), shownYear), QDate(shownYear, 3, 1));
  }
}

TEST(OccasionSentences, NoOtherDayIsShifted)
{
  for (const auto& [month, day] : {std::pair("February", "28"), {"March", "1"}, {"January", "29"}}) {
    EXPECT_FALSE(OccasionSentences::Of(Person(month, day), 2001, kToday).shifted);
    EXPECT_FALSE(OccasionSentences::Of(Couple(month, day), 2001, kToday).shifted);
  }
}

TEST(OccasionSentences, FailForADateThatIsNone)
{
  const std::pair<const char*, const char*> kCases[] = {
      {"April", "31"},  {"February", "30"}, {"February", " 29"}, {"January", "0"},   {"January", "32"},
      {"January", "x"}, {"January", "-1"},  {"January", "1.5"},  {"January", "100"}, {"January", ""},
      {"Januari", "1"}, {"", "1"},          {"13", "1"},
  };
  for (const auto& [month, day] : kCases) {
    EXPECT_EQ(ErrorFor(Person(month, day), 2001), ErrorNumber::kTypeMismatch) << month << ' ' << day;
    EXPECT_EQ(ErrorFor(Couple(month, day), 2001), ErrorNumber::kTypeMismatch) << month << ' ' << day;
  }
}

TEST(OccasionSentences, FailForAYearThatIsNone)
{
  for (const char* year : {"x", "0", "-1", "99", "0099", "12345", "19 70", "1970.5"}) {
    EXPECT_EQ(ErrorFor(Person("May", "9", year), 2001), ErrorNumber::kTypeMismatch) << year;
    EXPECT_EQ(ErrorFor(Couple("May", "9", year), 2001), ErrorNumber::kTypeMismatch) << year;
    EXPECT_EQ(ErrorFor(Person("February", "29", year), 2001), ErrorNumber::kTypeMismatch) << year;
  }
  EXPECT_EQ(ErrorFor(Person("May", "9", "1970"), 12345), ErrorNumber::kTypeMismatch);
}

TEST(OccasionSentences, BlanksAndZerosDoNotHinder)
{
  for (const char* day : {" 9", "9 ", "09"}) {
    EXPECT_EQ(OccasionOf(Person("May", day), 2001), QDate(2001, 5, 9)) << day;
    EXPECT_EQ(OccasionOf(Couple("May", day), 2001), QDate(2001, 5, 9)) << day;
  }
  EXPECT_EQ(Second(Person("May", "9", " 1970 ", "Male"), 2001), "He was born in  1970  and is currently 32 years old.");
}

TEST(OccasionSentences, WithoutAYearEndInTheLineBreak)
{
  for (const QVariant& year : {QVariant(), QVariant(""), QVariant(QString())}) {
    EXPECT_EQ(OccasionSentences::Of(Person("December", "15", year, "Male"), 2002, kToday).text,
              "Ann's birthday is today!\r\n");
    EXPECT_EQ(OccasionSentences::Of(Couple("December", "15", year), 2002, kToday).text,
              "Ann and Bob's anniversary is today!\r\n");
  }
}

TEST(OccasionSentences, CaptionOfABirthday)
{
  EXPECT_EQ(OccasionSentences::Of(Person("May", "9"), 2002, kToday).caption, "Birthday details for Ann...");
}

TEST(OccasionSentences, CaptionOfACouple)
{
  const auto caption = [](const QString& spouse2Last) {
    return OccasionSentences::Of(Couple("May", "9", {}, spouse2Last), 2002, kToday).caption.toStdString();
  };
  EXPECT_EQ(caption("Lee"), "Anniversary details for Ann and Bob Lee...");
  EXPECT_EQ(caption("Ray"), "Anniversary details for Ann Lee and Bob Ray");
  EXPECT_EQ(caption("lee"), "Anniversary details for Ann Lee and Bob lee");
  EXPECT_EQ(caption(""), "Anniversary details for Ann Lee and Bob ");
}

TEST(OccasionSentences, SubjectIsByTheGender)
{
  const std::pair<QString, const char*> kCases[] = {{"Male", "He"},     {"Female", "She"}, {"", "Ann"},
                                                    {QString(), "Ann"}, {"male", "Ann"},   {"Other", "Ann"}};
  for (const auto& [gender, subject] : kCases) {
    EXPECT_EQ(Second(Person("May", "9", "1970", gender), 2002),
              subject + std::string(" was born in 1970 and is currently 32 years old."));
  }
}

TEST(OccasionSentences, AgesOfPeople)
{
  const struct
  {
    const char* day;
    const char* year;
    const char* age;
  } kCases[] = {
      {"15", "2002", "less than 1 year"}, {"16", "2001", "less than 1 year"}, {"15", "2001", "1 year"},
      {"16", "2000", "1 year"},           {"15", "2000", "2 years"},          {"15", "1982", "20 years"},
      {"16", "1982", "19 years"},         {"14", "1982", "20 years"},         {"16", "2002", "-1 years"},
      {"15", "2003", "-1 years"},         {"16", "2003", "-2 years"},         {"15", "1900", "102 years"},
  };
  for (const auto& one : kCases) {
    const std::string expected = std::string("He was born in ") + one.year + " and is currently " + one.age + " old.";
    for (const int shownYear : {1950, 2002, 2050}) {
      EXPECT_EQ(Second(Person("December", one.day, one.year, "Male"), shownYear), expected);
    }
  }
}

TEST(OccasionSentences, YearsOfCouples)
{
  const struct
  {
    const char* day;
    const char* year;
    const char* sentence;
  } kCases[] = {
      {"14", "2002", "Their wedding is in 2002, and they've been married less than 1 year."},
      {"15", "2002", "Their wedding is in 2002, and they've been married less than 1 year."},
      {"16", "2002", "Their wedding is in 2002, and they've been married less than 1 year."},
      {"31", "2002", "Their wedding is in 2002, and they've been married less than 1 year."},
      {"16", "2001", "Their wedding was in 2001, and they've been married less than 1 year."},
      {"15", "2001", "Their wedding was in 2001, and they've been married 1 year."},
      {"16", "2000", "Their wedding was in 2000, and they've been married 1 year."},
      {"15", "2000", "Their wedding was in 2000, and they've been married 2 years."},
      {"15", "1952", "Their wedding was in 1952, and they've been married 50 years."},
      {"15", "2003", "Their wedding was in 2003, and they've been married -1 years."},
      {"16", "2003", "Their wedding was in 2003, and they've been married -2 years."},
  };
  for (const auto& one : kCases) {
    for (const int shownYear : {1950, 2002, 2050}) {
      EXPECT_EQ(Second(Couple("December", one.day, one.year), shownYear), one.sentence);
    }
  }
}

TEST(OccasionSentences, OfTheLeapDayPeopleAgeOnTheFirstOfMarch)
{
  const Occasions::Birthday person = Person("February", "29", "1980", "Male");
  const std::string start = "He was born in 1980 and is currently ";
  for (const int shownYear : {2003, 2004}) {
    EXPECT_EQ(Second(person, shownYear, QDate(2004, 2, 29)), start + "23 years old.");
    EXPECT_EQ(Second(person, shownYear, QDate(2004, 3, 1)), start + "24 years old.");
    EXPECT_EQ(Second(person, shownYear, QDate(2003, 2, 28)), start + "22 years old.");
    EXPECT_EQ(Second(person, shownYear, QDate(2003, 3, 1)), start + "23 years old.");
  }
}

TEST(OccasionSentences, OfTheLeapDayNeedNoLeapYearOfBirth)
{
  EXPECT_EQ(Second(Person("February", "29", "1981", "Male"), 2004),
            "He was born in 1981 and is currently 21 years old.");
}

TEST(OccasionSentences, OfTheLeapDayCouplesDependOnTheShownYear)
{
  const Occasions::Anniversary couple = Couple("February", "29", "1980");
  const std::string start = "Their wedding was in 1980, and they've been married ";
  const QDate leapDay(2004, 2, 29);
  EXPECT_EQ(Second(couple, 2004, leapDay), start + "24 years.");
  EXPECT_EQ(Second(couple, 2003, leapDay), start + "23 years.");
  for (const int shownYear : {2003, 2004}) {
    EXPECT_EQ(Second(couple, shownYear, QDate(2004, 2, 28)), start + "23 years.");
    EXPECT_EQ(Second(couple, shownYear, QDate(2004, 3, 1)), start + "24 years.");
    EXPECT_EQ(Second(couple, shownYear, QDate(2003, 2, 28)), start + "22 years.");
    EXPECT_EQ(Second(couple, shownYear, QDate(2003, 3, 1)), start + "23 years.");
  }
}

TEST(OccasionSentences, OfTheLeapDayCouplesOfACommonYearFailInALeapYear)
{
  const Occasions::Anniversary couple = Couple("February", "29", "1981");
  EXPECT_EQ(ErrorFor(couple, 2004), ErrorNumber::kTypeMismatch);
  EXPECT_EQ(Second(couple, 2003), "Their wedding was in 1981, and they've been married 21 years.");
}

TEST(OccasionSentencesYears, TurnOnTheDay)
{
  EXPECT_EQ(WholeYears(QDate(1982, 12, 15), kToday), 20);
  EXPECT_EQ(WholeYears(QDate(1982, 12, 16), kToday), 19);
  EXPECT_EQ(WholeYears(QDate(1982, 1, 31), QDate(2002, 1, 30)), 19);
  EXPECT_EQ(WholeYears(QDate(2001, 12, 31), QDate(2002, 1, 1)), 0);
  EXPECT_EQ(WholeYears(kToday, kToday), 0);
  EXPECT_EQ(WholeYears(QDate(2002, 12, 16), kToday), -1);
  EXPECT_EQ(WholeYears(QDate(2003, 12, 15), kToday), -1);
  EXPECT_EQ(WholeYears(QDate(2003, 12, 16), kToday), -2);
}

TEST(OccasionSentencesYears, CarryTheLeapDayOver)
{
  const QDate event(2000, 2, 29);
  EXPECT_EQ(WholeYears(event, QDate(2001, 2, 28)), 0);
  EXPECT_EQ(WholeYears(event, QDate(2001, 3, 1)), 1);
  EXPECT_EQ(WholeYears(event, QDate(2004, 2, 28)), 3);
  EXPECT_EQ(WholeYears(event, QDate(2004, 2, 29)), 4);
  EXPECT_EQ(WholeYears(event, QDate(2100, 2, 28)), 99);
  EXPECT_EQ(WholeYears(event, QDate(2100, 3, 1)), 100);
  EXPECT_EQ(WholeYears(QDate(1970, 2, 28), event), 30);
  EXPECT_EQ(WholeYears(QDate(1970, 3, 1), event), 29);
}
