// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "RemindersTest.h"

#include <QImage>

namespace {

class RemindersMonth : public RemindersTest
{
protected:
  static int BluePixels(int cell)
  {
    const QImage image = Day(cell).grab().toImage();
    int blue = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const QColor pixel = image.pixelColor(x, y);
        blue += pixel.blue() > 200 && pixel.red() < 120 && pixel.green() < 120 ? 1 : 0;
      }
    }
    return blue;
  }
  static int HeightOfGrid() { return Control("picReminders").height(); }
};

}

TEST_F(RemindersMonth, FebruaryOfFourWeeksFromASundayOnTakesFourRows)
{
  OpenOn(QDate(2015, 2, 10));
  ExpectMonth(2015, 2);
  EXPECT_EQ(ShownDays().begin()->first, 0);
  EXPECT_EQ(ShownDays().rbegin()->first, 27);
  EXPECT_EQ(HeightOfGrid(), 4560 / 15);
}

TEST_F(RemindersMonth, AMonthOfFiveWeeksTakesFiveRows)
{
  OpenOn(QDate(2026, 4, 10));
  ExpectMonth(2026, 4);
  EXPECT_EQ(ShownDays().begin()->first, 3);
  EXPECT_EQ(ShownDays().rbegin()->first, 32);
  EXPECT_EQ(HeightOfGrid(), 5655 / 15);
}

TEST_F(RemindersMonth, AMonthOf31DaysFromASaturdayOnUsesTheLastCell)
{
  OpenOn(QDate(2026, 8, 10));
  ExpectMonth(2026, 8);
  EXPECT_EQ(ShownDays().begin()->first, 6);
  EXPECT_EQ(ShownDays().rbegin()->first, 36);
  EXPECT_EQ(Day(36).text(), "31");
  EXPECT_NEAR(HeightOfGrid() * 15, 6780 - 20, 15);
  EXPECT_LT(HeightOfGrid(), 6780 / 15);
}

TEST_F(RemindersMonth, TheRowsFollowTheMonthWhicheverWayItIsChosen)
{
  OpenOn(QDate(2026, 1, 10));
  ExpectRows(5);
  Next();
  ExpectMonth(2026, 2);
  ExpectRows(4);
  Next();
  ExpectMonth(2026, 3);
  ExpectRows(5);
  ChooseMonth(8);
  ExpectMonth(2026, 8);
  ExpectRows(6);
  ChooseMonth(2);
  ExpectRows(4);
  ChooseYear(2028);
  ExpectMonth(2028, 2);
  ExpectRows(5);
}

TEST_F(RemindersMonth, TheDatesOfTheCellsGrowAndKeepTheirContents)
{
  OpenOn(QDate(2026, 2, 10));
  ASSERT_GE(modCalVariables::CalCellDates.size(), 28);
  EXPECT_EQ(modCalVariables::CalCellDates[0], "2026-02-01");
  EXPECT_EQ(modCalVariables::CalCellDates[27], "2026-02-28");
  ChooseMonth(8);
  ASSERT_EQ(modCalVariables::CalCellDates.size(), 37);
  EXPECT_EQ(modCalVariables::CalCellDates[0], "2026-07-26");
  EXPECT_EQ(modCalVariables::CalCellDates[6], "2026-08-01");
  EXPECT_EQ(modCalVariables::CalCellDates[36], "2026-08-31");
  ChooseMonth(2);
  ASSERT_EQ(modCalVariables::CalCellDates.size(), 37);
  EXPECT_EQ(modCalVariables::CalCellDates[0], "2026-02-01");
  EXPECT_EQ(modCalVariables::CalCellDates[27], "2026-02-28");
  EXPECT_EQ(modCalVariables::CalCellDates[36], "2026-08-31") << "what the month does not use stays";
}

TEST_F(RemindersMonth, TheTagOfACellIsItsDate)
{
  OpenOn(QDate(2026, 7, 10));
  Next();
  for (int i = 0; i < kCellCount; ++i) {
    EXPECT_EQ(modResize::TagOf(Cell(i)).toStdString(),
              modCalVariables::DateText(QDate(2026, 7, 26).addDays(i)).toStdString())
        << i;
  }
}

TEST_F(RemindersMonth, TodayIsBlueInItsOwnMonthAndYearOnly)
{
  Open();
  const auto blueDays = [] {
    std::vector<std::string> days;
    for (int i = 0; i < kCellCount; ++i) {
      if (IsShown(Day(i)) && Day(i).ForeColor() == kTodayColour) {
        days.push_back(Day(i).text().toStdString());
      }
    }
    return days;
  };
  EXPECT_EQ(blueDays(), std::vector<std::string>{"12"});
  EXPECT_GT(BluePixels(16), 0);
  EXPECT_EQ(BluePixels(17), 0);
  Next();
  EXPECT_TRUE(blueDays().empty());
  ExpectMonth(2026, 6);
  Previous();
  EXPECT_EQ(blueDays(), std::vector<std::string>{"12"});
  for (const int year : {2025, 2027, 1926}) {
    ChooseYear(year);
    EXPECT_TRUE(blueDays().empty()) << year;
    ExpectMonth(year, 5);
  }
  ChooseYear(2026);
  EXPECT_EQ(blueDays(), std::vector<std::string>{"12"});
}

TEST_F(RemindersMonth, SteppingForwardFromDecemberIsTheNextJanuary)
{
  OpenOn(QDate(2025, 12, 24));
  Next();
  ExpectMonth(2026, 1);
  Next();
  ExpectMonth(2026, 2);
}

TEST_F(RemindersMonth, SteppingBackFromJanuaryIsTheDecemberBefore)
{
  OpenOn(QDate(2026, 1, 1));
  Previous();
  ExpectMonth(2025, 12);
  Previous();
  ExpectMonth(2025, 11);
}

TEST_F(RemindersMonth, TwoYearsOfStepsForthAndBack)
{
  Open();
  QDate first(2026, 5, 1);
  for (int i = 0; i < 24; ++i) {
    Next();
    first = first.addMonths(1);
    ExpectMonth(first.year(), first.month());
  }
  for (int i = 0; i < 48; ++i) {
    Previous();
    first = first.addMonths(-1);
    ExpectMonth(first.year(), first.month());
  }
  EXPECT_EQ(first, QDate(2024, 5, 1));
}

TEST_F(RemindersMonth, SteppingGoesOnBeyondTheLastYearOfTheList)
{
  Open();
  ChooseYear(2050);
  ChooseMonth(12);
  ExpectMonth(2050, 12);
  AddEvent("2051-01-04", "Far");
  Next();
  ExpectMonth(2051, 1);
  EXPECT_EQ(List("lstYear").ListIndex(), -1);
  EXPECT_EQ(ShownEvents(), (std::map<int, std::string>{{CellOf("2051-01-04"), " Far "}}));
  Next();
  ExpectMonth(2051, 2);
  ChooseMonth(7);
  ExpectMonth(2051, 7);
  for (int i = 0; i < 7; ++i) {
    Previous();
  }
  ExpectMonth(2050, 12);
  EXPECT_EQ(List("lstYear").ListIndex(), 150);
}

TEST_F(RemindersMonth, SteppingGoesOnBeforeTheFirstYearOfTheList)
{
  Open();
  ChooseYear(1900);
  ChooseMonth(1);
  ExpectMonth(1900, 1);
  Previous();
  ExpectMonth(1899, 12);
  EXPECT_EQ(List("lstYear").ListIndex(), -1);
  Previous();
  ExpectMonth(1899, 11);
  ChooseYear(1950);
  ExpectMonth(1950, 11);
  ChooseYear(1900);
  ChooseMonth(2);
  ExpectMonth(1900, 2);
}

TEST_F(RemindersMonth, BeyondTheListTheSameYearCanBeChosenAgain)
{
  Open();
  ChooseYear(2050);
  ChooseMonth(12);
  Next();
  ExpectMonth(2051, 1);
  ChooseYear(2050);
  ExpectMonth(2050, 1);
}

TEST_F(RemindersMonth, TheDetailsCloseWithEveryStep)
{
  AddEvent("2026-05-12", "Dentist");
  AddEvent("2026-06-12", "Picnic");
  Open();
  ClickEvent(16);
  ASSERT_TRUE(DetailsShown());
  Next();
  EXPECT_FALSE(DetailsShown());
  ClickEvent(CellOf("2026-06-12"));
  ASSERT_TRUE(DetailsShown());
  Previous();
  EXPECT_FALSE(DetailsShown());
}

TEST_F(RemindersMonth, TheDatabaseIsLeftAlone)
{
  AddEvent("2026-05-12", "Dentist", "09:30:00", "Bring the card");
  const std::vector<QVariantList> before = folder.Rows("SELECT * FROM Reminders");
  const std::vector<QVariantList> options = folder.Rows("SELECT * FROM Options");
  Open();
  Next();
  Previous();
  ChooseYear(2020);
  ChooseMonth(3);
  Click("lblOptions_2");
  EXPECT_EQ(folder.Rows("SELECT * FROM Reminders"), before);
  EXPECT_EQ(folder.Rows("SELECT * FROM Options"), options);
}
