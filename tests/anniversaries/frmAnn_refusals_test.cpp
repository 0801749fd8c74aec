// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "AnniversariesTest.h"

#include <QLineEdit>

namespace {

class CoupleEditorRefusals : public AnniversariesTest
{
protected:
  // A couple, Ann and Bob, without a date.
  void AddHousehold()
  {
    ann = AddWoman("Ann");
    bob = AddMan("Bob");
    Marry(ann, bob, kNoDay);
  }

  void OpenForTheCouple()
  {
    AddHousehold();
    Open();
    ClickLine(kWomen, "Wood, Ann");
  }

  // Opens the page for a couple whose own rows hold what the boxes do not offer. The
  // husband's row is read last when the wife is chosen.
  void OpenForDamaged(const Day& day)
  {
    SetWedding(ann, day);
    SetWedding(bob, day);
    Open();
    ClickLine(kWomen, "Wood, Ann");
    ASSERT_EQ(ShownDay(), day.Text());
  }

  void ExpectDamagedRefused(const Day& day, const QString& message)
  {
    SCOPED_TRACE(day.Text());
    OpenForDamaged(day);
    ExpectRefused(message);
    Leave();
  }

  void ExpectEntryRefused(const Day& day, const QString& message)
  {
    SCOPED_TRACE(day.Text());
    PickDay(day);
    ASSERT_EQ(ShownDay(), day.Text());
    ExpectRefused(message);
  }

  void ExpectEntryAccepted(const Day& day)
  {
    SCOPED_TRACE(day.Text());
    ClickLine(kWomen, "Wood, Ann");
    PickDay(day);
    ASSERT_EQ(ShownDay(), day.Text());
    Update();
    EXPECT_TRUE(IsDone());
    ClickLine(kWomen, "Wood, Ann");
    EXPECT_EQ(ShownDay(), day.Text());
    ExpectCopiesAgree();
  }

  static QString NotValid(const QString& text) { return text + " is not valid. Please try again."; }
  static QString NotADate(const QString& text) { return text + " is not a valid date. Please try again."; }
  static QString InvalidValue(const QString& text) { return text + " is an invalid value. Please try again."; }

  int ann = 0;
  int bob = 0;
};

}

TEST_F(CoupleEditorRefusals, NobodyInTheDatabase)
{
  Open();
  ExpectRefused("There are no names in the database");
}

TEST_F(CoupleEditorRefusals, NobodyComesBeforeAWrongDate)
{
  AddPerson("Dana", "Dunn", QVariant());
  Open();
  PickDay({"February", "30", "2030"});
  ExpectRefused("There are no names in the database");
}

TEST_F(CoupleEditorRefusals, WomenOnly)
{
  AddWoman("Ann");
  Open();
  ExpectRefused("Please select both partners");
  ClickLine(kWomen, "Wood, Ann");
  ExpectRefused("Please select both partners");
}

TEST_F(CoupleEditorRefusals, MenOnly)
{
  AddMan("Bob");
  Open();
  ClickLine(kMen, "Marsh, Bob");
  ExpectRefused("Please select both partners");
}

TEST_F(CoupleEditorRefusals, NoPartnerChosen)
{
  AddHousehold();
  Open();
  ExpectRefused("Please select both partners");
}

TEST_F(CoupleEditorRefusals, OnePartnerChosen)
{
  AddWoman("Ann");
  AddMan("Bob");
  Open();
  ClickLine(kWomen, "Wood, Ann");
  ExpectRefused("Please select both partners");
  Click(AnnCommand::kCancel);
  ClickLine(kMen, "Marsh, Bob");
  ExpectRefused("Please select both partners");
}

TEST_F(CoupleEditorRefusals, MissingPartnersComeBeforeAWrongDate)
{
  AddHousehold();
  Open();
  PickDay({"February", "30", "2030"});
  ExpectRefused("Please select both partners");
}

TEST_F(CoupleEditorRefusals, AMonthThatWasShortened)
{
  OpenForTheCouple();
  Pick("cboAnnMonth", "February");
  Pick("cboAnnDate", "31");
  Press("cboAnnMonth", Qt::Key_End);
  Press("cboAnnMonth", Qt::Key_Backspace);
  ExpectRefused(NotValid("Februar"));
}

TEST_F(CoupleEditorRefusals, MonthsThatOnlyADamagedRowHolds)
{
  AddHousehold();
  for (const QString& month : {QString("june"), QString("JUNE"), QString("Jun"), QString("June "), QString(" "),
                               QString("13"), QString("Brumaire"), QString("Ju\u0308ni")}) {
    ExpectDamagedRefused({month, "", ""}, NotValid(month));
  }
}

TEST_F(CoupleEditorRefusals, DaysThatTheMonthHasNot)
{
  OpenForTheCouple();
  ExpectEntryRefused({"February", "30", ""}, NotValid("February 30"));
  ExpectEntryRefused({"February", "31", "1999"}, NotValid("February 31"));
  for (const QString& month : {QString("April"), QString("June"), QString("September"), QString("November")}) {
    ExpectEntryRefused({month, "31", "1999"}, NotValid(month + " 31"));
  }
}

TEST_F(CoupleEditorRefusals, LastDaysOfEachMonthPass)
{
  OpenForTheCouple();
  for (const char* month : {"January", "March", "May", "July", "August", "October", "December"}) {
    ExpectEntryAccepted({month, "31", "2001"});
  }
  for (const char* month : {"April", "June", "September", "November"}) {
    ExpectEntryAccepted({month, "30", "2001"});
  }
}

TEST_F(CoupleEditorRefusals, TheLeapDayInACommonYear)
{
  OpenForTheCouple();
  ExpectEntryRefused({"February", "29", "1999"}, NotADate("February 29, 1999"));
  ExpectEntryRefused({"February", "29", "2026"}, NotADate("February 29, 2026"));
}

TEST_F(CoupleEditorRefusals, TheLeapDayInEveryFourthYearPasses)
{
  OpenForTheCouple();
  ExpectEntryAccepted({"February", "29", "2000"});
  ExpectEntryAccepted({"February", "29", "1996"});
  ExpectEntryAccepted({"February", "29", "1900"});
  ExpectEntryAccepted({"February", "29", ""});
}

TEST_F(CoupleEditorRefusals, TheLeapDayComesBeforeTheYear)
{
  AddHousehold();
  ExpectDamagedRefused({"February", "29", "1899"}, NotADate("February 29, 1899"));
  ExpectDamagedRefused({"February", "29", "2051"}, NotADate("February 29, 2051"));
  ExpectDamagedRefused({"February", "29", "2052"}, InvalidValue("2052"));
}

TEST_F(CoupleEditorRefusals, DaysAndYearsThatAreNoNumbers)
{
  AddHousehold();
  ExpectDamagedRefused({"", "x", ""}, InvalidValue("x"));
  ExpectDamagedRefused({"", "1st", "1999"}, InvalidValue("1st"));
  ExpectDamagedRefused({"", " ", ""}, InvalidValue(" "));
  ExpectDamagedRefused({"", "", "MCM"}, InvalidValue("MCM"));
  ExpectDamagedRefused({"June", "1", " "}, InvalidValue(" "));
}

TEST_F(CoupleEditorRefusals, DaysAndYearsOutOfRange)
{
  AddHousehold();
  ExpectDamagedRefused({"", "0", ""}, InvalidValue("0"));
  ExpectDamagedRefused({"May", "32", "1999"}, InvalidValue("32"));
  ExpectDamagedRefused({"", "-1", ""}, InvalidValue("-1"));
  ExpectDamagedRefused({"", "", "1899"}, InvalidValue("1899"));
  ExpectDamagedRefused({"", "", "2051"}, InvalidValue("2051"));
}

TEST_F(CoupleEditorRefusals, AYearThatWasShortened)
{
  OpenForTheCouple();
  Pick("cboAnnYear", "1999");
  Press("cboAnnYear", Qt::Key_End);
  Press("cboAnnYear", Qt::Key_Backspace);
  ExpectRefused(InvalidValue("199"));
}

TEST_F(CoupleEditorRefusals, ADayThatWasShortenedIsADay)
{
  OpenForTheCouple();
  Pick("cboAnnDate", "31");
  Press("cboAnnDate", Qt::Key_End);
  Press("cboAnnDate", Qt::Key_Backspace);
  Update();
  EXPECT_EQ(WeddingOf(ann), "-|3|-");
}

TEST_F(CoupleEditorRefusals, WrongPartsAreToldInTheirOrder)
{
  AddHousehold();
  ExpectDamagedRefused({"Febr", "30", "x"}, NotValid("Febr"));
  ExpectDamagedRefused({"February", "30", "x"}, NotValid("February 30"));
  ExpectDamagedRefused({"May", "x", "y"}, InvalidValue("x"));
  ExpectDamagedRefused({"May", "32", "y"}, InvalidValue("y"));
  ExpectDamagedRefused({"May", "32", "2051"}, InvalidValue("32"));
}

TEST_F(CoupleEditorRefusals, AWeddingTodayPasses)
{
  OpenForTheCouple();
  ExpectEntryAccepted({"May", "5", "2026"});
}

TEST_F(CoupleEditorRefusals, AWeddingTomorrowHasNotYetOccurred)
{
  OpenForTheCouple();
  ExpectEntryRefused({"May", "6", "2026"}, kNotOccurred);
}

TEST_F(CoupleEditorRefusals, TomorrowOverTheTurnOfTheYear)
{
  Clock::StopOn(QDate(2025, 12, 31));
  OpenForTheCouple();
  ExpectEntryRefused({"January", "1", "2026"}, kNotOccurred);
  ExpectEntryAccepted({"December", "31", "2025"});
}

TEST_F(CoupleEditorRefusals, DatesToCome)
{
  OpenForTheCouple();
  for (const Day& day : {Day{"June", "5", "2026"}, Day{"June", "", "2026"}, Day{"", "", "2027"}, Day{"", "31", "2027"},
                         Day{"January", "", "2027"}, Day{"January", "1", "2050"}}) {
    ExpectEntryRefused(day, kNotOccurred);
  }
}

TEST_F(CoupleEditorRefusals, DatesThatMayHaveBeen)
{
  OpenForTheCouple();
  for (const Day& day :
       {Day{"May", "", "2026"}, Day{"", "", "2026"}, Day{"", "31", "2026"}, Day{"December", "31", "2025"},
        Day{"December", "31", ""}, Day{"", "31", ""}, Day{"May", "4", "2026"}}) {
    ExpectEntryAccepted(day);
  }
}

TEST_F(CoupleEditorRefusals, ALaterMonthOfAnEarlierYearPasses)
{
  Clock::StopOn(QDate(2005, 5, 5));
  OpenForTheCouple();
  ExpectEntryRefused({"June", "", "2005"}, kNotOccurred);
  ExpectEntryAccepted({"June", "", "2001"});
  ExpectEntryAccepted({"December", "31", "2001"});
}

TEST_F(CoupleEditorRefusals, TheBoxesOfTheDateThrowKeysAway)
{
  OpenForTheCouple();
  PickDay(kJune);
  for (const QString& combo : kDateBoxes) {
    const QString before = Combo(combo).Text();
    QTest::keyClicks(&Control(combo), "aZ19 -");
    Press(combo, Qt::Key_Delete);
    Press(combo, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Combo(combo).Text(), before);
    Press(combo, Qt::Key_End);
    Press(combo, Qt::Key_Backspace);
  }
  EXPECT_NE(ShownDay(), kJune.Text());
}

TEST_F(CoupleEditorRefusals, BackspaceShortensEachPartOfTheDate)
{
  OpenForTheCouple();
  PickDay(kJune);
  for (const QString& combo : kDateBoxes) {
    const QString before = Combo(combo).Text();
    QLineEdit& line = *Combo(combo).lineEdit();
    line.setCursorPosition(static_cast<int>(before.size()));
    Press(combo, Qt::Key_Backspace);
    EXPECT_EQ(Combo(combo).Text(), before.chopped(1));
    Erase(combo);
    EXPECT_EQ(Combo(combo).Text(), "");
  }
}

TEST_F(CoupleEditorRefusals, EnterWalksFromMonthToDayToYear)
{
  OpenForTheCouple();
  const auto focused = [](const QString& name) {
    return QTest::qWaitFor([&] { return Page().window()->focusWidget() == &Control(name); }, 1000);
  };
  Control("cboAnnMonth").setFocus();
  Press("cboAnnMonth", Qt::Key_Return);
  EXPECT_TRUE(focused("cboAnnDate"));
  Press("cboAnnDate", Qt::Key_Enter);
  EXPECT_TRUE(focused("cboAnnYear"));
  EXPECT_EQ(ShownDay(), kNoDay.Text());
}
