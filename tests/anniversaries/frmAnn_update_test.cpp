// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "AnniversariesTest.h"

#include <QElapsedTimer>

namespace {

class CoupleEditorUpdate : public AnniversariesTest
{
protected:
  // A couple, Ann and Bob, married in June; Eve and Fred are single.
  void AddHousehold()
  {
    ann = AddWoman("Ann");
    bob = AddMan("Bob");
    couple = Marry(ann, bob, kJune);
    eve = AddWoman("Eve", "Wyre");
    fred = AddMan("Fred", "Moor");
  }
  void OpenForSingles()
  {
    Open();
    ClickLine(kWomen, "Wyre, Eve");
    ClickLine(kMen, "Moor, Fred");
  }

  // Two couples whom the lists do not bring together, so that a partner of each can be
  // chosen: Dan is no longer listed with the men, nor Cleo with the women.
  void AddCouplesApart()
  {
    ann = AddWoman("Ann");
    const int dan = AddMan("Dan");
    const int cleo = AddWoman("Cleo");
    bob = AddMan("Bob");
    Marry(ann, dan, kJune);
    Marry(cleo, bob, kMarch);
    folder.Execute("UPDATE People SET Gender='Female' WHERE PeopleID=?", {dan});
    folder.Execute("UPDATE People SET Gender='Male' WHERE PeopleID=?", {cleo});
  }

  // As the rows hold it.
  static std::string Stored(const Day& day)
  {
    const auto part = [](const QString& text) { return text.isEmpty() ? QString("-") : text; };
    return Day{part(day.month), part(day.day), part(day.year)}.Text();
  }

  int ann = 0;
  int bob = 0;
  int eve = 0;
  int fred = 0;
  int couple = 0;
};

}

TEST_F(CoupleEditorUpdate, MakesANewCouple)
{
  AddHousehold();
  OpenForSingles();
  PickDay({"April", "30", "2004"});
  Update();
  EXPECT_EQ(CoupleCount(), 2);
  EXPECT_EQ(Couple(couple + 1), QString("%1|Eve|Wyre|%2|Fred|Moor|April|30|2004").arg(eve).arg(fred).toStdString());
  EXPECT_EQ(WeddingOf(eve), "April|30|2004");
  EXPECT_EQ(WeddingOf(fred), "April|30|2004");
  EXPECT_EQ(Couple(couple), QString("%1|Ann|Wood|%2|Bob|Marsh|June|12|1999").arg(ann).arg(bob).toStdString());
  EXPECT_EQ(Lines(kCouples), QStringList({"Ann and Bob", "Eve and Fred"}));
  ExpectCopiesAgree();
}

TEST_F(CoupleEditorUpdate, MakesTheFirstCouple)
{
  eve = AddWoman("Eve", "Wyre");
  fred = AddMan("Fred", "Moor");
  OpenForSingles();
  PickDay({"April", "30", "2004"});
  Update();
  EXPECT_EQ(Couples(), std::vector<std::string>({"1|1|Eve|Wyre|2|Fred|Moor|April|30|2004"}));
  EXPECT_EQ(Lines(kCouples), QStringList({"Eve and Fred"}));
  ExpectCopiesAgree();
}

TEST_F(CoupleEditorUpdate, ACoupleWithoutADateHasNoneAnywhere)
{
  AddHousehold();
  OpenForSingles();
  Update();
  EXPECT_EQ(Couple(couple + 1), QString("%1|Eve|Wyre|%2|Fred|Moor|-|-|-").arg(eve).arg(fred).toStdString());
  EXPECT_EQ(WeddingOf(eve), "-|-|-");
  EXPECT_EQ(WeddingOf(fred), "-|-|-");
  EXPECT_TRUE(IsDone());
}

TEST_F(CoupleEditorUpdate, ErasingADateMakesItNullEverywhere)
{
  AddHousehold();
  Open();
  ClickLine(kWomen, "Wood, Ann");
  for (const QString& combo : kDateBoxes) {
    Erase(combo);
  }
  Update();
  EXPECT_EQ(Couple(couple), QString("%1|Ann|Wood|%2|Bob|Marsh|-|-|-").arg(ann).arg(bob).toStdString());
  EXPECT_EQ(WeddingOf(ann), "-|-|-");
  EXPECT_EQ(WeddingOf(bob), "-|-|-");
}

TEST_F(CoupleEditorUpdate, ChangesTheDateOfACouple)
{
  AddHousehold();
  const int other = Marry(eve, fred, kMarch);
  Open();
  ClickLine(kMen, "Marsh, Bob");
  PickDay({"May", "5", "2001"});
  Update();
  EXPECT_EQ(CoupleCount(), 2);
  EXPECT_EQ(Couple(couple), QString("%1|Ann|Wood|%2|Bob|Marsh|May|5|2001").arg(ann).arg(bob).toStdString());
  EXPECT_EQ(WeddingOf(ann), "May|5|2001");
  EXPECT_EQ(WeddingOf(bob), "May|5|2001");
  EXPECT_EQ(Couple(other), QString("%1|Eve|Wyre|%2|Fred|Moor|March|3|1980").arg(eve).arg(fred).toStdString());
  ExpectCopiesAgree();
  ClickLine(kWomen, "Wood, Ann");
  EXPECT_EQ(ShownDay(), "May|5|2001");
}

TEST_F(CoupleEditorUpdate, StoresEveryPartOfADateByItself)
{
  AddHousehold();
  Open();
  for (const Day& day : {Day{"June", "", ""}, Day{"", "7", ""}, Day{"", "", "1988"}, Day{"June", "7", ""},
                         Day{"June", "", "1988"}, Day{"", "7", "1988"}, Day{"December", "31", "1900"}}) {
    ClickLine(kWomen, "Wood, Ann");
    PickDay(day);
    ASSERT_EQ(ShownDay(), day.Text());
    Update();
    const std::string stored = Stored(day);
    EXPECT_EQ(WeddingOf(ann), stored);
    EXPECT_EQ(WeddingOf(bob), stored);
    EXPECT_EQ(Couple(couple), QString("%1|Ann|Wood|%2|Bob|Marsh|").arg(ann).arg(bob).toStdString() + stored);
  }
}

TEST_F(CoupleEditorUpdate, AReplacedWifeLosesTheDate)
{
  AddHousehold();
  Open();
  ClickLine(kMen, "Marsh, Bob");
  ClickLine(kWomen, "Wyre, Eve");
  PickDay(kMarch);
  Update();
  EXPECT_EQ(CoupleCount(), 1);
  EXPECT_EQ(Couple(couple), QString("%1|Eve|Wyre|%2|Bob|Marsh|March|3|1980").arg(eve).arg(bob).toStdString());
  EXPECT_EQ(WeddingOf(ann), "-|-|-");
  EXPECT_EQ(WeddingOf(eve), "March|3|1980");
  EXPECT_EQ(WeddingOf(bob), "March|3|1980");
  EXPECT_EQ(Lines(kCouples), QStringList({"Eve and Bob"}));
  ExpectCopiesAgree();
}

TEST_F(CoupleEditorUpdate, AReplacedHusbandLosesTheDate)
{
  AddHousehold();
  Open();
  ClickLine(kWomen, "Wood, Ann");
  ClickLine(kMen, "Moor, Fred");
  PickDay(kMarch);
  Update();
  EXPECT_EQ(Couple(couple), QString("%1|Ann|Wood|%2|Fred|Moor|March|3|1980").arg(ann).arg(fred).toStdString());
  EXPECT_EQ(WeddingOf(bob), "-|-|-");
  EXPECT_EQ(WeddingOf(ann), "March|3|1980");
  EXPECT_EQ(WeddingOf(fred), "March|3|1980");
  EXPECT_EQ(Lines(kCouples), QStringList({"Ann and Fred"}));
  ExpectCopiesAgree();
}

TEST_F(CoupleEditorUpdate, AReplacedPartnerCanMarryAgainAtOnce)
{
  AddHousehold();
  Open();
  ClickLine(kMen, "Marsh, Bob");
  ClickLine(kWomen, "Wyre, Eve");
  Update();
  ClickLine(kMen, "Moor, Fred");
  ClickLine(kWomen, "Wood, Ann");
  ExpectChosen("Wood, Ann", "Moor, Fred", kNoDay);
  PickDay(kMarch);
  Update();
  EXPECT_EQ(CoupleCount(), 2);
  EXPECT_EQ(WeddingOf(ann), "March|3|1980");
  ExpectCopiesAgree();
}

TEST_F(CoupleEditorUpdate, TwoPeopleMarriedToOthersAreRefused)
{
  AddCouplesApart();
  GivePicture(1, Qt::red);
  GivePicture(2, Qt::blue);
  Open();
  ClickLine(kWomen, "Wood, Ann");
  ClickLine(kMen, "Marsh, Bob");
  ExpectChosen("Wood, Ann", "Marsh, Bob", kMarch);
  PickDay({"April", "1", "1990"});
  ExpectRefused(kBothMarried);
  EXPECT_EQ(StoredColour(1), "#ff0000");
  EXPECT_EQ(StoredColour(2), "#0000ff");
}

TEST_F(CoupleEditorUpdate, AfterARefusedDoubleMarriageOthersCanMarry)
{
  AddCouplesApart();
  AddWoman("Eve");
  fred = AddMan("Fred");
  Open();
  ClickLine(kWomen, "Wood, Ann");
  ClickLine(kMen, "Marsh, Bob");
  ExpectRefused(kBothMarried);
  ExpectRefused(kBothMarried);
  ClickLine(kWomen, "Wood, Eve");
  ClickLine(kMen, "Marsh, Fred");
  PickDay(kMarch);
  Update();
  EXPECT_TRUE(IsDone());
  EXPECT_EQ(CoupleCount(), 3);
  EXPECT_EQ(WeddingOf(fred), "March|3|1980");
}

TEST_F(CoupleEditorUpdate, TakesOverThePresentNames)
{
  AddHousehold();
  folder.Execute("UPDATE Ann SET Spouse1First='Anne', Spouse2Last=NULL");
  Open();
  ClickLine(kWomen, "Wood, Ann");
  Update();
  EXPECT_EQ(Couple(couple), QString("%1|Ann|Wood|%2|Bob|Marsh|June|12|1999").arg(ann).arg(bob).toStdString());
  EXPECT_EQ(Lines(kCouples), QStringList({"Ann and Bob"}));
}

TEST_F(CoupleEditorUpdate, TakesAwayTheDatesOfAllWhoAreInNoCouple)
{
  AddHousehold();
  const int gail = AddWoman("Gail");
  const int hal = AddMan("Hal");
  const int ira = AddPerson("Ira", "Ives", QVariant());
  for (const int person : {gail, hal, ira}) {
    SetWedding(person, kMarch);
  }
  Open();
  ClickLine(kWomen, "Wood, Ann");
  Update();
  EXPECT_EQ(WeddingOf(gail), "-|-|-");
  EXPECT_EQ(WeddingOf(hal), "-|-|-");
  EXPECT_EQ(WeddingOf(ira), "March|3|1980");
  EXPECT_EQ(WeddingOf(ann), "June|12|1999");
  EXPECT_EQ(WeddingOf(bob), "June|12|1999");
}

// Partners are told by their gender as well as by their place in a couple.
TEST_F(CoupleEditorUpdate, TakesAwayTheDateOfAPartnerWhoIsNowListedWithTheOthers)
{
  AddHousehold();
  folder.Execute("UPDATE People SET Gender='Male' WHERE PeopleID=?", {ann});
  const std::string before = Couple(couple);
  OpenForSingles();
  PickDay(kMarch);
  Update();
  EXPECT_EQ(WeddingOf(ann), "-|-|-");
  EXPECT_EQ(WeddingOf(bob), "June|12|1999");
  EXPECT_EQ(Couple(couple), before);
  folder.Execute("UPDATE People SET Gender='Female' WHERE PeopleID=?", {bob});
  Update();
  EXPECT_EQ(WeddingOf(bob), "-|-|-");
  EXPECT_EQ(WeddingOf(eve), "March|3|1980");
  EXPECT_EQ(WeddingOf(fred), "March|3|1980");
}

TEST_F(CoupleEditorUpdate, MakesBlanksInAllCouplesNull)
{
  AddHousehold();
  const int other = Marry(eve, fred, kMarch);
  folder.Execute("UPDATE Ann SET AnnMonth='', AnnDate='', AnnYear='' WHERE AnnID=?", {other});
  Open();
  ClickLine(kWomen, "Wood, Ann");
  Update();
  EXPECT_EQ(Couple(other), QString("%1|Eve|Wyre|%2|Fred|Moor|-|-|-").arg(eve).arg(fred).toStdString());
}

TEST_F(CoupleEditorUpdate, LeavesAllOtherColumnsAlone)
{
  AddHousehold();
  folder.Execute("UPDATE People SET Notes='n', City='', BirthMonth='May', Phone='1', \"Convert\"=1");
  const QString others =
      "SELECT PeopleID, LastName, FirstName, SpouseFirst, SpouseLast, Street, City, Phone, Notes, "
      "BirthMonth, BirthDate, BirthYear, Gender, \"Convert\" FROM People ORDER BY PeopleID";
  const auto before = Dump(others);
  OpenForSingles();
  PickDay(kMarch);
  Update();
  EXPECT_EQ(Dump(others), before);
}

TEST_F(CoupleEditorUpdate, DoneShowsForTwoTicksOfTheTimer)
{
  AddHousehold();
  Open();
  ClickLine(kWomen, "Wood, Ann");
  for (int round = 0; round < 2; ++round) {
    QElapsedTimer since;
    since.start();
    Update();
    EXPECT_TRUE(IsDone());
    EXPECT_TRUE(QTest::qWaitFor([] { return !IsDone(); }, 5000));
    EXPECT_GE(since.elapsed(), 900);
  }
}

TEST_F(CoupleEditorUpdate, ThePageCanBeLeftWhileDoneShows)
{
  AddHousehold();
  Open();
  ClickLine(kWomen, "Wood, Ann");
  Update();
  EXPECT_TRUE(IsDone());
  Click(AnnCommand::kMain);
  DropUnloaded();
  EXPECT_FALSE(IsOpen("frmAnn"));
  Open();
  EXPECT_FALSE(IsDone());
}

TEST_F(CoupleEditorUpdate, DisablesThePictureCommandsUntilTheNextChoice)
{
  AddHousehold();
  Open();
  ClickLine(kWomen, "Wood, Ann");
  Update();
  ExpectPictureCommands(false);
  ExpectChosen("Wood, Ann", "Marsh, Bob", kJune);
  ClickLine(kWomen, "Wyre, Eve");
  ExpectPictureCommands(true);
}

TEST_F(CoupleEditorUpdate, ARefusalLeavesTheEntryAsItIs)
{
  AddHousehold();
  Open();
  ClickLine(kWomen, "Wood, Ann");
  PickDay({"June", "12", "2030"});
  ExpectRefused(kNotOccurred);
  ExpectChosen("Wood, Ann", "Marsh, Bob", {"June", "12", "2030"});
  ExpectPictureCommands(true);
}

TEST_F(CoupleEditorUpdate, ACouplePartedFromOutsideMeanwhileIsMadeAnew)
{
  AddHousehold();
  Open();
  ClickLine(kWomen, "Wood, Ann");
  folder.Execute("DELETE FROM Ann");
  Update();
  EXPECT_EQ(Couple(couple + 1), QString("%1|Ann|Wood|%2|Bob|Marsh|June|12|1999").arg(ann).arg(bob).toStdString());
  ExpectCopiesAgree();
}

TEST_F(CoupleEditorUpdate, ChoosesByTheKeyboardAlone)
{
  AddHousehold();
  Open();
  ClickLine(kWomen, "Wood, Ann");
  Control("cboAnnYear").setFocus();
  Press("cboAnnYear", Qt::Key_Up);
  Control(AnnCommand::kUpdate).setFocus();
  Press(AnnCommand::kUpdate, Qt::Key_Space);
  EXPECT_EQ(WeddingOf(ann), "June|12|1998");
  EXPECT_EQ(WeddingOf(bob), "June|12|1998");
}
