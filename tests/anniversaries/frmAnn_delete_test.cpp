// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "AnniversariesTest.h"

namespace {

class CoupleEditorDelete : public AnniversariesTest
{
protected:
  // Two couples with a picture each.
  void AddHousehold()
  {
    ann = AddWoman("Ann");
    bob = AddMan("Bob");
    first = Marry(ann, bob, kJune);
    cleo = AddWoman("Cleo");
    dan = AddMan("Dan");
    second = Marry(cleo, dan, kMarch);
    GivePicture(first, Qt::red);
    GivePicture(second, Qt::blue);
  }

  void DeleteLine(const QString& line)
  {
    ClickLine(kCouples, line);
    Delete();
  }

  int ann = 0;
  int bob = 0;
  int cleo = 0;
  int dan = 0;
  int first = 0;
  int second = 0;
};

}

TEST_F(CoupleEditorDelete, WithoutCouplesNothingHappens)
{
  AddWoman("Ann");
  AddMan("Bob");
  Open();
  ClickLine(kWomen, "Wood, Ann");
  Delete();
  EXPECT_EQ(boxes.Count(), 0U);
  EXPECT_EQ(Chosen(kWomen), "Wood, Ann");
  EXPECT_EQ(Caption("lblPartner1"), "Wood, Ann");
}

TEST_F(CoupleEditorDelete, ACoupleMustBeChosen)
{
  AddHousehold();
  Open();
  ClickLine(kWomen, "Wood, Ann");
  const auto people = People();
  const auto couples = Couples();
  boxes.Expect("Please select a couple");
  Delete();
  EXPECT_EQ(boxes.Count(), 1U);
  EXPECT_EQ(People(), people);
  EXPECT_EQ(Couples(), couples);
  EXPECT_EQ(PictureFiles(), QStringList({"1.bmp", "2.bmp"}));
  ExpectChosen("Wood, Ann", "Marsh, Bob", kJune);
}

TEST_F(CoupleEditorDelete, TakesTheDateFromBothPartnersAndThePictureWithoutAQuestion)
{
  AddHousehold();
  Open();
  DeleteLine("Cleo and Dan");
  EXPECT_EQ(boxes.Count(), 0U);
  EXPECT_EQ(Couple(second), "no row");
  EXPECT_EQ(WeddingOf(cleo), "-|-|-");
  EXPECT_EQ(WeddingOf(dan), "-|-|-");
  EXPECT_EQ(PictureFiles(), QStringList({"1.bmp"}));
  EXPECT_EQ(Lines(kCouples), QStringList({"Ann and Bob"}));
  EXPECT_EQ(CoupleCount(), 1);
  EXPECT_EQ(WeddingOf(ann), "June|12|1999");
  EXPECT_EQ(WeddingOf(bob), "June|12|1999");
  EXPECT_EQ(StoredColour(first), "#ff0000");
  EXPECT_FALSE(IsDone());
  ExpectCopiesAgree();
}

TEST_F(CoupleEditorDelete, TheLastCoupleLeavesAnEmptyList)
{
  AddHousehold();
  Open();
  DeleteLine("Ann and Bob");
  DeleteLine("Cleo and Dan");
  EXPECT_EQ(CoupleCount(), 0);
  EXPECT_EQ(PictureFiles(), QStringList());
  EXPECT_TRUE(Lines(kCouples).isEmpty());
  Delete();
  EXPECT_EQ(boxes.Count(), 0U);
  ExpectCopiesAgree();
}

TEST_F(CoupleEditorDelete, TheNextDeleteNeedsAChoiceOfItsOwn)
{
  AddHousehold();
  Open();
  DeleteLine("Ann and Bob");
  boxes.Expect("Please select a couple");
  Delete();
  EXPECT_EQ(boxes.Count(), 1U);
  EXPECT_EQ(CoupleCount(), 1);
}

TEST_F(CoupleEditorDelete, EmptiesTheEntry)
{
  AddHousehold();
  Open();
  ClickLine(kWomen, "Wood, Ann");
  ExpectPicture(Qt::red);
  DeleteLine("Ann and Bob");
  EXPECT_EQ(Caption("lblPartner1"), "");
  EXPECT_EQ(Caption("lblPartner2"), "");
  EXPECT_EQ(ShownDay(), kNoDay.Text());
  ExpectNoPicture();
}

TEST_F(CoupleEditorDelete, EmptiesTheEntryOfAnotherCoupleToo)
{
  AddHousehold();
  Open();
  ClickLine(kWomen, "Wood, Ann");
  DeleteLine("Cleo and Dan");
  EXPECT_EQ(Caption("lblPartner1"), "");
  EXPECT_EQ(Caption("lblPartner2"), "");
  EXPECT_EQ(ShownDay(), kNoDay.Text());
  ExpectNoPicture();
  EXPECT_EQ(StoredColour(first), "#ff0000");
}

TEST_F(CoupleEditorDelete, DeletedPartnersAreUnmarriedAtOnce)
{
  AddHousehold();
  Open();
  DeleteLine("Ann and Bob");
  ClickLine(kMen, "Marsh, Dan");
  ClickLine(kWomen, "Wood, Ann");
  ExpectChosen("Wood, Ann", "Marsh, Dan", kNoDay);
  ExpectNoPicture();
}

TEST_F(CoupleEditorDelete, APartedCoupleCanBeMadeAgainUnderAnotherKey)
{
  AddHousehold();
  Open();
  DeleteLine("Cleo and Dan");
  ClickLine(kWomen, "Wood, Cleo");
  ClickLine(kMen, "Marsh, Dan");
  PickDay(kMarch);
  Update();
  EXPECT_EQ(Couple(second + 1), QString("%1|Cleo|Wood|%2|Dan|Marsh|March|3|1980").arg(cleo).arg(dan).toStdString());
  EXPECT_EQ(PictureFiles(), QStringList({"1.bmp"}));
}

TEST_F(CoupleEditorDelete, CouplesOfTheSameFirstNamesAreToldApart)
{
  const int keep = Marry(AddWoman("Ann", "One"), AddMan("Bob", "One"));
  const int gone = Marry(AddWoman("Ann", "Two"), AddMan("Bob", "Two"));
  Open();
  EXPECT_EQ(Lines(kCouples), QStringList({"Ann and Bob", "Ann and Bob"}));
  ClickLine(kCouples, 1);
  Delete();
  EXPECT_NE(Couple(keep), "no row");
  EXPECT_EQ(Couple(gone), "no row");
  ExpectCopiesAgree();
}

TEST_F(CoupleEditorDelete, ACoupleWithoutAPictureGoesAsWell)
{
  AddHousehold();
  ASSERT_TRUE(QFile::remove(PictureFile(second)));
  Open();
  DeleteLine("Cleo and Dan");
  EXPECT_EQ(CoupleCount(), 1);
  EXPECT_EQ(PictureFiles(), QStringList({"1.bmp"}));
}

TEST_F(CoupleEditorDelete, ARemovedPictureDoesNotSpareTheFileOfTheCouple)
{
  AddHousehold();
  Open();
  ClickLine(kWomen, "Wood, Ann");
  Click("cmdDeletePic");
  DeleteLine("Ann and Bob");
  EXPECT_EQ(PictureFiles(), QStringList({"2.bmp"}));
}

TEST_F(CoupleEditorDelete, ACoupleWhosePartnersAreGoneCanBeDeleted)
{
  AddHousehold();
  folder.Execute("DELETE FROM People WHERE PeopleID IN (?,?)", {ann, bob});
  const auto people = People();
  Open();
  DeleteLine("Ann and Bob");
  EXPECT_EQ(Couple(first), "no row");
  EXPECT_EQ(PictureFiles(), QStringList({"2.bmp"}));
  EXPECT_EQ(People(), people);
}

TEST_F(CoupleEditorDelete, MakesBlanksInAllCouplesNull)
{
  AddHousehold();
  folder.Execute("UPDATE Ann SET AnnMonth='', AnnDate='', AnnYear='' WHERE AnnID=?", {first});
  Open();
  DeleteLine("Cleo and Dan");
  EXPECT_EQ(Couple(first), QString("%1|Ann|Wood|%2|Bob|Marsh|-|-|-").arg(ann).arg(bob).toStdString());
}
