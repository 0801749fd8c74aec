// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "AnniversariesTest.h"

namespace {

class CoupleEditorSelection : public AnniversariesTest
{
protected:
  // Two couples with a picture each, Ann and Bob's red, Cleo and Dan's blue; Eve and Fred
  // are single.
  void AddHousehold()
  {
    ann = AddWoman("Ann");
    bob = AddMan("Bob");
    GivePicture(Marry(ann, bob, kJune), Qt::red);
    cleo = AddWoman("Cleo");
    dan = AddMan("Dan");
    GivePicture(Marry(cleo, dan, kMarch), Qt::blue);
    AddWoman("Eve");
    AddMan("Fred");
  }

  void DropUniqueIndexes() const
  {
    for (const char* name : {"Spouse1ID", "Spouse2ID"}) {
      folder.Execute(QStringLiteral("DROP INDEX %1").arg(name));
      folder.Execute(QStringLiteral("CREATE INDEX %1 ON Ann (%1)").arg(name));
    }
  }

  int ann = 0;
  int bob = 0;
  int cleo = 0;
  int dan = 0;
};

}

TEST_F(CoupleEditorSelection, AMarriedWifeBringsHerHusbandTheDateAndThePicture)
{
  AddHousehold();
  Open();
  ClickLine(kWomen, "Wood, Cleo");
  ExpectChosen("Wood, Cleo", "Marsh, Dan", kMarch);
  ExpectPicture(Qt::blue);
  ExpectPictureCommands(true);
  EXPECT_EQ(List(kCouples).ListIndex(), -1);
}

TEST_F(CoupleEditorSelection, AMarriedHusbandBringsHisWifeTheDateAndThePicture)
{
  AddHousehold();
  Open();
  ClickLine(kMen, "Marsh, Dan");
  ExpectChosen("Wood, Cleo", "Marsh, Dan", kMarch);
  ExpectPicture(Qt::blue);
  ExpectPictureCommands(true);
}

TEST_F(CoupleEditorSelection, AnotherMarriedPartnerBringsTheOtherCouple)
{
  AddHousehold();
  Open();
  ClickLine(kWomen, "Wood, Cleo");
  ClickLine(kMen, "Marsh, Bob");
  ExpectChosen("Wood, Ann", "Marsh, Bob", kJune);
  ExpectPicture(Qt::red);
  ClickLine(kWomen, "Wood, Cleo");
  ExpectChosen("Wood, Cleo", "Marsh, Dan", kMarch);
  ExpectPicture(Qt::blue);
}

TEST_F(CoupleEditorSelection, AnUnmarriedWifeLeavesTheHusbandChosen)
{
  AddHousehold();
  Open();
  ClickLine(kMen, "Marsh, Dan");
  ClickLine(kWomen, "Wood, Eve");
  ExpectChosen("Wood, Eve", "Marsh, Dan", kNoDay);
  ExpectNoPicture();
}

TEST_F(CoupleEditorSelection, AnUnmarriedHusbandLeavesTheWifeChosen)
{
  AddHousehold();
  Open();
  ClickLine(kWomen, "Wood, Ann");
  ClickLine(kMen, "Marsh, Fred");
  ExpectChosen("Wood, Ann", "Marsh, Fred", kNoDay);
  ExpectNoPicture();
}

TEST_F(CoupleEditorSelection, TheSameLineAgainBringsTheStoredDateBack)
{
  AddHousehold();
  Open();
  ClickLine(kWomen, "Wood, Ann");
  PickDay({"May", "4", "2001"});
  ClickLine(kWomen, "Wood, Ann");
  ExpectChosen("Wood, Ann", "Marsh, Bob", kJune);
}

TEST_F(CoupleEditorSelection, TheKeyboardChoosesAsWell)
{
  AddHousehold();
  Open();
  ClickLine(kWomen, "Wood, Ann");
  Press(kWomen, Qt::Key_Down);
  ExpectChosen("Wood, Cleo", "Marsh, Dan", kMarch);
  ExpectPicture(Qt::blue);
}

TEST_F(CoupleEditorSelection, PartsOfADateThatAreOpenStayEmpty)
{
  Marry(AddWoman("Ann"), AddMan("Bob"), {"June", "", ""});
  Marry(AddWoman("Cleo"), AddMan("Dan"), {"", "7", ""});
  Marry(AddWoman("Eve"), AddMan("Fred"), {"", "", "1988"});
  Open();
  ClickLine(kWomen, "Wood, Ann");
  EXPECT_EQ(ShownDay(), "June||");
  ClickLine(kWomen, "Wood, Cleo");
  EXPECT_EQ(ShownDay(), "|7|");
  ClickLine(kMen, "Marsh, Fred");
  EXPECT_EQ(ShownDay(), "||1988");
}

TEST_F(CoupleEditorSelection, PeopleOfOneNameAreToldApart)
{
  AddWoman("Ann");
  const int second = AddWoman("Ann");
  AddMan("Bob");
  Marry(second, AddMan("Bob"), kMarch);
  Open();
  ClickLine(kWomen, 0);
  const std::string first = ShownDay();
  const int husband = List(kMen).ListIndex();
  ClickLine(kWomen, 1);
  // One of the two is married, whichever comes first.
  EXPECT_NE(first, ShownDay());
  EXPECT_EQ(husband == -1, first == kNoDay.Text());
  EXPECT_GE(List(kMen).ListIndex(), 0);
}

TEST_F(CoupleEditorSelection, ACoupleWithoutAPictureHasNoFileAndShowsNone)
{
  Marry(AddWoman("Ann"), AddMan("Bob"));
  Open();
  ClickLine(kWomen, "Wood, Ann");
  ExpectNoPicture();
  EXPECT_FALSE(IsShown("imgPerson"));
  Update();
  EXPECT_TRUE(IsDone());
  EXPECT_EQ(PictureFiles(), QStringList());
}

TEST_F(CoupleEditorSelection, CancelClearsTheEntry)
{
  AddHousehold();
  Open();
  ClickLine(kWomen, "Wood, Ann");
  PickDay({"May", "4", "2001"});
  const auto people = People();
  Click(AnnCommand::kCancel);
  ExpectChosen("", "", kNoDay);
  EXPECT_EQ(List(kWomen).ListIndex(), -1);
  EXPECT_EQ(List(kMen).ListIndex(), -1);
  ExpectPictureCommands(false);
  ExpectNoPicture();
  EXPECT_EQ(People(), people);
  EXPECT_EQ(PictureFiles(), QStringList({"1.bmp", "2.bmp"}));
}

TEST_F(CoupleEditorSelection, AfterCancelTheSamePartnerCanBeChosenAgain)
{
  AddHousehold();
  Open();
  ClickLine(kWomen, "Wood, Ann");
  Click(AnnCommand::kCancel);
  ClickLine(kWomen, "Wood, Ann");
  ExpectChosen("Wood, Ann", "Marsh, Bob", kJune);
  ExpectPicture(Qt::red);
  ExpectPictureCommands(true);
}

TEST_F(CoupleEditorSelection, CancelWithNothingChosenDoesNothing)
{
  Open();
  Click(AnnCommand::kCancel);
  ExpectChosen("", "", kNoDay);
}

TEST_F(CoupleEditorSelection, ChoosingWritesNothing)
{
  AddHousehold();
  Open();
  const auto people = People();
  const auto couples = Couples();
  ClickLine(kWomen, "Wood, Cleo");
  ClickLine(kMen, "Marsh, Fred");
  ClickLine(kCouples, "Ann and Bob");
  EXPECT_EQ(People(), people);
  EXPECT_EQ(Couples(), couples);
}

TEST_F(CoupleEditorSelection, ACoupleWhoseHusbandIsGoneLeavesTheMenAlone)
{
  AddHousehold();
  folder.Execute("DELETE FROM People WHERE PeopleID=?", {bob});
  Open();
  ClickLine(kWomen, "Wood, Ann");
  ExpectChosen("Wood, Ann", "", kJune);
  ExpectPicture(Qt::red);
  ClickLine(kMen, "Marsh, Dan");
  ExpectChosen("Wood, Cleo", "Marsh, Dan", kMarch);
}

TEST_F(CoupleEditorSelection, ACoupleWhoseWifeIsGoneLeavesTheWomenAlone)
{
  AddHousehold();
  folder.Execute("DELETE FROM People WHERE PeopleID=?", {cleo});
  Open();
  ClickLine(kWomen, "Wood, Ann");
  ClickLine(kMen, "Marsh, Dan");
  ExpectChosen("Wood, Ann", "Marsh, Dan", kMarch);
  ExpectPicture(Qt::blue);
}

TEST_F(CoupleEditorSelection, ACoupleWithoutItsOtherPartnerLeavesTheListAlone)
{
  AddHousehold();
  folder.Execute("UPDATE Ann SET Spouse2ID = NULL WHERE Spouse1ID=?", {ann});
  Open();
  ClickLine(kMen, "Marsh, Fred");
  ClickLine(kWomen, "Wood, Ann");
  ExpectChosen("Wood, Ann", "Marsh, Fred", kJune);
}

TEST_F(CoupleEditorSelection, AWifeInTwoCouplesIsShownWithTheHusbandClicked)
{
  AddHousehold();
  DropUniqueIndexes();
  folder.Execute("UPDATE Ann SET Spouse1ID=? WHERE Spouse2ID=?", {ann, dan});
  Open();
  ClickLine(kWomen, "Wood, Ann");
  ExpectChosen("Wood, Ann", "Marsh, Bob", kJune);
  ClickLine(kMen, "Marsh, Dan");
  ExpectChosen("Wood, Ann", "Marsh, Dan", kMarch);
}

// Every husband's first couple is the one before his wife's, so that one choice pulls the
// next one behind it down to the first row.
TEST_F(CoupleEditorSelection, ALongChainOfDoubleMarriagesComesToAnEnd)
{
  constexpr int kPairs = 100;
  DropUniqueIndexes();
  std::vector<int> wives;
  std::vector<int> husbands;
  for (int i = 0; i < kPairs; ++i) {
    wives.push_back(AddWoman(QStringLiteral("W%1").arg(i, 3, 10, QLatin1Char('0'))));
    husbands.push_back(AddMan(QStringLiteral("H%1").arg(i, 3, 10, QLatin1Char('0'))));
    if (i > 0) {
      Marry(wives[static_cast<std::size_t>(i) - 1], husbands.back());
    }
    Marry(wives.back(), husbands.back());
  }
  Open();
  ClickLine(kWomen, kPairs - 1);
  ExpectChosen("Wood, W000", "Marsh, H000", kJune);
  ClickLine(kWomen, 0);
  ExpectChosen("Wood, W000", "Marsh, H000", kJune);
}
