// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "AnniversariesTest.h"

#include "support/HeldDatabase.h"

namespace {

class CoupleEditorFaults : public AnniversariesTest
{
protected:
  // Ann and Bob are married, with a red picture; Eve and Fred are single.
  void AddHousehold()
  {
    ann = AddWoman("Ann");
    bob = AddMan("Bob");
    couple = Marry(ann, bob, kJune);
    GivePicture(couple, Qt::red);
    eve = AddWoman("Eve");
    fred = AddMan("Fred");
  }

  void ChooseSingles(const Day& day)
  {
    ClickLine(kWomen, "Wood, Eve");
    ClickLine(kMen, "Marsh, Fred");
    PickDay(day);
  }
  void ChooseCouple(const Day& day)
  {
    ClickLine(kWomen, "Wood, Ann");
    PickDay(day);
  }
  void ChoosePicture()
  {
    const QString path = folder.File("/mine.png");
    Hands::SavePicture(path, Qt::blue);
    dialogs.ExpectChoice(path);
    Click("cmdAddPic");
  }

  // From outside, every change of that kind fails from now on, or is let through again.
  void Forbid(const QString& change, const QString& by = "INSERT INTO NoSuchTable VALUES (1)") const
  {
    folder.Execute(QStringLiteral("CREATE TRIGGER Forbidden BEFORE %1 BEGIN %2; END").arg(change, by));
  }
  void Allow() const { folder.Execute("DROP TRIGGER Forbidden"); }

  // Everything that a command could have changed.
  [[nodiscard]] std::vector<std::string> Everything() const
  {
    std::vector<std::string> all = People();
    for (const std::string& line : Couples()) {
      all.push_back(line);
    }
    for (const QString& file : PictureFiles()) {
      QFile picture(folder.File("/AnnPics/" + file));
      EXPECT_TRUE(picture.open(QIODevice::ReadOnly));
      all.push_back(file.toStdString() + picture.readAll().toStdString());
    }
    return all;
  }

  // The command writes nothing and says nothing, and the page stays.
  void ExpectNothingDone(const QString& command)
  {
    const auto before = Everything();
    Click(command);
    ExpectUnchanged(before);
  }
  void ExpectNothingDoneWhileHeld(const QString& command, const char* begin)
  {
    const auto before = Everything();
    {
      const HeldDatabase holder(folder.DatabasePath(), begin);
      Click(command);
    }
    ExpectUnchanged(before);
  }
  void ExpectUnchanged(const std::vector<std::string>& before)
  {
    EXPECT_EQ(Everything(), before);
    EXPECT_EQ(boxes.Count(), 0U);
    ASSERT_TRUE(IsOpen("frmAnn"));
    EXPECT_FALSE(IsDone());
  }

  // The same page goes on: it can change the date of Ann and Bob.
  void ExpectPageWorks()
  {
    ChooseCouple(kMarch);
    Update();
    EXPECT_TRUE(IsDone());
    EXPECT_EQ(WeddingOf(ann), "March|3|1980");
    EXPECT_EQ(WeddingOf(bob), "March|3|1980");
    ExpectCopiesAgree();
  }

  int ann = 0;
  int bob = 0;
  int eve = 0;
  int fred = 0;
  int couple = 0;
};

}

TEST_F(CoupleEditorFaults, AWifeDeletedMeanwhileIsNotMarried)
{
  AddHousehold();
  Open();
  ChooseSingles(kMarch);
  folder.Execute("DELETE FROM People WHERE PeopleID=?", {eve});
  ExpectNothingDone(AnnCommand::kUpdate);
  ExpectPageWorks();
}

TEST_F(CoupleEditorFaults, AHusbandDeletedMeanwhileIsNotMarried)
{
  AddHousehold();
  Open();
  ChooseSingles(kMarch);
  folder.Execute("DELETE FROM People WHERE PeopleID=?", {fred});
  ExpectNothingDone(AnnCommand::kUpdate);
  ExpectPageWorks();
}

TEST_F(CoupleEditorFaults, APartnerOfACoupleDeletedMeanwhileLeavesTheCoupleAsItIs)
{
  AddHousehold();
  Open();
  ChooseCouple(kMarch);
  ChoosePicture();
  folder.Execute("DELETE FROM People WHERE PeopleID=?", {bob});
  ExpectNothingDone(AnnCommand::kUpdate);
}

TEST_F(CoupleEditorFaults, BothPartnersDeletedMeanwhileAreNotMarried)
{
  eve = AddWoman("Eve");
  fred = AddMan("Fred");
  Open();
  ChooseSingles(kMarch);
  folder.Execute("DELETE FROM People");
  ExpectNothingDone(AnnCommand::kUpdate);
  EXPECT_EQ(CoupleCount(), 0);
}

TEST_F(CoupleEditorFaults, ChoosingSomebodyDeletedMeanwhileGoesOn)
{
  AddHousehold();
  Open();
  folder.Execute("DELETE FROM People WHERE PeopleID IN (?,?)", {eve, fred});
  ClickLine(kWomen, "Wood, Eve");
  ClickLine(kMen, "Marsh, Fred");
  ASSERT_TRUE(IsOpen("frmAnn"));
  ExpectNothingDone(AnnCommand::kUpdate);
  ExpectPageWorks();
}

TEST_F(CoupleEditorFaults, AStoreLockedDuringUpdateOfNewCouple)
{
  AddHousehold();
  Open();
  ChooseSingles(kMarch);
  ChoosePicture();
  ExpectNothingDoneWhileHeld(AnnCommand::kUpdate, "BEGIN EXCLUSIVE");
  Update();
  EXPECT_TRUE(IsDone());
  EXPECT_EQ(WeddingOf(eve), "March|3|1980");
  EXPECT_EQ(WeddingOf(fred), "March|3|1980");
  EXPECT_EQ(CoupleCount(), 2);
}

TEST_F(CoupleEditorFaults, AStoreLockedDuringUpdateOfCouple)
{
  AddHousehold();
  Open();
  ChooseCouple(kMarch);
  ChoosePicture();
  ExpectNothingDoneWhileHeld(AnnCommand::kUpdate, "BEGIN EXCLUSIVE");
  ExpectPageWorks();
}

TEST_F(CoupleEditorFaults, AStoreThatCanOnlyBeReadDuringUpdate)
{
  AddHousehold();
  Open();
  ChooseCouple(kMarch);
  ChoosePicture();
  ExpectNothingDoneWhileHeld(AnnCommand::kUpdate, "BEGIN IMMEDIATE");
  ExpectPageWorks();
}

TEST_F(CoupleEditorFaults, AStoreLockedDuringUpdateOfAReplacedPartner)
{
  AddHousehold();
  Open();
  ClickLine(kMen, "Marsh, Bob");
  ClickLine(kWomen, "Wood, Eve");
  ExpectNothingDoneWhileHeld(AnnCommand::kUpdate, "BEGIN IMMEDIATE");
  ExpectPageWorks();
}

TEST_F(CoupleEditorFaults, AStoreLockedDuringDelete)
{
  for (const char* begin : {"BEGIN EXCLUSIVE", "BEGIN IMMEDIATE"}) {
    SCOPED_TRACE(begin);
    AddHousehold();
    Open();
    ClickLine(kCouples, "Ann and Bob");
    ExpectNothingDoneWhileHeld(AnnCommand::kDelete, begin);
    ClickLine(kCouples, "Ann and Bob");
    Delete();
    EXPECT_EQ(CoupleCount(), 0);
    EXPECT_EQ(PictureFiles(), QStringList());
    ExpectCopiesAgree();
    Leave();
    folder.Execute("DELETE FROM People");
  }
}

TEST_F(CoupleEditorFaults, AnUpdateThatCannotWriteThePeopleLeavesTheCouplesAlone)
{
  AddHousehold();
  Open();
  ChooseSingles(kMarch);
  ChoosePicture();
  Forbid("UPDATE ON People");
  ExpectNothingDone(AnnCommand::kUpdate);
  Allow();
  ExpectPageWorks();
}

TEST_F(CoupleEditorFaults, AnUpdateThatCannotWriteTheHusbandLeavesTheWifeAlone)
{
  AddHousehold();
  Open();
  ChooseCouple(kMarch);
  Forbid(QStringLiteral("UPDATE ON People WHEN new.PeopleID=%1").arg(bob));
  ExpectNothingDone(AnnCommand::kUpdate);
  Allow();
  ExpectPageWorks();
}

TEST_F(CoupleEditorFaults, AnUpdateThatCannotTakeAwayAStaleDateWritesNothing)
{
  AddHousehold();
  Open();
  ClickLine(kMen, "Marsh, Bob");
  ClickLine(kWomen, "Wood, Eve");
  PickDay(kMarch);
  Forbid(QStringLiteral("UPDATE ON People WHEN new.PeopleID=%1").arg(ann));
  ExpectNothingDone(AnnCommand::kUpdate);
  Allow();
  ExpectPageWorks();
}

TEST_F(CoupleEditorFaults, AnUpdateThatCannotWriteTheCoupleLeavesThePeopleAlone)
{
  AddHousehold();
  Open();
  ChooseCouple(kMarch);
  Forbid("UPDATE ON Ann");
  ExpectNothingDone(AnnCommand::kUpdate);
  Allow();
  Forbid("INSERT ON Ann");
  ChooseSingles(kMarch);
  ExpectNothingDone(AnnCommand::kUpdate);
  Allow();
  ExpectPageWorks();
}

TEST_F(CoupleEditorFaults, NotEveryRefusalOfTheStoreIsADoubleMarriage)
{
  AddHousehold();
  Open();
  ChooseCouple(kMarch);
  for (const char* change : {"UPDATE ON Ann", "UPDATE ON People"}) {
    Forbid(change, "SELECT RAISE(ABORT, 'no')");
    ExpectNothingDone(AnnCommand::kUpdate);
    Allow();
  }
  ExpectPageWorks();
}

TEST_F(CoupleEditorFaults, ADeleteThatCannotWriteThePeopleLeavesTheCoupleAndItsPicture)
{
  AddHousehold();
  Open();
  ClickLine(kCouples, "Ann and Bob");
  Forbid(QStringLiteral("UPDATE ON People WHEN new.PeopleID=%1").arg(bob));
  ExpectNothingDone(AnnCommand::kDelete);
  Allow();
  ExpectPageWorks();
}

TEST_F(CoupleEditorFaults, ADeleteThatCannotWriteTheCouplesLeavesTheDates)
{
  AddHousehold();
  Open();
  ClickLine(kCouples, "Ann and Bob");
  Forbid("DELETE ON Ann");
  ExpectNothingDone(AnnCommand::kDelete);
  Allow();
  ExpectPageWorks();
}

TEST_F(CoupleEditorFaults, ACoupleDeletedMeanwhileIsPassedOver)
{
  AddHousehold();
  const int other = Marry(eve, fred, kMarch);
  Open();
  ClickLine(kCouples, "Eve and Fred");
  folder.Execute("DELETE FROM Ann WHERE AnnID=?", {other});
  folder.Execute("UPDATE People SET AnnMonth=NULL, AnnDate=NULL, AnnYear=NULL WHERE PeopleID IN (?,?)", {eve, fred});
  ExpectNothingDone(AnnCommand::kDelete);
  ExpectPageWorks();
}

TEST_F(CoupleEditorFaults, CouplesOfTheSamePartnerTwiceStayInStepWithThePeople)
{
  AddHousehold();
  const int other = Marry(eve, fred, kMarch);
  folder.Execute("DROP INDEX Spouse1ID");
  folder.Execute("CREATE INDEX Spouse1ID ON Ann (Spouse1ID)");
  folder.Execute("UPDATE Ann SET Spouse1ID=? WHERE AnnID=?", {ann, other});
  Open();
  ClickLine(kWomen, "Wood, Ann");
  ClickLine(kCouples, 1);
  Delete();
  ASSERT_TRUE(IsOpen("frmAnn"));
  EXPECT_EQ(CoupleCount(), 1);
  EXPECT_EQ(WeddingOf(fred), "-|-|-");
}
