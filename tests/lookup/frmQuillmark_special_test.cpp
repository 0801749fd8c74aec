// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "LookupTest.h"

namespace {

struct DateCase
{
  QVariant month;
  QVariant day;
  QVariant year;
  const char* text;
  bool gap;
};

// Unknown parts are Null or empty.
const std::vector<DateCase> kDates = {
    {{}, {}, {}, "unavailable", false},
    {"", "", "", "unavailable", false},
    {"", {}, "", "unavailable", false},
    {"March", {}, {}, "March *", true},
    {"March", "", "", "March *", true},
    {{}, "5", {}, "* 5", true},
    {"", "5", "", "* 5", true},
    {"March", "5", {}, "March 5", false},
    {"March", "5", "", "March 5", false},
    {{}, {}, "1962", "* *, 1962", true},
    {"", "", "1962", "* *, 1962", true},
    {"March", {}, "1962", "March *, 1962", true},
    {"March", "", "1962", "March *, 1962", true},
    {{}, "5", "1962", "* 5, 1962", true},
    {"March", "5", "1962", "March 5, 1962", false},
};

class LookupSpecial : public LookupPageTest
{
protected:
  // A person for each date, in the order of the dates.
  void AddDates(const QString& prefix) const
  {
    for (std::size_t i = 0; i < kDates.size(); ++i) {
      AddPerson(
          QStringLiteral("%1").arg(i, 2, 10, QLatin1Char('0')), "Wood",
          {{prefix + "Month", kDates[i].month}, {prefix + "Date", kDates[i].day}, {prefix + "Year", kDates[i].year}});
    }
  }
  static void ExpectDates(const LookupItem& item)
  {
    for (std::size_t i = 0; i < kDates.size(); ++i) {
      ClickLine(static_cast<int>(i));
      ExpectShown(item, kDates[i].text);
      EXPECT_EQ(IsShown("lblExplain"), kDates[i].gap) << i;
    }
  }
};

}

TEST_F(LookupSpecial, TheBirthdayInEveryForm)
{
  AddDates("Birth");
  Open();
  Tick("chkPersonal_0");
  ExpectDates(kItems[5]);
  ExpectHidden(kItems[6]);
}

TEST_F(LookupSpecial, TheAnniversaryInEveryForm)
{
  AddDates("Ann");
  Open();
  Tick("chkPersonal_1");
  ExpectDates(kItems[6]);
  ExpectHidden(kItems[5]);
}

TEST_F(LookupSpecial, ABirthdayWithoutADayShowsAStarAndTheExplanation)
{
  AddPerson("Ann", "Wood", {{"BirthMonth", "March"}, {"BirthYear", "1962"}});
  Open();
  ClickLine(0);
  EXPECT_FALSE(IsShown("lblExplain"));
  Tick("chkPersonal_0");
  ExpectShown(kItems[5], "March *, 1962");
  EXPECT_TRUE(IsShown("lblExplain"));
  EXPECT_EQ(Caption("lblExplain"), "* indicates missing information");
}

TEST_F(LookupSpecial, ABirthdayOfOnlyAYearShowsTwoStars)
{
  AddPerson("Ann", "Wood", {{"BirthYear", "1962"}});
  Open();
  ClickLine(0);
  Tick("chkPersonal_0");
  ExpectShown(kItems[5], "* *, 1962");
  EXPECT_TRUE(IsShown("lblExplain"));
}

TEST_F(LookupSpecial, TheExplanationGoesWithTheDateThatNeedsIt)
{
  AddPerson("Ann", "Wood", {{"BirthMonth", "March"}, {"AnnMonth", "June"}, {"AnnDate", "12"}});
  Open();
  ClickLine(0);
  TickAll({"chkPersonal_0", "chkPersonal_1"});
  EXPECT_TRUE(IsShown("lblExplain"));
  Tick("chkPersonal_1");
  EXPECT_TRUE(IsShown("lblExplain"));
  Tick("chkPersonal_1");
  EXPECT_TRUE(IsShown("lblExplain"));
  Tick("chkPersonal_0");
  EXPECT_FALSE(IsShown("lblExplain"));
  EXPECT_EQ(Shown("txtAnnInfo"), "June 12");
}

TEST_F(LookupSpecial, TheExplanationGoesWithTheNextName)
{
  AddPerson("Ann", "Wood", {{"BirthMonth", "March"}});
  AddPerson("Bob", "Wood", {{"BirthMonth", "May"}, {"BirthDate", "1"}});
  Open();
  Tick("chkPersonal_0");
  for (int i = 0; i < 2; ++i) {
    ClickLine(0);
    EXPECT_TRUE(IsShown("lblExplain"));
    ClickLine(1);
    EXPECT_FALSE(IsShown("lblExplain"));
  }
}

TEST_F(LookupSpecial, TheExplanationIsNeededForEitherDate)
{
  AddPerson("Ann", "Wood", {{"BirthMonth", "March"}, {"BirthDate", "5"}, {"AnnDate", "12"}, {"AnnYear", "1990"}});
  Open();
  ClickLine(0);
  Tick("chkPersonal_0");
  EXPECT_FALSE(IsShown("lblExplain"));
  Tick("chkPersonal_1");
  EXPECT_TRUE(IsShown("lblExplain"));
  EXPECT_EQ(Shown("txtAnnInfo"), "* 12, 1990");
  EXPECT_EQ(Shown("txtBirthInfo"), "March 5");
}

TEST_F(LookupSpecial, WithoutTheTickAGapIsNotExplained)
{
  AddPerson("Ann", "Wood", {{"BirthMonth", "March"}, {"AnnMonth", "June"}});
  Open();
  TickAll({"chkInfo_0", "chkNotes"});
  ClickLine(0);
  EXPECT_FALSE(IsShown("lblExplain"));
}
