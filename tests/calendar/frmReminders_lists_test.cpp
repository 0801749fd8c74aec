// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "RemindersTest.h"

namespace {

class RemindersLists : public RemindersTest
{
protected:
  static bool MonthsShown() { return IsShown("lstMonth"); }
  static bool YearsShown() { return IsShown("lstYear"); }
};

}

TEST_F(RemindersLists, TheMonthsComeAndGoByAClick)
{
  Open();
  EXPECT_FALSE(MonthsShown());
  Click("lblMonth");
  EXPECT_TRUE(MonthsShown());
  EXPECT_FALSE(YearsShown());
  Click("lblMonth");
  EXPECT_FALSE(MonthsShown());
  Click("lblMonth");
  EXPECT_TRUE(MonthsShown());
}

TEST_F(RemindersLists, TheYearsComeAndGoByAClick)
{
  Open();
  EXPECT_FALSE(YearsShown());
  Click("lblYear");
  EXPECT_TRUE(YearsShown());
  EXPECT_FALSE(MonthsShown());
  Click("lblYear");
  EXPECT_FALSE(YearsShown());
}

TEST_F(RemindersLists, EachListKeepsToItsOwnLabel)
{
  Open();
  Click("lblMonth");
  Click("lblYear");
  EXPECT_TRUE(MonthsShown());
  EXPECT_TRUE(YearsShown());
  Click("lblMonth");
  EXPECT_FALSE(MonthsShown());
  EXPECT_TRUE(YearsShown());
}

TEST_F(RemindersLists, AnOpenListStandsAboveTheGrid)
{
  AddEvent("2026-05-06", "Wednesday");
  Open();
  for (const char* name : {"lstMonth", "lstYear"}) {
    Click(name == std::string("lstMonth") ? "lblMonth" : "lblYear");
    QWidget& list = Control(name);
    QWidget* at = Page().childAt(list.geometry().center());
    EXPECT_TRUE(at == &list || list.isAncestorOf(at)) << name;
  }
}

TEST_F(RemindersLists, EveryMonthCanBeChosen)
{
  Open();
  for (int month = 12; month >= 1; --month) {
    ChooseMonth(month);
    ExpectMonth(2026, month);
    EXPECT_FALSE(MonthsShown());
  }
}

TEST_F(RemindersLists, YearsCanBeChosenFromTheFirstToTheLast)
{
  Open();
  for (const int year : {1900, 1901, 1999, 2000, 2025, 2049, 2050}) {
    ChooseYear(year);
    ExpectMonth(year, 5);
    EXPECT_FALSE(YearsShown());
  }
}

TEST_F(RemindersLists, TheMonthOnShowCanBeChosenAgain)
{
  AddEvent("2026-05-12", "Dentist");
  Open();
  ClickEvent(16);
  ASSERT_TRUE(DetailsShown());
  ChooseMonth(5);
  EXPECT_FALSE(MonthsShown());
  EXPECT_FALSE(DetailsShown());
  ExpectMonth(2026, 5);
  ChooseYear(2026);
  EXPECT_FALSE(YearsShown());
  ExpectMonth(2026, 5);
}

TEST_F(RemindersLists, AMonthChosenLeavesTheYearsOpen)
{
  Open();
  Click("lblYear");
  Click("lblMonth");
  Hands::ClickLine(List("lstMonth"), 8);
  ExpectMonth(2026, 9);
  EXPECT_FALSE(MonthsShown());
  EXPECT_TRUE(YearsShown());
  Hands::ClickLine(List("lstYear"), 99);
  ExpectMonth(1999, 9);
  EXPECT_FALSE(YearsShown());
}

TEST_F(RemindersLists, AYearChosenLeavesTheMonthsOpen)
{
  Open();
  Click("lblMonth");
  Click("lblYear");
  Hands::ClickLine(List("lstYear"), 100);
  ExpectMonth(2000, 5);
  EXPECT_FALSE(YearsShown());
  EXPECT_TRUE(MonthsShown());
}

TEST_F(RemindersLists, AClickOnThePictureClosesThemAll)
{
  AddEvent("2026-05-12", "Dentist");
  Open();
  ClickEvent(16);
  Click("lblMonth");
  Click("lblYear");
  ASSERT_TRUE(MonthsShown() && YearsShown() && DetailsShown());
  ClickPicture();
  EXPECT_FALSE(MonthsShown());
  EXPECT_FALSE(YearsShown());
  EXPECT_FALSE(DetailsShown());
  ExpectMonth(2026, 5);
}

TEST_F(RemindersLists, TheKeyboardChoosesAMonth)
{
  Open();
  Click("lblMonth");
  QTest::keyClick(&List("lstMonth"), Qt::Key_Down);
  ExpectMonth(2026, 6);
  EXPECT_FALSE(MonthsShown());
}

TEST_F(RemindersLists, AStepSelectsItsMonthAndYearInTheLists)
{
  OpenOn(QDate(2025, 12, 1));
  Next();
  EXPECT_EQ(List("lstMonth").Text(), "January");
  EXPECT_EQ(List("lstYear").Text(), "2026");
  Previous();
  EXPECT_EQ(List("lstMonth").Text(), "December");
  EXPECT_EQ(List("lstYear").Text(), "2025");
}
