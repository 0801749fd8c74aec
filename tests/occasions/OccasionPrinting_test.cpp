// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "OccasionPrintingTest.h"

#include "platform/Months.h"

#include <algorithm>
#include <cmath>

namespace {

class OccasionPrinting : public OccasionPrintingTest
{
protected:
  // Every way a line can end, in the text order of the days; today is 5 May 2026.
  void AddEveryKind() const
  {
    const std::vector<std::pair<QVariant, QVariant>> dates = {
        {QVariant(), "1962"}, {"1", "1962"}, {"2", "2026"}, {"3", "2025"}, {"4", "2024"},
        {"5", "2025"},        {"6", "2025"}, {"7", "2027"}, {"8", {}},     {"12", "1999"}};
    char first = 'A';
    for (const auto& [day, year] : dates) {
      AddPerson(QString(QLatin1Char(first)) + "na", "May", day, year);
      AddCouple(QString(QLatin1Char(first)) + "da", "Bob", "May", day, year);
      ++first;
    }
  }
};

class OccasionPrintingOnPaper : public OccasionPrintingTest, public testing::WithParamInterface<QPageSize::PageSizeId>
{
protected:
  // A birthday on each of these days, a wedding on each up to the last.
  void AddOnDays(const QString& month, int from, int to, int lastWedding) const
  {
    folder.Execute(
        "WITH RECURSIVE n(i) AS (SELECT ? UNION ALL SELECT i+1 FROM n WHERE i<?) "
        "INSERT INTO People (FirstName, LastName, BirthMonth, BirthDate, BirthYear) SELECT 'B' || i, 'Wood', ?, i, "
        "'1990' FROM n",
        {from, to, month});
    folder.Execute(
        "WITH RECURSIVE n(i) AS (SELECT ? UNION ALL SELECT i+1 FROM n WHERE i<?) "
        "INSERT INTO Ann (Spouse1ID, Spouse1First, Spouse2ID, Spouse2First, AnnMonth, AnnDate, AnnYear) "
        "SELECT top + 2 * i, 'A' || i, top + 2 * i + 1, 'Bob', ?, i, '1990' "
        "FROM n, (SELECT coalesce(max(Spouse2ID), 1000) AS top FROM Ann)",
        {from, lastWedding, month});
  }
};

constexpr int kFebruary = 1;
constexpr int kMay = 4;
constexpr int kJune = 5;

}

TEST_F(OccasionPrinting, OfAMonthHasEveryLineWithoutAges)
{
  AddEveryKind();
  OpenOn(kMay);
  EXPECT_EQ(AllLines(PrintWith(kSelectedMonth)),
            "May|Birthdays: May - Ana Wood|May 1, 1962 - Bna Wood|May 12, 1999 - Jna Wood|May 2, 2026 - Cna Wood|"
            "May 3, 2025 - Dna Wood|May 4, 2024 - Ena Wood|May 5, 2025 - Fna Wood|May 6, 2025 - Gna Wood|"
            "May 7, 2027 - Hna Wood|May 8 - Ina Wood|"
            "Anniversaries: May - Ada and Bob|May 1, 1962 - Bda and Bob|May 12, 1999 - Jda and Bob|"
            "May 2, 2026 - Cda and Bob|May 3, 2025 - Dda and Bob|May 4, 2024 - Eda and Bob|May 5, 2025 - Fda and Bob|"
            "May 6, 2025 - Gda and Bob|May 7, 2027 - Hda and Bob|May 8 - Ida and Bob");
}

TEST_F(OccasionPrinting, OfAMonthHasEveryLineWithAges)
{
  AddEveryKind();
  OpenOn(kMay);
  Tick("chkAgeAnn");
  EXPECT_EQ(AllLines(PrintWith(kSelectedMonth)),
            "May|Birthdays: May - Ana Wood|May 1, 1962 - Bna Wood, 64 years old|May 12, 1999 - Jna Wood, 26 years old|"
            "May 2, 2026 - Cna Wood, less than a year old|May 3, 2025 - Dna Wood, 1 year old|"
            "May 4, 2024 - Ena Wood, 2 years old|May 5, 2025 - Fna Wood, 1 year old|"
            "May 6, 2025 - Gna Wood, less than a year old|May 7, 2027 - Hna Wood|May 8 - Ina Wood|"
            "Anniversaries: May - Ada and Bob|May 1, 1962 - Bda and Bob, married 64 years|"
            "May 12, 1999 - Jda and Bob, married 26 years|May 2, 2026 - Cda and Bob, married less than a year|"
            "May 3, 2025 - Dda and Bob, married 1 year|May 4, 2024 - Eda and Bob, married 2 years|"
            "May 5, 2025 - Fda and Bob, married 1 year|May 6, 2025 - Gda and Bob, married less than a year|"
            "May 7, 2027 - Hda and Bob|May 8 - Ida and Bob");
}

TEST_F(OccasionPrinting, OfAPersonWithoutAYearIsTheShortLineWithAges)
{
  AddPerson("Ann", "May", "9");
  OpenOn(kMay);
  Tick("chkAgeAnn");
  EXPECT_EQ(AllLines(PrintWith(kSelectedMonth)),
            "May|Birthdays: May 9 - Ann Wood|Anniversaries: No anniversaries this month");
}

TEST_F(OccasionPrinting, OfAPersonWithoutADayKeepsTheBlanksAroundIt)
{
  AddPerson("Ann", "May", {}, "1962");
  OpenOn(kMay);
  Tick("chkAgeAnn");
  const PrintedPages pages = PrintWith(kSelectedMonth);
  EXPECT_EQ(AllLines(pages), "May|Birthdays: May - Ann Wood|Anniversaries: No anniversaries this month");
  ExpectAt(pages, "-", kColumn + WidthOf("May  ", 12, false), kTop + kHeadingHeight);
}

TEST_F(OccasionPrinting, OfSomebodyBornThisYearSaysLessThanAYear)
{
  AddPerson("Ann", "January", "1", "2026");
  OpenOn(0);
  Tick("chkAgeAnn");
  EXPECT_EQ(AllLines(PrintWith(kSelectedMonth)),
            "January|Birthdays: January 1, 2026 - Ann Wood, less than a year old|"
            "Anniversaries: No anniversaries this month");
}

TEST_F(OccasionPrinting, OfTheLeapDayCountsTheYearFromTheFirstOfMarch)
{
  AddPerson("Ann", "February", "29", "2024");
  AddCouple("Ada", "Bob", "February", "29", "2024");
  OpenOn(kFebruary);
  Tick("chkAgeAnn");
  Tick(kSelectedMonth);
  struct Case
  {
    QDate today;
    const char* birthday;
    const char* anniversary;
  };
  for (const Case& one : {Case{QDate(2026, 2, 28), "1 year old", "married 1 year"},
                          Case{QDate(2026, 3, 1), "2 years old", "married 2 years"},
                          Case{QDate(2028, 2, 29), "3 years old", "married 3 years"},
                          Case{QDate(2028, 3, 1), "4 years old", "married 4 years"}}) {
    Clock::StopOn(one.today);
    EXPECT_EQ(AllLines(Print()), std::string("February|Birthdays: February 29, 2024 - Ann Wood, ") + one.birthday +
                                     "|Anniversaries: February 29, 2024 - Ada and Bob, " + one.anniversary);
  }
}

TEST_F(OccasionPrinting, OfTwoOnOneDayFollowsTheQueryAndOfDaysTheirText)
{
  AddPerson("Zoe", "May", "9");
  AddPerson("Ann", "May", "9");
  AddPerson("Bob", "May", "10");
  OpenOn(kMay);
  EXPECT_EQ(AllLines(PrintWith(kSelectedMonth)),
            "May|Birthdays: May 10 - Bob Wood|May 9 - Zoe Wood|May 9 - Ann Wood|"
            "Anniversaries: No anniversaries this month");
}

TEST_F(OccasionPrinting, OfAMonthWithBirthdaysAloneOrAnniversariesAloneOrNothing)
{
  AddPerson("Ann", "May", "9");
  AddCouple("Ada", "Bob", "June", "8");
  OpenOn(kMay);
  EXPECT_EQ(AllLines(PrintWith(kSelectedMonth)),
            "May|Birthdays: May 9 - Ann Wood|Anniversaries: No anniversaries this month");
  ClickMonth(kJune);
  EXPECT_EQ(AllLines(PrintWith(kSelectedMonth)),
            "June|Birthdays: No birthdays this month|Anniversaries: June 8 - Ada and Bob");
  ClickMonth(kFebruary);
  EXPECT_EQ(AllLines(PrintWith(kSelectedMonth)),
            "February|Birthdays: No birthdays this month|Anniversaries: No anniversaries this month");
}

TEST_F(OccasionPrinting, SetsTheMonthBoldAndLaterLinesOneStopFurtherIn)
{
  AddPerson("Ann", "May", "1");
  AddPerson("Bess", "May", "2");
  AddCouple("Ada", "Bob", "May", "3");
  AddCouple("Cora", "Dan", "May", "4");
  OpenOn(kMay);
  const PrintedPages pages = PrintWith(kSelectedMonth);
  ASSERT_EQ(pages.Count(), 1);
  ExpectAt(pages, "May", kLeft, kTop);
  ExpectFont(pages, "May", 14, true);
  const double y = kTop + kHeadingHeight;
  ExpectAt(pages, "Birthdays:", kLeft, y);
  ExpectFont(pages, "Birthdays:", 12, false);
  ExpectAt(pages, "Anniversaries:", kLeft, y + 2 * kLineHeight);
  ExpectFont(pages, "Anniversaries:", 12, false);
  const double first = kColumn + WidthOf("May ", 12, false);
  const double later = kLaterColumn + WidthOf("May ", 12, false);
  ExpectAt(pages, "1", first, y);
  ExpectAt(pages, "2", later, y + kLineHeight);
  ExpectAt(pages, "3", first, y + 2 * kLineHeight);
  ExpectAt(pages, "4", later, y + 3 * kLineHeight);
}

TEST_F(OccasionPrinting, SetsTheWordsForNothingInTheSameColumn)
{
  AddPerson("Ann", "May", "1");
  OpenOn(kJune);
  const PrintedPages pages = PrintWith(kSelectedMonth);
  ExpectAt(pages, "birthdays", kColumn + WidthOf("No ", 12, false), kTop + kHeadingHeight);
  ExpectAt(pages, "anniversaries", kColumn + WidthOf("No ", 12, false), kTop + kHeadingHeight + kLineHeight);
}

TEST_F(OccasionPrinting, OfAllMonthsHasTwelveBlocksInOrder)
{
  AddPerson("Ann", "May", "9", "1962");
  AddCouple("Ada", "Bob", "December", "31", "1990");
  OpenOn(kMay);
  Tick("chkAgeAnn");
  const PrintedPages pages = PrintWith(kAllMonths);
  QStringList expected;
  for (const QString month : kMonthNames) {
    expected << month
             << (month == "May" ? "Birthdays: May 9, 1962 - Ann Wood, 63 years old"
                                : "Birthdays: No birthdays this month")
             << (month == "December" ? "Anniversaries: December 31, 1990 - Ada and Bob, married 35 years"
                                     : "Anniversaries: No anniversaries this month");
  }
  EXPECT_EQ(AllLines(pages), expected.join('|').toStdString());
  ASSERT_EQ(pages.Count(), 1);
  for (int month = 0; month < 12; ++month) {
    if (month != kMay) {
      ExpectFont(pages, kMonthNames[static_cast<std::size_t>(month)], 14, true);
    }
  }
}

// Only the date moves the first month away from the top of the page.
TEST_F(OccasionPrinting, LeavesAnEmptyLineAboveAMonthButAtTheTopOfThePage)
{
  AddPerson("Ann", "May", "9");
  OpenOn(kMay);
  const double block = 2 * kHeadingHeight + 2 * kLineHeight;
  const PrintedPages plain = PrintWith(kAllMonths);
  ExpectAt(plain, "January", kLeft, kTop);
  ExpectAt(plain, "February", kLeft, kTop + block);
  ExpectAt(plain, "March", kLeft, kTop + 2 * block);

  Tick("chkDate");
  const PrintedPages dated = Print();
  EXPECT_EQ(dated.Lines(1).value(0), "May 05, 2026");
  EXPECT_EQ(dated.Lines(1).value(1), "January");
  ExpectAt(dated, "05,", kLeft + WidthOf("May ", 12, false), kTop);
  ExpectFont(dated, "2026", 12, false);
  const double january = kTop + kLineHeight + kHeadingHeight;
  ExpectAt(dated, "January", kLeft, january);
  ExpectAt(dated, "February", kLeft, january + block);
}

TEST_F(OccasionPrinting, OfTheSelectedMonthHasTheDateToo)
{
  AddPerson("Ann", "May", "9");
  OpenOn(kMay);
  Tick("chkDate");
  const PrintedPages pages = PrintWith(kSelectedMonth);
  EXPECT_EQ(AllLines(pages), "May 05, 2026|May|Birthdays: May 9 - Ann Wood|Anniversaries: No anniversaries this month");
  ExpectAt(pages, "Birthdays:", kLeft, kTop + kLineHeight + 2 * kHeadingHeight);
}

TEST_F(OccasionPrinting, ChangesNothingOnThePage)
{
  AddPerson("Ann", "May", "9");
  AddCouple("Ada", "Bob", "May", "8");
  OpenOn(kMay);
  ClickLine(kBirthdays, 0);
  const std::string birthdays = Lines(kBirthdays);
  const std::string couples = Lines(kCouples);
  const int selected = modID::SelectedPersonID;
  EXPECT_NE(selected, 0);
  Tick("chkAgeAnn");
  Tick("chkDate");
  PrintWith(kAllMonths);
  EXPECT_EQ(Lines(kBirthdays), birthdays);
  EXPECT_EQ(Lines(kCouples), couples);
  EXPECT_EQ(List(kBirthdays).ListIndex(), 0);
  EXPECT_EQ(modID::SelectedPersonID, selected);
  EXPECT_EQ(SelectedMonths(), std::vector<int>{kMay});
  EXPECT_TRUE(IsShown("fraPrint"));
  EXPECT_TRUE(IsTicked(kAllMonths) && IsTicked("chkAgeAnn") && IsTicked("chkDate"));
}

TEST_P(OccasionPrintingOnPaper, GoesOnBelowWithANameTooLongForThePaper)
{
  const QString name = "Maximiliane Josefin Friederike Oberhuber Schwarzenbeck von der Tannen";
  AddPerson("Ann", "September", "1");
  AddPerson(name, "September", "27", "1936");
  OpenOn(8);
  Tick("chkAgeAnn");
  const PrintedPages pages = PrintWith(kSelectedMonth, GetParam());
  const QString text = pages.Lines(1).join(' ');
  EXPECT_EQ(text.toStdString(), "September Birthdays: September 1 - Ann Wood September 27, 1936 - " +
                                    name.toStdString() +
                                    " Wood, 89 years old Anniversaries: No anniversaries this month");
  EXPECT_EQ(pages.Lines(1).size(), 5);
  for (const PrintedWord& word : pages.Words()) {
    EXPECT_LE(word.right, pages.Size(1).width() - 2 * PrintedPages::kMargin + kNear) << word.text.toStdString();
  }
  double below = pages.Size(1).width();
  for (const PrintedWord& word : pages.Words()) {
    if (std::abs(word.y - (kTop + kHeadingHeight + 2 * kLineHeight)) < kLineHeight / 2) {
      below = std::min(below, word.x);
    }
  }
  EXPECT_NEAR(below, kLaterColumn, kNear);
}

TEST_P(OccasionPrintingOnPaper, BreaksPagesBetweenTheMarginsAndLosesNothing)
{
  constexpr double kRims = 2 * PrintedPages::kMargin;
  QStringList expected;
  for (const QString month : kMonthNames) {
    AddOnDays(month, 10, 27, 18);
    expected << month;
    for (int day = 10; day <= 27; ++day) {
      const QString date = QStringLiteral("%1 %2, 1990 - ").arg(month).arg(day);
      expected << (day == 10 ? "Birthdays: " : "") + date + QStringLiteral("B%1 Wood").arg(day);
    }
    for (int day = 10; day <= 18; ++day) {
      const QString date = QStringLiteral("%1 %2, 1990 - ").arg(month).arg(day);
      expected << (day == 10 ? "Anniversaries: " : "") + date + QStringLiteral("A%1 and Bob").arg(day);
    }
  }
  OpenOn(kMay);
  const PrintedPages pages = PrintWith(kAllMonths, GetParam());
  EXPECT_GE(pages.Count(), 7);
  EXPECT_EQ(AllLines(pages), expected.join('|').toStdString());
  for (const PrintedWord& word : pages.Words()) {
    const QSizeF paper = pages.Size(word.page);
    EXPECT_GE(word.x, kLeft - kNear);
    EXPECT_GE(word.y, kTop - kNear);
    EXPECT_LE(word.right, paper.width() - kRims + kNear) << word.text.toStdString();
    EXPECT_LE(word.y, paper.height() - kRims - 1000 + kNear) << word.text.toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Papers, OccasionPrintingOnPaper, testing::Values(QPageSize::A4, QPageSize::Letter),
                         [](const auto& paper) { return paper.param == QPageSize::A4 ? "A4" : "Letter"; });
