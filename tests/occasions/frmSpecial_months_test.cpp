// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "OccasionsTest.h"

#include "controls/MonthGrid.h"

namespace {

class SpecialMonths : public OccasionsPageTest
{
protected:
  // The month, year and lists all say the same.
  static void ExpectMonth(int month, const QString& name, int year)
  {
    EXPECT_EQ(SelectedMonths(), std::vector<int>{month - 1});
    EXPECT_EQ(Calendar().Value().month(), month);
    EXPECT_EQ(Calendar().Value().year(), year);
    EXPECT_EQ(ShownYear(), std::to_string(year));
    EXPECT_EQ(Caption("lblBirthdays"), (name + " birthdays").toStdString());
    EXPECT_EQ(Caption("lblAnn"), (name + " anniversaries").toStdString());
  }
  static void ClickCalendar(const QPoint& point) { QTest::mouseClick(&Calendar(), Qt::LeftButton, {}, point); }
  static MonthGrid Grid() { return {Calendar().rect().adjusted(0, 0, -1, -1), Calendar().Value()}; }
};

const QStringList kNames = {"January", "February", "March",     "April",   "May",      "June",
                            "July",    "August",   "September", "October", "November", "December"};

}

TEST_F(SpecialMonths, ThePageOpensOnTodaysMonthAndYear)
{
  Open();
  EXPECT_EQ(Page().windowTitle().toStdString(), "Special Events ");
  ExpectMonth(5, "May", 2026);
  EXPECT_EQ(ShownDay(), "2026-05-05");
  EXPECT_EQ(TextOf("txtBirthInfo"), "Birthday details for...");
  EXPECT_EQ(TextOf("txtAnnInfo"), "Anniversary details for...");
}

TEST_F(SpecialMonths, ThePageOpensOnAnotherToday)
{
  Clock::StopOn(QDate(1999, 12, 31));
  AddPerson("Ann", "December", "31");
  Open();
  ExpectMonth(12, "December", 1999);
  EXPECT_EQ(ShownDay(), "1999-12-31");
  EXPECT_EQ(Lines(kBirthdays), "December 31 - Ann Wood");
}

TEST_F(SpecialMonths, TheYearsRunFrom1900To2050)
{
  Open();
  QStringList years;
  for (int year = 1900; year <= 2050; ++year) {
    years.append(QString::number(year));
  }
  EXPECT_EQ(Hands::LinesOf(Combo("cboYear")), years);
}

TEST_F(SpecialMonths, EveryLabelOfTheStripShowsItsMonth)
{
  for (const QString& name : kNames) {
    AddPerson(name.left(3), name, "10");
    AddCouple(name.left(3), "Bob", name, "10");
  }
  Open();
  for (int i = 0; i < 12; ++i) {
    ClickMonth(i);
    ExpectMonth(i + 1, kNames[i], 2026);
    EXPECT_EQ(Calendar().Value().day(), 1) << i;
    EXPECT_EQ(Lines(kBirthdays), (kNames[i] + " 10 - " + kNames[i].left(3) + " Wood").toStdString());
    EXPECT_EQ(Lines(kCouples), (kNames[i] + " 10 - " + kNames[i].left(3) + " and Bob").toStdString());
  }
}

TEST_F(SpecialMonths, TheYearBoxMovesTheCalendarWithinTheMonth)
{
  Open();
  ClickMonth(1);
  Pick("cboYear", "1987");
  ExpectMonth(2, "February", 1987);
  EXPECT_EQ(ShownDay(), "1987-02-01");
  ClickMonth(11);
  ExpectMonth(12, "December", 1987);
  EXPECT_EQ(ShownDay(), "1987-12-01");
}

TEST_F(SpecialMonths, TheFirstAndTheLastYearAreReached)
{
  Open();
  Pick("cboYear", "1900");
  EXPECT_EQ(ShownDay(), "1900-05-01");
  Pick("cboYear", "2050");
  EXPECT_EQ(ShownDay(), "2050-05-01");
}

TEST_F(SpecialMonths, AnArrowKeyInTheYearBoxIsAClick)
{
  Open();
  Press("cboYear", Qt::Key_Down);
  EXPECT_EQ(ShownDay(), "2027-05-01");
  ExpectMonth(5, "May", 2027);
}

TEST_F(SpecialMonths, TheArrowsOfTheCalendarMoveStripListsAndYear)
{
  AddPerson("Ann", "June", "3");
  AddPerson("Eve", "December", "24");
  Open();
  Click("lblOptions_1");
  ClickCalendar(Grid().Arrow(1).center());
  ExpectMonth(6, "June", 2026);
  EXPECT_EQ(Lines(kBirthdays), "June  3 - Ann Wood");
  ClickCalendar(Grid().Arrow(12).center());
  ExpectMonth(6, "June", 2027);
  for (int i = 0; i < 6; ++i) {
    ClickCalendar(Grid().Arrow(-1).center());
  }
  ExpectMonth(12, "December", 2026);
  EXPECT_EQ(Lines(kBirthdays), "December 24 - Eve Wood");
}

TEST_F(SpecialMonths, ADayOfTheNextMonthInTheCalendarShowsThatMonth)
{
  Open();
  Click("lblOptions_1");
  ClickCalendar(Grid().Cell(Grid().CellOf({2026, 6, 2})).center());
  ExpectMonth(6, "June", 2026);
  EXPECT_EQ(ShownDay(), "2026-06-02");
}

TEST_F(SpecialMonths, AKeyInTheCalendarMovesThePage)
{
  Open();
  Click("lblOptions_1");
  Press("calCalendar", Qt::Key_PageDown);
  ExpectMonth(6, "June", 2026);
}

TEST_F(SpecialMonths, TheDaysStandInTextOrder)
{
  for (const char* day : {"2", "20", "10", "1", "9", "19", "11"}) {
    AddPerson("Ann", "May", day);
    AddCouple("Ann", "Bob", "May", day);
  }
  Open();
  EXPECT_EQ(Lines(kBirthdays),
            "May  1 - Ann Wood|May 10 - Ann Wood|May 11 - Ann Wood|May 19 - Ann Wood|May  2 - Ann Wood|"
            "May 20 - Ann Wood|May  9 - Ann Wood");
  EXPECT_EQ(Lines(kCouples),
            "May 1 - Ann and Bob|May 10 - Ann and Bob|May 11 - Ann and Bob|May 19 - Ann and Bob|May 2 - Ann and Bob|"
            "May 20 - Ann and Bob|May 9 - Ann and Bob");
}

TEST_F(SpecialMonths, OneWithoutADayComesFirstWithOneBlank)
{
  AddPerson("Ann", "May", "9");
  AddPerson("Eve", "May", {});
  AddCouple("Ann", "Bob", "May", {});
  Open();
  EXPECT_EQ(Lines(kBirthdays), "May  - Eve Wood|May  9 - Ann Wood");
  EXPECT_EQ(Lines(kCouples), "May  - Ann and Bob");
}

TEST_F(SpecialMonths, SomebodyWithoutABirthdayIsInNoMonth)
{
  AddPerson("Ann", {}, {});
  AddCouple("Ann", "Bob", {}, {});
  Open();
  for (int i = 0; i < 12; ++i) {
    ClickMonth(i);
    EXPECT_EQ(Lines(kBirthdays), "No birthdays this month") << i;
    EXPECT_EQ(Lines(kCouples), "No anniversaries this month") << i;
  }
}

TEST_F(SpecialMonths, AnEmptyDatabaseSaysSoInEveryMonth)
{
  Open();
  for (int i = 0; i < 12; ++i) {
    ClickMonth(i);
    EXPECT_EQ(Lines(kBirthdays), "No birthdays this month") << i;
    EXPECT_EQ(Lines(kCouples), "No anniversaries this month") << i;
    EXPECT_FALSE(IsShown("txtBDetails"));
    EXPECT_FALSE(IsShown("txtADetails"));
    EXPECT_EQ(Marked("shpBirth"), 0);
    EXPECT_EQ(Marked("shpAnn"), 0);
  }
}

TEST_F(SpecialMonths, PeopleWithoutCouplesStandBesideTheNoDataEntry)
{
  AddPerson("Ann", "May", "9");
  AddPerson("Eve", "May", "10");
  Open();
  EXPECT_EQ(Lines(kBirthdays), "May 10 - Eve Wood|May  9 - Ann Wood");
  EXPECT_TRUE(IsShown("txtBDetails"));
  EXPECT_EQ(TextOf("txtBDetails"), kBirthdayHint.toStdString());
  EXPECT_EQ(Marked("shpBirth"), 1);
  EXPECT_EQ(Lines(kCouples), "No anniversaries this month");
  EXPECT_FALSE(IsShown("txtADetails"));
  EXPECT_EQ(TextOf("txtADetails"), "");
  EXPECT_EQ(Marked("shpAnn"), 0);
}

TEST_F(SpecialMonths, CouplesWithoutPeopleStandBesideTheNoDataEntry)
{
  AddCouple("Ann", "Bob", "May", "9");
  Open();
  EXPECT_EQ(Lines(kBirthdays), "No birthdays this month");
  EXPECT_FALSE(IsShown("txtBDetails"));
  EXPECT_EQ(Marked("shpBirth"), 0);
  EXPECT_EQ(Lines(kCouples), "May 9 - Ann and Bob");
  EXPECT_TRUE(IsShown("txtADetails"));
  EXPECT_EQ(TextOf("txtADetails"), kAnniversaryHint.toStdString());
  EXPECT_EQ(Marked("shpAnn"), 1);
}

TEST_F(SpecialMonths, AnotherMonthResetsTheDetails)
{
  AddPerson("Ann", "May", "9");
  AddPerson("Eve", "June", "10");
  AddCouple("Ann", "Bob", "May", "9");
  Open();
  ClickLine(kBirthdays, 0);
  ClickLine(kCouples, 0);
  ClickMonth(5);
  EXPECT_EQ(List(kBirthdays).ListIndex(), -1);
  EXPECT_EQ(TextOf("txtBirthInfo"), "Birthday details for...");
  EXPECT_EQ(TextOf("txtBDetails"), kBirthdayHint.toStdString());
  EXPECT_EQ(TextOf("txtAnnInfo"), "Anniversary details for...");
  EXPECT_EQ(TextOf("txtADetails"), "");
  ClickMonth(4);
  EXPECT_EQ(TextOf("txtADetails"), kAnniversaryHint.toStdString());
}

TEST_F(SpecialMonths, TheSameMonthKeepsListsAndDetails)
{
  AddPerson("Ann", "May", "9", "1980");
  AddCouple("Ann", "Bob", "May", "9", "2001");
  Open();
  ClickLine(kBirthdays, 0);
  ClickLine(kCouples, 0);
  const std::string birthday = TextOf("txtBDetails");
  const std::string anniversary = TextOf("txtADetails");
  ASSERT_NE(birthday, kBirthdayHint.toStdString());
  AddPerson("Eve", "May", "10");
  for (int i = 0; i < 2; ++i) {
    ClickMonth(4);
    EXPECT_EQ(Lines(kBirthdays), "May  9 - Ann Wood");
    EXPECT_EQ(List(kBirthdays).ListIndex(), 0);
    EXPECT_EQ(List(kCouples).ListIndex(), 0);
    EXPECT_EQ(TextOf("txtBDetails"), birthday);
    EXPECT_EQ(TextOf("txtADetails"), anniversary);
  }
}

TEST_F(SpecialMonths, AChangeFromOutsideIsSeenAtTheNextFill)
{
  Open();
  AddPerson("Eve", "May", "10");
  AddCouple("Ann", "Bob", "May", "9");
  Pick("cboYear", "2027");
  EXPECT_EQ(Lines(kBirthdays), "No birthdays this month");
  ClickMonth(5);
  ClickMonth(4);
  EXPECT_EQ(Lines(kBirthdays), "May 10 - Eve Wood");
  EXPECT_EQ(Lines(kCouples), "May 9 - Ann and Bob");
}

TEST_F(SpecialMonths, BlanksOfCouplesOfAnyMonthBecomeNull)
{
  AddCouple("Ann", "Bob", "October", "3", "");
  AddCouple("Eve", "Joe", "", "", "");
  AddCouple("Kay", "Lou", "May", "", "1990");
  Open();
  EXPECT_EQ(folder.Value("SELECT count(*) FROM Ann WHERE AnnMonth='' OR AnnDate='' OR AnnYear=''").toInt(), 0);
  EXPECT_EQ(folder.Value("SELECT count(*) FROM Ann WHERE AnnYear IS NULL").toInt(), 2);
  EXPECT_EQ(folder.Value("SELECT count(*) FROM Ann WHERE AnnMonth IS NULL").toInt(), 1);
  EXPECT_EQ(folder.Value("SELECT count(*) FROM Ann WHERE AnnDate IS NULL").toInt(), 2);
  EXPECT_EQ(folder.Value("SELECT AnnMonth||AnnDate FROM Ann WHERE Spouse1First='Ann'").toString(), "October3");
  EXPECT_EQ(Lines(kCouples), "May  - Kay and Lou");
}

TEST_F(SpecialMonths, BlanksAreRepairedAtAFillOnly)
{
  Open();
  AddCouple("Ann", "Bob", "October", "3", "");
  ClickMonth(4);
  EXPECT_EQ(folder.Value("SELECT count(*) FROM Ann WHERE AnnYear=''").toInt(), 1);
  ClickMonth(0);
  EXPECT_EQ(folder.Value("SELECT count(*) FROM Ann WHERE AnnYear=''").toInt(), 0);
}

TEST_F(SpecialMonths, EachChangeIsHandledOnce)
{
  AddPerson("Ann", "May", "9");
  AddPerson("Eve", "June", "12");
  AddCouple("Ann", "Bob", "May", "20");
  Open();
  int changes = 0;
  QObject::connect(&Calendar(), &MonthCalendar::Change, &Calendar(), [&] { ++changes; });
  ClickMonth(5);
  EXPECT_EQ(changes, 1);
  Pick("cboYear", "2027");
  EXPECT_EQ(changes, 2);
  ClickLine(kBirthdays, 0);
  EXPECT_EQ(changes, 3);
  EXPECT_EQ(ShownDay(), "2027-06-12");
  ClickMonth(4);
  EXPECT_EQ(changes, 4);
  ExpectMonth(5, "May", 2027);
}

TEST_F(SpecialMonths, ALineClickedAfterAYearClickStillLetsTheCalendarDrive)
{
  AddPerson("Ann", "May", "9");
  Open();
  Pick("cboYear", "2027");
  ClickLine(kBirthdays, 0);
  Click("lblOptions_1");
  ClickCalendar(Grid().Arrow(1).center());
  ExpectMonth(6, "June", 2027);
  ClickCalendar(Grid().Arrow(12).center());
  ExpectMonth(6, "June", 2028);
}
