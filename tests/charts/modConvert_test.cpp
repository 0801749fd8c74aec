// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "charts/modConvert.h"

#include "platform/Clock.h"
#include "platform/Command.h"
#include "platform/RuntimeError.h"
#include "support/ErrorOf.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

using modConvert::CheckMonthDay;

namespace {

const char* const kMonths[] = {"January", "February", "March",     "April",   "May",      "June",
                               "July",    "August",   "September", "October", "November", "December"};

const char* const kNoMonths = "Jan=0 Feb=0 Mar=0 Apr=0 May=0 Jun=0 Jul=0 Aug=0 Sep=0 Oct=0 Nov=0 Dec=0";
const char* const kNoAges = "<10=0 10-19=0 20-29=0 30-39=0 40-49=0 50-59=0 60-69=0 70-79=0 80-89=0 >89=0";

class Tallies : public testing::Test
{
protected:
  Tallies() { Clock::StopOn(QDate(2026, 5, 5)); }
  ~Tallies() override { Clock::StopOn({}); }

  void AddBirthMonth(const QVariant& month) const
  {
    folder.Execute("INSERT INTO People (FirstName, BirthMonth) VALUES ('Ann', ?)", {month});
  }
  void AddBirthYear(const QVariant& year) const
  {
    folder.Execute("INSERT INTO People (FirstName, BirthYear) VALUES ('Ann', ?)", {year});
  }
  void AddCouple(const QVariant& month) const
  {
    folder.Execute("INSERT INTO Ann (Spouse1First, AnnMonth) VALUES ('Ann', ?)", {month});
  }

  // What stands in a tally, row by row.
  [[nodiscard]] std::string Totals(const char* table, const char* key = "\"Month\"") const
  {
    QStringList totals;
    for (const QVariantList& row :
         folder.Rows(QStringLiteral("SELECT %1, Total FROM %2 ORDER BY rowid").arg(key, table))) {
      totals.append(row[0].toString() + u'=' + row[1].toString());
    }
    return totals.join(u' ').toStdString();
  }
  [[nodiscard]] std::string Birthdays() const { return Totals("TotalBirthdays"); }
  [[nodiscard]] std::string Anniversaries() const { return Totals("TotalAnn"); }
  [[nodiscard]] std::string Ages() const { return Totals("TotalAge", "Age"); }

  void FillTotals() const
  {
    for (const char* table : {"TotalBirthdays", "TotalAnn", "TotalAge"}) {
      folder.Execute(QStringLiteral("UPDATE %1 SET Total = 99").arg(table));
    }
  }

  // The class that somebody born in that year counts in.
  std::string ClassOf(const char* year) const
  {
    folder.Execute("DELETE FROM People");
    AddBirthYear(year);
    modConvert::TallyAges();
    return folder.Value("SELECT group_concat(Age || '=' || Total) FROM TotalAge WHERE Total <> 0")
        .toString()
        .toStdString();
  }

  ProgramFolder folder;
};

}

TEST(CheckMonthDay, RefusesDaysThatTheMonthNeverHas)
{
  for (const char* month : kMonths) {
    const std::string name(month);
    const bool isShort = name == "April" || name == "June" || name == "September" || name == "November";
    for (int day = 1; day <= 31; ++day) {
      const bool refused = (name == "February" && day >= 30) || (isShort && day == 31);
      const std::string message =
          refused ? name + " " + std::to_string(day) + " is not valid. Please try again." : std::string();
      EXPECT_EQ(CheckMonthDay(month, QString::number(day)).toStdString(), message) << month << day;
    }
  }
}

TEST(CheckMonthDay, HasNothingToSayOfOtherTexts)
{
  const std::pair<const char*, const char*> kCases[] = {
      {"", ""},         {"", "31"},         {"April", ""},       {"april", "31"}, {"APRIL", "31"}, {"Apr", "31"},
      {"April ", "31"}, {"April", "31 "},   {"April", " 31"},    {"April", "32"}, {"April", "0"},  {"April", "x"},
      {"Smarch", "31"}, {"February", "32"}, {"February", "030"}, {"4", "31"},
  };
  for (const auto& [month, day] : kCases) {
    EXPECT_EQ(CheckMonthDay(month, day).toStdString(), "") << month << '/' << day;
  }
}

TEST_F(Tallies, OfNobodyAreAllZero)
{
  FillTotals();
  modConvert::TallyAnniversaries();
  modConvert::TallyBirthdays();
  modConvert::TallyAges();
  EXPECT_EQ(Anniversaries(), kNoMonths);
  EXPECT_EQ(Birthdays(), kNoMonths);
  EXPECT_EQ(Ages(), kNoAges);
}

TEST_F(Tallies, CountTheMonthsOfBirthdays)
{
  FillTotals();
  int count = 0;
  for (const char* month : kMonths) {
    ++count;
    for (int i = 0; i < count; ++i) {
      AddBirthMonth(month);
    }
  }
  modConvert::TallyBirthdays();
  const char* const kCounted = "Jan=1 Feb=2 Mar=3 Apr=4 May=5 Jun=6 Jul=7 Aug=8 Sep=9 Oct=10 Nov=11 Dec=12";
  EXPECT_EQ(Birthdays(), kCounted);
  modConvert::TallyBirthdays();
  EXPECT_EQ(Birthdays(), kCounted) << "each run starts from zero";
}

TEST_F(Tallies, CountTheMonthsOfAnniversaries)
{
  FillTotals();
  for (const char* month : {"June", "December", "June", "January", "June"}) {
    AddCouple(month);
  }
  modConvert::TallyAnniversaries();
  EXPECT_EQ(Anniversaries(), "Jan=1 Feb=0 Mar=0 Apr=0 May=0 Jun=3 Jul=0 Aug=0 Sep=0 Oct=0 Nov=0 Dec=1");
}

TEST_F(Tallies, TextsThatAreNoMonthCountNowhere)
{
  for (const QVariant& text : {QVariant(), QVariant(""), QVariant("june"), QVariant("JUNE"), QVariant(" June"),
                               QVariant("Jun"), QVariant("June "), QVariant("6"), QVariant("Smarch")}) {
    AddBirthMonth(text);
    AddCouple(text);
  }
  AddBirthMonth("June");
  AddCouple("June");
  modConvert::TallyBirthdays();
  modConvert::TallyAnniversaries();
  const char* const kOneInJune = "Jan=0 Feb=0 Mar=0 Apr=0 May=0 Jun=1 Jul=0 Aug=0 Sep=0 Oct=0 Nov=0 Dec=0";
  EXPECT_EQ(Birthdays(), kOneInJune);
  EXPECT_EQ(Anniversaries(), kOneInJune);
}

TEST_F(Tallies, EachLeavesTheOthersAlone)
{
  FillTotals();
  AddCouple("June");
  const std::string birthdays = Birthdays();
  const std::string ages = Ages();
  modConvert::TallyAnniversaries();
  EXPECT_EQ(Birthdays(), birthdays);
  EXPECT_EQ(Ages(), ages);
  const std::string anniversaries = Anniversaries();
  modConvert::TallyBirthdays();
  EXPECT_EQ(Anniversaries(), anniversaries);
  EXPECT_EQ(Ages(), ages);
  modConvert::TallyAges();
  EXPECT_EQ(Anniversaries(), anniversaries);
  EXPECT_EQ(Birthdays(), kNoMonths);
}

TEST_F(Tallies, PersonWithAMonthAndNoYearHasABirthdayAndNoAge)
{
  folder.Execute("INSERT INTO People (FirstName, BirthMonth, BirthYear) VALUES ('Ann', 'May', NULL)");
  modConvert::TallyBirthdays();
  modConvert::TallyAges();
  EXPECT_EQ(Birthdays(), "Jan=0 Feb=0 Mar=0 Apr=0 May=1 Jun=0 Jul=0 Aug=0 Sep=0 Oct=0 Nov=0 Dec=0");
  EXPECT_EQ(Ages(), kNoAges);
}

TEST_F(Tallies, AgesAreOfTheYearAlone)
{
  const std::pair<const char*, const char*> kCases[] = {
      {"2026", "<10=1"},   {"2025", "<10=1"},   {"2017", "<10=1"},   {"2016", "10-19=1"}, {"2007", "10-19=1"},
      {"2006", "20-29=1"}, {"1997", "20-29=1"}, {"1996", "30-39=1"}, {"1987", "30-39=1"}, {"1986", "40-49=1"},
      {"1977", "40-49=1"}, {"1976", "50-59=1"}, {"1967", "50-59=1"}, {"1966", "60-69=1"}, {"1957", "60-69=1"},
      {"1956", "70-79=1"}, {"1947", "70-79=1"}, {"1946", "80-89=1"}, {"1937", "80-89=1"}, {"1936", ">89=1"},
      {"1900", ">89=1"},
  };
  for (const auto& [year, age] : kCases) {
    EXPECT_EQ(ClassOf(year), age) << year;
  }
}

TEST_F(Tallies, YearsToComeCountAsYoung)
{
  for (const char* year : {"2027", "2050", "3000"}) {
    EXPECT_EQ(ClassOf(year), "<10=1") << year;
  }
}

TEST_F(Tallies, YearsMayBeNumbersOfAnyForm)
{
  for (const char* year : {" 1936 ", "1936.4", "+1936", "1.936e3"}) {
    EXPECT_EQ(ClassOf(year), ">89=1") << year;
  }
  EXPECT_EQ(ClassOf("0"), ">89=1");
  EXPECT_EQ(ClassOf("-5"), ">89=1");
}

TEST_F(Tallies, AgesAreCountedTogether)
{
  FillTotals();
  for (const char* year : {"1936", "2026", "1937", "1900", "1990", "2020", "1936"}) {
    AddBirthYear(year);
  }
  AddBirthYear({});
  modConvert::TallyAges();
  EXPECT_EQ(Ages(), "<10=2 10-19=0 20-29=0 30-39=1 40-49=0 50-59=0 60-69=0 70-79=0 80-89=1 >89=3");
}

TEST_F(Tallies, AgesGrowWithTheYear)
{
  EXPECT_EQ(ClassOf("1937"), "80-89=1");
  Clock::StopOn(QDate(2027, 1, 1));
  EXPECT_EQ(ClassOf("1937"), ">89=1");
  Clock::StopOn(QDate(2026, 12, 31));
  EXPECT_EQ(ClassOf("1937"), "80-89=1");
}

TEST_F(Tallies, AYearThatIsNoNumberStopsTheCountingBehindItsPlaceInTheOrderOfTexts)
{
  FillTotals();
  for (const char* year : {"zero", "abc", "2020", "1990", "1936"}) {
    AddBirthYear(year);
  }
  AddBirthYear({});
  EXPECT_EQ(ErrorOf([] { modConvert::TallyAges(); }), ErrorNumber::kTypeMismatch);
  EXPECT_EQ(Ages(), "<10=1 10-19=0 20-29=0 30-39=1 40-49=0 50-59=0 60-69=0 70-79=0 80-89=0 >89=1");
}

TEST_F(Tallies, AYearThatComesFirstStopsTheCountingAtZero)
{
  for (const char* year : {" x", "!"}) {
    FillTotals();
    folder.Execute("DELETE FROM People");
    AddBirthYear("1990");
    AddBirthYear(year);
    EXPECT_EQ(ErrorOf([] { modConvert::TallyAges(); }), ErrorNumber::kTypeMismatch) << '"' << year << '"';
    EXPECT_EQ(Ages(), kNoAges) << '"' << year << '"';
  }
}

TEST_F(Tallies, WhatWasCountedStandsEvenIfTheCommandFails)
{
  FillTotals();
  for (const char* year : {"x", "2020", "1936"}) {
    AddBirthYear(year);
  }
  AddCouple("June");
  AddBirthMonth("July");
  EXPECT_EQ(ErrorOf([] {
              Command::Run([] {
                modConvert::TallyAnniversaries();
                modConvert::TallyBirthdays();
                modConvert::TallyAges();
              });
            }),
            ErrorNumber::kTypeMismatch);
  EXPECT_FALSE(Command::IsRunning());
  EXPECT_EQ(Ages(), "<10=1 10-19=0 20-29=0 30-39=0 40-49=0 50-59=0 60-69=0 70-79=0 80-89=0 >89=1");
  EXPECT_EQ(Birthdays(), "Jan=0 Feb=0 Mar=0 Apr=0 May=0 Jun=0 Jul=1 Aug=0 Sep=0 Oct=0 Nov=0 Dec=0");
  EXPECT_EQ(Anniversaries(), "Jan=0 Feb=0 Mar=0 Apr=0 May=0 Jun=1 Jul=0 Aug=0 Sep=0 Oct=0 Nov=0 Dec=0");
}

TEST_F(Tallies, YearsFarOffCountAsWell)
{
  AddBirthYear("-2147483648");
  AddBirthYear("99999");
  modConvert::TallyAges();
  EXPECT_EQ(Ages(), "<10=1 10-19=0 20-29=0 30-39=0 40-49=0 50-59=0 60-69=0 70-79=0 80-89=0 >89=1");
}

TEST_F(Tallies, AreLastingAtTheEndOfTheirCommand)
{
  AddCouple("June");
  Command::Run([] { modConvert::TallyAnniversaries(); });
  EXPECT_EQ(Anniversaries(), "Jan=0 Feb=0 Mar=0 Apr=0 May=0 Jun=1 Jul=0 Aug=0 Sep=0 Oct=0 Nov=0 Dec=0");
}

TEST_F(Tallies, AnEmptyYearIsAsUnknownAsNull)
{
  FillTotals();
  AddBirthYear("");
  AddBirthYear("1936");
  modConvert::TallyAges();
  EXPECT_EQ(Ages(), "<10=0 10-19=0 20-29=0 30-39=0 40-49=0 50-59=0 60-69=0 70-79=0 80-89=0 >89=1");
}

TEST_F(Tallies, AYearBeyond32BitsStopsTheCounting)
{
  AddBirthYear("99999999999");
  EXPECT_EQ(ErrorOf([] { modConvert::TallyAges(); }), ErrorNumber::kOverflow);
  EXPECT_EQ(Ages(), kNoAges);
}

TEST_F(Tallies, AMonthWithoutARowIsCountedIntoTheRowThatIsCurrent)
{
  for (const char* key : {"Mar", "Apr"}) {
    folder.Execute("DELETE FROM TotalBirthdays WHERE \"Month\"=?", {key});
  }
  for (const char* month : {"February", "March", "March", "March", "April", "April", "August"}) {
    AddBirthMonth(month);
  }
  modConvert::TallyBirthdays();
  EXPECT_EQ(Birthdays(), "Jan=2 Feb=3 May=0 Jun=0 Jul=0 Aug=1 Sep=0 Oct=0 Nov=0 Dec=0");
  AddBirthMonth("January");
  modConvert::TallyBirthdays();
  EXPECT_EQ(Birthdays(), "Jan=3 Feb=1 May=0 Jun=0 Jul=0 Aug=1 Sep=0 Oct=0 Nov=0 Dec=0");
}

TEST_F(Tallies, AnAgeWithoutARowIsCountedIntoTheRowOfTheNextOlder)
{
  folder.Execute("DELETE FROM TotalAge WHERE Age='80-89'");
  for (const char* year : {"1930", "1931", "1940", "1941", "1942", "1950"}) {
    AddBirthYear(year);
  }
  modConvert::TallyAges();
  EXPECT_EQ(Ages(), "<10=0 10-19=0 20-29=0 30-39=0 40-49=0 50-59=0 60-69=0 70-79=1 >89=3");
}
