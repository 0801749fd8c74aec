// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "AnniversariesTest.h"
#include "support/FullDisk.h"

#include <QFile>

namespace {

const QColor kGreen(0, 255, 0);

class CouplePictures : public AnniversariesTest
{
protected:
  // Ann and Bob, married, without a picture; Eve and Fred are single.
  void AddHousehold()
  {
    couple = Marry(AddWoman("Ann"), AddMan("Bob"), kJune);
    AddWoman("Eve");
    AddMan("Fred");
  }
  void OpenForTheCouple()
  {
    Open();
    ClickLine(kWomen, "Wood, Ann");
  }
  void OpenForSingles()
  {
    Open();
    ClickLine(kWomen, "Wood, Eve");
    ClickLine(kMen, "Marsh, Fred");
  }

  // A picture file of the user's own.
  [[nodiscard]] QString Source(const QString& name, QSize size = {40, 20}, const QColor& colour = kGreen) const
  {
    const QString path = folder.File("/" + name);
    Hands::SavePicture(path, colour, size);
    return path;
  }
  [[nodiscard]] QString NoPicture() const
  {
    QFile file(folder.File("/letter.txt"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("Dear Ann");
    return file.fileName();
  }

  void Add(const QString& path)
  {
    dialogs.ExpectChoice(path);
    Click("cmdAddPic");
  }
  void CancelAdding()
  {
    dialogs.ExpectCancel();
    Click("cmdAddPic");
  }
  void AddRefused(const QString& path)
  {
    boxes.Expect(kNoImage);
    Add(path);
  }

  // The picture touches the box on one axis and stands in its middle on the other.
  static void ExpectFitted(double proportion)
  {
    const QSize box = Control("picPerson").size();
    const QRect place = Picture().geometry();
    EXPECT_TRUE(place.width() == box.width() || place.height() == box.height());
    EXPECT_LE(place.width(), box.width());
    EXPECT_LE(place.height(), box.height());
    EXPECT_NEAR(place.width(), place.height() * proportion, proportion + 1);
    EXPECT_NEAR(place.left(), box.width() - place.width() - place.left(), 1);
    EXPECT_NEAR(place.top(), box.height() - place.height() - place.top(), 1);
  }

  void ExpectStoredAsShown() const
  {
    const QSize shown = Picture().size();
    const QSize stored = QImage(PictureFile(couple)).size();
    EXPECT_NEAR(stored.width(), shown.width() * 2.5, 1);
    EXPECT_NEAR(stored.height(), shown.height() * 2.5, 1);
  }

  int couple = 0;
};

}

TEST_F(CouplePictures, AChosenPictureIsShownFittedIntoTheBox)
{
  AddHousehold();
  OpenForTheCouple();
  ExpectNoPicture();
  Add(Source("wide.png", {400, 100}));
  ExpectPicture(kGreen);
  ExpectFitted(4);
  Add(Source("tall.png", {10, 40}, Qt::blue));
  ExpectPicture(Qt::blue);
  ExpectFitted(0.25);
  EXPECT_EQ(PictureFiles(), QStringList());
}

TEST_F(CouplePictures, UpdateStoresTheChosenPictureAsABitmap)
{
  AddHousehold();
  OpenForTheCouple();
  EXPECT_FALSE(IsShown("picFinal"));
  Add(Source("mine.jpg", {40, 20}));
  Update();
  EXPECT_TRUE(IsDone());
  EXPECT_FALSE(IsShown("picFinal"));
  EXPECT_EQ(PictureFiles(), QStringList({"1.bmp"}));
  QFile file(PictureFile(couple));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.read(2), "BM");
  const QColor middle(QString::fromStdString(StoredColour(couple)));
  EXPECT_LT(middle.red() + middle.blue(), 20);
  EXPECT_GT(middle.green(), 235);
}

TEST_F(CouplePictures, TheStoredPictureHasTwoAndAHalfTimesTheShownSize)
{
  AddHousehold();
  OpenForTheCouple();
  Add(Source("wide.png", {400, 100}));
  Update();
  ExpectStoredAsShown();
  ClickLine(kWomen, "Wood, Ann");
  Add(Source("tall.png", {10, 40}));
  Update();
  ExpectStoredAsShown();
}

TEST_F(CouplePictures, EveryUpdateStoresThePictureAtTheSizeShownThen)
{
  AddHousehold();
  GivePicture(couple, Qt::red);
  OpenForTheCouple();
  EXPECT_EQ(QImage(PictureFile(couple)).size(), QSize(40, 20));
  Update();
  ExpectStoredAsShown();
  const int before = QImage(PictureFile(couple)).width();
  Page().resize(Page().size() * 2);
  ExpectFitted(2);
  ClickLine(kWomen, "Wood, Ann");
  Update();
  ExpectStoredAsShown();
  EXPECT_NEAR(QImage(PictureFile(couple)).width(), before * 2, 6);
  EXPECT_EQ(StoredColour(couple), "#ff0000");
}

TEST_F(CouplePictures, ResizingFitsThePictureAgain)
{
  AddHousehold();
  GivePicture(couple, Qt::red);
  OpenForTheCouple();
  const int before = Picture().width();
  Page().resize(Page().size() * 2);
  EXPECT_GT(Picture().width(), before);
  ExpectFitted(2);
  EXPECT_TRUE(IsShown("picPerson"));
  EXPECT_TRUE(IsShown("imgPerson"));
  for (const QString& combo : kDateBoxes) {
    EXPECT_EQ(Control(combo).width(), Control("fraDate").width()) << combo.toStdString();
  }
}

TEST_F(CouplePictures, ResizingAMinimisedFrameMovesNothing)
{
  AddHousehold();
  OpenForTheCouple();
  const QSize before = Control("picPerson").size();
  frame.state = WindowState::kMinimised;
  Page().resize(Page().size() * 2);
  EXPECT_EQ(Control("picPerson").size(), before);
}

TEST_F(CouplePictures, ANewCouplesPictureIsStoredUnderItsKey)
{
  AddHousehold();
  GivePicture(couple, Qt::red);
  OpenForSingles();
  Add(Source("mine.png"));
  Update();
  EXPECT_EQ(PictureFiles(), QStringList({"1.bmp", "2.bmp"}));
  EXPECT_EQ(StoredColour(couple + 1), "#00ff00");
  EXPECT_EQ(StoredColour(couple), "#ff0000");
}

TEST_F(CouplePictures, TheFirstCouplesPictureIsStoredUnderItsKey)
{
  AddWoman("Eve");
  AddMan("Fred");
  OpenForSingles();
  Add(Source("mine.png"));
  Update();
  EXPECT_EQ(PictureFiles(), QStringList({"1.bmp"}));
}

TEST_F(CouplePictures, AChosenPictureReplacesTheStoredOneAtUpdate)
{
  AddHousehold();
  GivePicture(couple, Qt::red);
  OpenForTheCouple();
  Add(Source("mine.png"));
  EXPECT_EQ(StoredColour(couple), "#ff0000");
  Update();
  EXPECT_EQ(StoredColour(couple), "#00ff00");
  ClickLine(kWomen, "Wood, Eve");
  ExpectNoPicture();
  ClickLine(kMen, "Marsh, Bob");
  ExpectPicture(kGreen);
}

TEST_F(CouplePictures, AChosenPictureIsForgottenWithTheNextChoice)
{
  AddHousehold();
  GivePicture(couple, Qt::red);
  OpenForTheCouple();
  Add(Source("mine.png"));
  ClickLine(kWomen, "Wood, Ann");
  ExpectPicture(Qt::red);
  Update();
  EXPECT_EQ(StoredColour(couple), "#ff0000");
}

TEST_F(CouplePictures, ARefusedPictureBringsTheStoredOneBack)
{
  AddHousehold();
  GivePicture(couple, Qt::red);
  OpenForTheCouple();
  AddRefused(NoPicture());
  EXPECT_EQ(boxes.Count(), 1U);
  ExpectPicture(Qt::red);
  Update();
  EXPECT_EQ(StoredColour(couple), "#ff0000");
}

TEST_F(CouplePictures, ARefusedPictureLosesTheOneChosenBefore)
{
  AddHousehold();
  GivePicture(couple, Qt::red);
  OpenForTheCouple();
  Add(Source("mine.png"));
  AddRefused(NoPicture());
  ExpectPicture(Qt::red);
}

TEST_F(CouplePictures, ARefusedPictureOfACoupleWithoutOneLeavesTheBoxEmpty)
{
  AddHousehold();
  OpenForTheCouple();
  AddRefused(NoPicture());
  ExpectNoPicture();
  EXPECT_FALSE(IsShown("imgPerson"));
  Update();
  EXPECT_EQ(PictureFiles(), QStringList());
}

TEST_F(CouplePictures, ARefusedPictureOfSinglesLeavesTheBoxEmpty)
{
  AddHousehold();
  GivePicture(couple, Qt::red);
  OpenForSingles();
  Add(Source("mine.png"));
  AddRefused(NoPicture());
  ExpectNoPicture();
  Update();
  EXPECT_EQ(PictureFiles(), QStringList({"1.bmp"}));
}

TEST_F(CouplePictures, ACancelledDialogBringsTheStoredPictureBack)
{
  AddHousehold();
  GivePicture(couple, Qt::red);
  OpenForTheCouple();
  Add(Source("mine.png"));
  CancelAdding();
  EXPECT_EQ(boxes.Count(), 0U);
  ExpectPicture(Qt::red);
  Update();
  EXPECT_EQ(StoredColour(couple), "#ff0000");
}

TEST_F(CouplePictures, ACancelledDialogOfACoupleWithoutAPictureLeavesTheBoxEmpty)
{
  AddHousehold();
  OpenForTheCouple();
  CancelAdding();
  ExpectNoPicture();
  EXPECT_FALSE(IsShown("imgPerson"));
}

TEST_F(CouplePictures, ADamagedFileShowsNoPictureAndSaysNothing)
{
  AddHousehold();
  QFile file(PictureFile(couple));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("no picture");
  file.close();
  OpenForTheCouple();
  ExpectNoPicture();
  ExpectChosen("Wood, Ann", "Marsh, Bob", kJune);
}

TEST_F(CouplePictures, ADeletedPictureStaysOnDiskUntilUpdate)
{
  AddHousehold();
  GivePicture(couple, Qt::red);
  OpenForTheCouple();
  Click("cmdDeletePic");
  ExpectNoPicture();
  EXPECT_EQ(StoredColour(couple), "#ff0000");
  Update();
  EXPECT_EQ(PictureFiles(), QStringList());
  EXPECT_TRUE(IsDone());
  ClickLine(kWomen, "Wood, Ann");
  ExpectNoPicture();
}

TEST_F(CouplePictures, ADeletedPictureIsBackWithTheNextChoice)
{
  AddHousehold();
  GivePicture(couple, Qt::red);
  OpenForTheCouple();
  Click("cmdDeletePic");
  ClickLine(kWomen, "Wood, Ann");
  ExpectPicture(Qt::red);
  Update();
  EXPECT_EQ(StoredColour(couple), "#ff0000");
}

TEST_F(CouplePictures, ADeletedPictureIsSparedByCancelAndByLeaving)
{
  AddHousehold();
  GivePicture(couple, Qt::red);
  OpenForTheCouple();
  Click("cmdDeletePic");
  Click(AnnCommand::kCancel);
  EXPECT_EQ(StoredColour(couple), "#ff0000");
  ClickLine(kWomen, "Wood, Ann");
  Click("cmdDeletePic");
  Leave();
  EXPECT_EQ(StoredColour(couple), "#ff0000");
}

TEST_F(CouplePictures, AnotherPictureCanFollowADeletedOne)
{
  AddHousehold();
  GivePicture(couple, Qt::red);
  OpenForTheCouple();
  Click("cmdDeletePic");
  Add(Source("mine.png"));
  ExpectPicture(kGreen);
  Update();
  EXPECT_EQ(StoredColour(couple), "#00ff00");
}

TEST_F(CouplePictures, AReplacedPartnerTakesThePictureAway)
{
  AddHousehold();
  GivePicture(couple, Qt::red);
  OpenForTheCouple();
  ClickLine(kMen, "Marsh, Fred");
  ExpectNoPicture();
  Update();
  EXPECT_EQ(CoupleCount(), 1);
  EXPECT_EQ(PictureFiles(), QStringList());
}

TEST_F(CouplePictures, ARefusedEntryStoresNoPicture)
{
  AddHousehold();
  OpenForTheCouple();
  Add(Source("mine.png"));
  PickDay({"February", "30", "1999"});
  ExpectRefused("February 30 is not valid. Please try again.");
  EXPECT_EQ(PictureFiles(), QStringList());
  ExpectPicture(kGreen);
}

TEST_F(CouplePictures, WithoutTheFolderTheCoupleIsStoredAllTheSame)
{
  AddHousehold();
  ASSERT_TRUE(QDir(folder.Path()).rmdir("AnnPics"));
  OpenForSingles();
  Add(Source("mine.png"));
  Update();
  EXPECT_TRUE(IsDone());
  EXPECT_EQ(CoupleCount(), 2);
  EXPECT_FALSE(QDir(folder.File("/AnnPics")).exists());
  ExpectCopiesAgree();
}

TEST_F(CouplePictures, WithAFileInPlaceOfTheFolderTheCoupleIsStoredAllTheSame)
{
  AddHousehold();
  ASSERT_TRUE(QDir(folder.Path()).rmdir("AnnPics"));
  Hands::SavePicture(folder.File("/AnnPics.bmp"));
  ASSERT_TRUE(QFile::rename(folder.File("/AnnPics.bmp"), folder.File("/AnnPics")));
  OpenForTheCouple();
  Add(Source("mine.png"));
  PickDay(kMarch);
  Update();
  EXPECT_TRUE(IsDone());
  EXPECT_EQ(WeddingOf(1), "March|3|1980");
  ClickLine(kCouples, "Ann and Bob");
  Delete();
  EXPECT_EQ(CoupleCount(), 0);
  ExpectCopiesAgree();
}

TEST_F(CouplePictures, APictureThatCannotBeWrittenLeavesTheCoupleStored)
{
  AddHousehold();
  ASSERT_TRUE(QDir(folder.Path()).mkpath("AnnPics/1.bmp/full"));
  OpenForTheCouple();
  Add(Source("mine.png"));
  PickDay(kMarch);
  Update();
  EXPECT_TRUE(IsDone());
  EXPECT_EQ(WeddingOf(1), "March|3|1980");
  EXPECT_TRUE(QDir(folder.File("/AnnPics/1.bmp/full")).exists());
  ExpectCopiesAgree();
}

// What grows most is the picture; everything else still finds its place.
TEST_F(CouplePictures, AStoredPictureStaysWhereTheNewOneCannotBeWritten)
{
  AddHousehold();
  GivePicture(couple, Qt::red);
  OpenForTheCouple();
  Add(Source("mine.png"));
  PickDay(kMarch);
  {
    const FullDisk disk(QFileInfo(folder.DatabasePath()).size() + 4096);
    Update();
  }
  EXPECT_TRUE(IsDone());
  EXPECT_EQ(WeddingOf(1), "March|3|1980");
  EXPECT_EQ(StoredColour(couple), "#ff0000");
  EXPECT_EQ(PictureFiles(), QStringList({"1.bmp"}));
}
