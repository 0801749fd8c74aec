// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "OccasionsTest.h"

#include <QFile>

#include <set>

namespace {

class SpecialDetails : public OccasionsPageTest
{
};

}

TEST_F(SpecialDetails, ABirthdayIsToldInTwoLines)
{
  AddPerson("Ann", "May", "9", "1980");
  Open();
  ClickLine(kBirthdays, 0);
  EXPECT_EQ(TextOf("txtBirthInfo"), "Birthday details for Ann...");
  EXPECT_EQ(TextOf("txtBDetails"),
            "Ann's birthday is 4 days away.\r\nShe was born in 1980 and is currently 45 years old.");
  EXPECT_TRUE(IsShown("txtBDetails"));
  EXPECT_EQ(Marked("shpBirth"), 1);
  EXPECT_EQ(ShownDay(), "2026-05-09");
  ExpectRaised();
  EXPECT_EQ(TextOf("txtAnnInfo"), "Anniversary details for...");
}

TEST_F(SpecialDetails, AnAnniversaryIsToldInTwoLines)
{
  AddCouple("Ann", "Bob", "May", "2", "1990");
  Open();
  ClickLine(kCouples, 0);
  EXPECT_EQ(TextOf("txtAnnInfo"), "Anniversary details for Ann and Bob Wood...");
  EXPECT_EQ(
      TextOf("txtADetails"),
      "Ann and Bob's anniversary was 3 days ago.\r\nTheir wedding was in 1990, and they've been married 36 years.");
  EXPECT_TRUE(IsShown("txtADetails"));
  EXPECT_EQ(Marked("shpAnn"), 1);
  EXPECT_EQ(ShownDay(), "2026-05-02");
  ExpectRaised();
  EXPECT_EQ(TextOf("txtBirthInfo"), "Birthday details for...");
}

TEST_F(SpecialDetails, ACoupleOfTwoSurnamesIsNamedInFullWithoutDots)
{
  AddCouple("Ann", "Bob", "May", "2", "1990");
  folder.Execute("UPDATE Ann SET Spouse2Last='Marsh'");
  Open();
  ClickLine(kCouples, 0);
  EXPECT_EQ(TextOf("txtAnnInfo"), "Anniversary details for Ann Wood and Bob Marsh");
}

TEST_F(SpecialDetails, WithoutAYearTheTextEndsInTheLineBreak)
{
  AddPerson("Ann", "May", "5");
  AddCouple("Ann", "Bob", "May", "6");
  Open();
  ClickLine(kBirthdays, 0);
  EXPECT_EQ(TextOf("txtBDetails"), "Ann's birthday is today!\r\n");
  ClickLine(kCouples, 0);
  EXPECT_EQ(TextOf("txtADetails"), "Ann and Bob's anniversary is tomorrow!\r\n");
}

TEST_F(SpecialDetails, TheArrowKeysGoFromLineToLine)
{
  AddPerson("Ann", "May", "4");
  AddPerson("Eve", "May", "6");
  Open();
  ClickLine(kBirthdays, 0);
  EXPECT_EQ(TextOf("txtBDetails"), "Ann's birthday was yesterday.\r\n");
  Press(kBirthdays, Qt::Key_Down);
  EXPECT_EQ(TextOf("txtBirthInfo"), "Birthday details for Eve...");
  EXPECT_EQ(TextOf("txtBDetails"), "Eve's birthday is tomorrow!\r\n");
  EXPECT_EQ(ShownDay(), "2026-05-06");
}

TEST_F(SpecialDetails, TwoPeopleOfOneDayAndNameAreToldApart)
{
  const int older = AddPerson("Ann", "May", "9", "1950");
  const int younger = AddPerson("Ann", "May", "9", "1990");
  Open();
  ASSERT_EQ(Lines(kBirthdays), "May  9 - Ann Wood|May  9 - Ann Wood");
  ClickLine(kBirthdays, 0);
  const int first = modID::SelectedPersonID;
  const std::string firstText = TextOf("txtBDetails");
  ClickLine(kBirthdays, 1);
  const int second = modID::SelectedPersonID;
  EXPECT_EQ((std::set<int>{first, second}), (std::set<int>{older, younger}));
  const std::string old = "Ann's birthday is 4 days away.\r\nShe was born in 1950 and is currently 75 years old.";
  const std::string young = "Ann's birthday is 4 days away.\r\nShe was born in 1990 and is currently 35 years old.";
  EXPECT_EQ(firstText, first == older ? old : young);
  EXPECT_EQ(TextOf("txtBDetails"), second == older ? old : young);
}

TEST_F(SpecialDetails, TheIdsOfWhoWasClickedAreKept)
{
  const int ann = AddPerson("Ann", "May", "9");
  const int eve = AddPerson("Eve", "May", "10");
  AddCouple("Ann", "Bob", "May", "2", "1990", 31, 32);
  AddCouple("Eve", "Joe", "May", "3", "1990", 41, 42);
  Open();
  ClickLine(kBirthdays, 1);
  EXPECT_EQ(modID::SelectedPersonID, ann);
  ClickLine(kBirthdays, 0);
  EXPECT_EQ(modID::SelectedPersonID, eve);
  EXPECT_EQ(modID::CoupleSpouse1ID, 0);
  EXPECT_EQ(modID::CoupleSpouse2ID, 0);
  ClickLine(kCouples, 1);
  EXPECT_EQ(modID::CoupleSpouse1ID, 41);
  EXPECT_EQ(modID::CoupleSpouse2ID, 42);
  EXPECT_EQ(modID::SelectedPersonID, eve);
}

TEST_F(SpecialDetails, WithoutADayNothingFurtherIsKnown)
{
  const int ann = AddPerson("Ann", "May", "9");
  const int eve = AddPerson("Eve", "May", {}, "1980");
  Open();
  ClickLine(kBirthdays, 1);
  ASSERT_EQ(modID::SelectedPersonID, ann);
  Hands::SavePicture(PersonFile(eve));
  ClickLine(kBirthdays, 0);
  EXPECT_EQ(TextOf("txtBDetails"), "No further information available");
  EXPECT_EQ(TextOf("txtBirthInfo"), "Birthday details for Ann...");
  EXPECT_EQ(Control("txtBDetails").palette().color(QPalette::Text).name().toStdString(), "#000000");
  EXPECT_EQ(modID::SelectedPersonID, eve);
  EXPECT_EQ(ShownColour(), "#ff0000");
  EXPECT_EQ(ShownDay(), "2026-05-09");
}

TEST_F(SpecialDetails, ACoupleWithoutADayLeavesTheIdsAlone)
{
  AddCouple("Ann", "Bob", "May", {}, "1990", 31, 32);
  Open();
  ClickLine(kCouples, 0);
  EXPECT_EQ(TextOf("txtADetails"), "No further information available");
  EXPECT_EQ(TextOf("txtAnnInfo"), "Anniversary details for...");
  EXPECT_EQ(Control("txtADetails").palette().color(QPalette::Text).name().toStdString(), "#000000");
  EXPECT_EQ(modID::CoupleSpouse1ID, 0);
  EXPECT_EQ(modID::CoupleSpouse2ID, 0);
  EXPECT_EQ(ShownDay(), "2026-05-05");
  EXPECT_NE(Calendar().ActiveDayFontSize(), 14);
}

TEST_F(SpecialDetails, ANoDataEntryChangesNothing)
{
  UseGarden();
  modID::SelectedPersonID = 7;
  Open();
  ClickLine(kBirthdays, 0);
  ClickLine(kCouples, 0);
  EXPECT_EQ(TextOf("txtBirthInfo"), "Birthday details for...");
  EXPECT_EQ(TextOf("txtAnnInfo"), "Anniversary details for...");
  EXPECT_EQ(TextOf("txtBDetails"), "");
  EXPECT_EQ(TextOf("txtADetails"), "");
  EXPECT_FALSE(IsShown("txtBDetails"));
  EXPECT_FALSE(IsShown("txtADetails"));
  EXPECT_EQ(Marked("shpBirth"), 0);
  EXPECT_EQ(Marked("shpAnn"), 0);
  EXPECT_EQ(modID::SelectedPersonID, 7);
  EXPECT_EQ(ShownDay(), "2026-05-05");
  EXPECT_NE(Calendar().ActiveDayFontSize(), 14);
  ExpectDecoration();
}

TEST_F(SpecialDetails, ANoDataEntryAfterAMonthWithPeopleChangesNothing)
{
  const int ann = AddPerson("Ann", "May", "9");
  Open();
  ClickLine(kBirthdays, 0);
  ClickMonth(5);
  ClickLine(kBirthdays, 0);
  EXPECT_EQ(TextOf("txtBirthInfo"), "Birthday details for...");
  EXPECT_FALSE(IsShown("txtBDetails"));
  EXPECT_EQ(modID::SelectedPersonID, ann);
  EXPECT_EQ(ShownDay(), "2026-06-01");
}

TEST_F(SpecialDetails, AnotherYearRewritesTheSentences)
{
  Clock::StopOn(QDate(2002, 12, 15));
  AddPerson("Ann", "January", "10", "1970");
  AddCouple("Ann", "Bob", "January", "10", "1990");
  Open();
  EXPECT_EQ(Lines(kBirthdays), "No birthdays this month");
  ClickMonth(0);
  ClickLine(kBirthdays, 0);
  ClickLine(kCouples, 0);
  const std::string age = "\r\nShe was born in 1970 and is currently 32 years old.";
  const std::string married = "\r\nTheir wedding was in 1990, and they've been married 12 years.";
  EXPECT_EQ(TextOf("txtBDetails"), "Ann's birthday was 339 days ago." + age);
  EXPECT_EQ(TextOf("txtADetails"), "Ann and Bob's anniversary was 339 days ago." + married);
  Pick("cboYear", "2003");
  EXPECT_EQ(List(kBirthdays).ListIndex(), 0);
  EXPECT_EQ(List(kCouples).ListIndex(), 0);
  EXPECT_EQ(TextOf("txtBDetails"), "Ann's birthday in 2003 is 26 days away." + age);
  EXPECT_EQ(TextOf("txtADetails"), "Ann and Bob's anniversary in 2003 is 26 days away." + married);
  EXPECT_EQ(ShownDay(), "2003-01-10");
  ExpectRaised();
  Pick("cboYear", "2001");
  EXPECT_EQ(TextOf("txtBDetails"), "Ann's birthday in 2001 was 704 days ago." + age);
  EXPECT_EQ(ShownDay(), "2001-01-10");
}

TEST_F(SpecialDetails, AfterAnotherYearTheCalendarStandsOnTheAnniversary)
{
  AddPerson("Ann", "May", "9");
  AddCouple("Ann", "Bob", "May", "20");
  Open();
  ClickLine(kCouples, 0);
  ClickLine(kBirthdays, 0);
  EXPECT_EQ(ShownDay(), "2026-05-09");
  Pick("cboYear", "2027");
  EXPECT_EQ(ShownDay(), "2027-05-20");
}

TEST_F(SpecialDetails, TheEmphasisIsRaisedByAClickAndLoweredByAnyOtherChange)
{
  AddPerson("Ann", "May", "9");
  AddPerson("Eve", "June", "9");
  Open();
  ClickLine(kBirthdays, 0);
  ExpectRaised();
  ClickMonth(5);
  ExpectPlain();
  ClickLine(kBirthdays, 0);
  ExpectRaised();
  QTest::keyClick(&Calendar(), Qt::Key_PageDown);
  ExpectPlain();
}

TEST_F(SpecialDetails, AClickOnTheMonthOnShowLowersTheEmphasis)
{
  AddPerson("Ann", "May", "9");
  Open();
  ClickLine(kBirthdays, 0);
  ClickMonth(4);
  ExpectPlain();
}

TEST_F(SpecialDetails, AnEmphasisThatIsNotRaisedIsLeftAlone)
{
  Open();
  ASSERT_EQ(Calendar().ActiveDayFontSize(), 9.75);
  ClickMonth(5);
  EXPECT_EQ(Calendar().ActiveDayFontSize(), 9.75);
}

TEST_F(SpecialDetails, ABirthdayOf29FebruaryInACommonYear)
{
  AddPerson("Ann", "February", "29", "1980");
  AddPerson("Eve", "February", "10");
  Open();
  ClickMonth(1);
  ClickLine(kBirthdays, 1);
  EXPECT_EQ(ShownDay(), "2026-02-28");
  EXPECT_NE(Calendar().ActiveDayFontSize(), 14);
  EXPECT_EQ(SelectedMonths(), std::vector<int>{1});
  EXPECT_EQ(TextOf("txtBDetails"),
            "Ann's birthday was 65 days ago.\r\nShe was born in 1980 and is currently 46 years old.");
  ClickLine(kBirthdays, 0);
  ExpectRaised();
  ClickLine(kBirthdays, 1);
  EXPECT_EQ(ShownDay(), "2026-02-28");
  ExpectRaised();
}

TEST_F(SpecialDetails, ABirthdayOf29FebruaryInALeapYear)
{
  AddPerson("Ann", "February", "29");
  Open();
  ClickMonth(1);
  Pick("cboYear", "2024");
  ClickLine(kBirthdays, 0);
  EXPECT_EQ(ShownDay(), "2024-02-29");
  ExpectRaised();
  EXPECT_EQ(TextOf("txtBDetails"), "Ann's birthday in 2024 was 796 days ago.\r\n");
  Pick("cboYear", "2025");
  EXPECT_EQ(ShownDay(), "2025-02-28");
  ExpectPlain();
  EXPECT_EQ(TextOf("txtBDetails"), "Ann's birthday in 2025 was 430 days ago.\r\n");
}

TEST_F(SpecialDetails, A29FebruaryOf1900IsReportedAsNoDate)
{
  AddPerson("Ann", "February", "29");
  Open();
  ClickMonth(1);
  Pick("cboYear", "1900");
  int endings = 0;
  Application::SetEnding([&](int) { ++endings; });
  boxes.Expect("Run-time error '13':\n\nType mismatch");
  ClickLine(kBirthdays, 0);
  EXPECT_EQ(endings, 1);
  EXPECT_EQ(boxes.Count(), 1U);
}

TEST_F(SpecialDetails, AWeddingOn29February)
{
  AddCouple("Ann", "Bob", "February", "29");
  Open();
  ClickMonth(1);
  ClickLine(kCouples, 0);
  EXPECT_EQ(ShownDay(), "2026-02-28");
  EXPECT_NE(Calendar().ActiveDayFontSize(), 14);
  EXPECT_EQ(TextOf("txtADetails"), "Ann and Bob's anniversary was 65 days ago.\r\n");
  Pick("cboYear", "2028");
  EXPECT_EQ(ShownDay(), "2028-02-29");
  ExpectRaised();
  EXPECT_EQ(TextOf("txtADetails"), "Ann and Bob's anniversary in 2028 is 665 days away.\r\n");
}

TEST_F(SpecialDetails, APersonsPictureTakesThePlaceOfTheDecoration)
{
  UseGarden();
  const int ann = AddPerson("Ann", "May", "1");
  AddPerson("Eve", "May", "2");
  Hands::SavePicture(PersonFile(ann));
  Open();
  ExpectDecoration();
  ClickLine(kBirthdays, 0);
  EXPECT_EQ(ShownColour(), "#ff0000");
  EXPECT_TRUE(IsShown("imgPerson"));
  EXPECT_TRUE(IsShown("picPerson"));
  EXPECT_FALSE(IsShown("picThemes"));
  EXPECT_TRUE(Decoration().Picture().isNull());
  EXPECT_EQ(Picture().pos(), QPoint(0, 0));
  EXPECT_EQ(Control("picPerson").size(), Picture().size());
  ClickLine(kBirthdays, 1);
  ExpectDecoration();
}

TEST_F(SpecialDetails, ACouplesPictureComesFromItsOwnFolder)
{
  UseGarden();
  const int couple = AddCouple("Ann", "Bob", "May", "1");
  AddCouple("Eve", "Joe", "May", "2");
  Hands::SavePicture(CoupleFile(couple), Qt::blue);
  Hands::SavePicture(PersonFile(couple), Qt::red);
  Open();
  ClickLine(kCouples, 0);
  EXPECT_EQ(ShownColour(), "#0000ff");
  EXPECT_TRUE(IsShown("picPerson"));
  ClickLine(kCouples, 1);
  ExpectDecoration();
}

TEST_F(SpecialDetails, ADamagedPictureCountsAsNone)
{
  UseGarden();
  const int ann = AddPerson("Ann", "May", "1");
  QFile file(PersonFile(ann));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("BM no picture");
  file.close();
  Open();
  ClickLine(kBirthdays, 0);
  ExpectDecoration();
  EXPECT_EQ(TextOf("txtBirthInfo"), "Birthday details for Ann...");
}

TEST_F(SpecialDetails, AnotherMonthBringsTheDecorationBack)
{
  UseGarden();
  Hands::SavePicture(PersonFile(AddPerson("Ann", "May", "1")));
  Open();
  ClickLine(kBirthdays, 0);
  ASSERT_TRUE(IsShown("picPerson"));
  ClickMonth(7);
  ExpectDecoration();
}

TEST_F(SpecialDetails, EveryPictureIsFittedToTheWholeBox)
{
  const int ann = AddPerson("Ann", "May", "1");
  const int eve = AddPerson("Eve", "May", "2");
  Hands::SavePicture(PersonFile(ann), Qt::red, {20, 400});
  Hands::SavePicture(PersonFile(eve), Qt::blue, {400, 40});
  Open();
  ClickLine(kBirthdays, 1);
  const QSize alone = Picture().size();
  ClickLine(kBirthdays, 0);
  ASSERT_NE(Picture().size(), alone);
  ClickLine(kBirthdays, 1);
  EXPECT_EQ(Picture().size(), alone);
}

TEST_F(SpecialDetails, SomebodyDeletedFromOutsideIsNotTold)
{
  const int ann = AddPerson("Ann", "May", "8");
  const int eve = AddPerson("Eve", "May", "9");
  Open();
  ClickLine(kBirthdays, 0);
  folder.Execute("DELETE FROM People WHERE PeopleID=?", {eve});
  ClickLine(kBirthdays, 1);
  EXPECT_EQ(modID::SelectedPersonID, ann);
  EXPECT_EQ(TextOf("txtBirthInfo"), "Birthday details for Ann...");
  EXPECT_EQ(ShownDay(), "2026-05-08");
  EXPECT_EQ(TextOf("txtBDetails"), "\r\n");
}

TEST_F(SpecialDetails, TheLastOfAMonthDeletedFromOutsideChangesNothing)
{
  const int eve = AddPerson("Eve", "May", "9");
  const int couple = AddCouple("Ann", "Bob", "May", "2");
  Open();
  folder.Execute("DELETE FROM People WHERE PeopleID=?", {eve});
  folder.Execute("DELETE FROM Ann WHERE AnnID=?", {couple});
  ClickLine(kBirthdays, 0);
  ClickLine(kCouples, 0);
  EXPECT_EQ(TextOf("txtBDetails"), kBirthdayHint.toStdString());
  EXPECT_EQ(TextOf("txtADetails"), kAnniversaryHint.toStdString());
  EXPECT_EQ(modID::SelectedPersonID, 0);
  EXPECT_EQ(ShownDay(), "2026-05-05");
}
