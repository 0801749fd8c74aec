// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "LookupTest.h"
#include "looks/modThemes.h"

#include <QFile>

namespace {

// Ann has a picture, Bob has none, Eve has another.
class LookupPicture : public LookupPageTest
{
protected:
  void OpenWithPictures(QSize annSize = {40, 20}, QSize eveSize = {20, 40})
  {
    UseGarden();
    Hands::SavePicture(PictureFile(AddPerson("Ann", "Wood")), Qt::red, annSize);
    AddPerson("Bob", "Wood");
    Hands::SavePicture(PictureFile(AddPerson("Eve", "Wood")), Qt::blue, eveSize);
    Open();
    place = PlaceByDesign();
  }

  // Where a picture may stand, at the size that the page has.
  static QSize PlaceByDesign() { return {140, 216}; }

  QSize place;
};

}

TEST_F(LookupPicture, ThePersonsPictureTakesThePlaceOfTheThemes)
{
  OpenWithPictures();
  ExpectThemePicture();
  ClickLine(0);
  ExpectPicture("#ff0000");
}

TEST_F(LookupPicture, WithoutOneTheThemesPictureStandsThere)
{
  OpenWithPictures();
  ClickLine(1);
  ExpectThemePicture();
}

TEST_F(LookupPicture, TheThemesPictureComesBackInBetween)
{
  OpenWithPictures();
  for (int i = 0; i < 2; ++i) {
    ClickLine(0);
    ExpectPicture("#ff0000");
    ClickLine(1);
    ExpectThemePicture();
    ClickLine(2);
    ExpectPicture("#0000ff");
    ClickLine(0);
    ExpectPicture("#ff0000");
  }
}

TEST_F(LookupPicture, AnotherOrderBringsTheThemesPictureBack)
{
  OpenWithPictures();
  ClickLine(0);
  Click(kLastNameOrder);
  ExpectThemePicture();
  ClickLine(0);
  ExpectPicture("#ff0000");
}

TEST_F(LookupPicture, WithAPlainThemeThePlaceIsEmpty)
{
  OpenWithPictures();
  folder.Execute("UPDATE Options SET Theme=4");
  ClickLine(0);
  ExpectPicture("#ff0000");
  ClickLine(1);
  EXPECT_FALSE(IsShown("picPerson"));
  EXPECT_EQ(Picture().Handle(), 0);
  EXPECT_TRUE(ThemePicture().Picture().isNull());
  EXPECT_TRUE(IsShown("Shape15"));
}

TEST_F(LookupPicture, AWidePictureTouchesTheSides)
{
  OpenWithPictures({400, 40});
  ClickLine(0);
  EXPECT_EQ(Picture().size(), QSize(place.width(), place.width() / 10));
  ExpectPicture("#ff0000");
}

TEST_F(LookupPicture, ATallPictureTouchesTopAndBottom)
{
  OpenWithPictures({20, 216});
  ClickLine(0);
  EXPECT_EQ(Picture().size(), QSize(20, place.height()));
  ExpectPicture("#ff0000");
}

TEST_F(LookupPicture, ASmallPictureGrows)
{
  OpenWithPictures({2, 2});
  ClickLine(0);
  EXPECT_EQ(Picture().size(), QSize(place.width(), place.width()));
}

TEST_F(LookupPicture, EveryPictureIsFittedToTheWholePlace)
{
  OpenWithPictures({20, 400}, {400, 40});
  ClickLine(0);
  const QSize tall = Picture().size();
  ClickLine(2);
  const QSize wide = Picture().size();
  EXPECT_EQ(tall.height(), place.height());
  EXPECT_EQ(wide.width(), place.width());
  for (const int line : {0, 1, 2, 2, 0, 1, 1, 0}) {
    ClickLine(line);
    if (line != 1) {
      EXPECT_EQ(Picture().size(), line == 0 ? tall : wide);
    }
  }
}

TEST_F(LookupPicture, TheSizeOfAnotherPagesPlaceDoesNotMatter)
{
  modImages::BoxWidth = 300;
  modImages::BoxHeight = 300;
  OpenWithPictures({400, 40});
  ClickLine(0);
  EXPECT_EQ(Picture().width(), place.width());
}

TEST_F(LookupPicture, ItGrowsWithThePage)
{
  OpenWithPictures({400, 40}, {20, 216});
  ClickLine(0);
  Page().resize(Page().size() * 2);
  ExpectPicture("#ff0000");
  constexpr int kRounding = 3;
  EXPECT_NEAR(Picture().width(), place.width() * 2, kRounding);
  EXPECT_NEAR(Picture().height(), place.width() / 5, kRounding);
  ClickLine(2);
  ExpectPicture("#0000ff");
  EXPECT_NEAR(Picture().height(), place.height() * 2, kRounding);
  Page().resize(Page().size() / 2);
  ExpectPicture("#0000ff");
  EXPECT_NEAR(Picture().height(), place.height(), kRounding);
  ClickLine(0);
  EXPECT_NEAR(Picture().width(), place.width(), kRounding);
}

TEST_F(LookupPicture, AResizeWithoutOneLeavesTheThemesPicture)
{
  OpenWithPictures({400, 40});
  Page().resize(Page().size() * 2);
  ExpectThemePicture();
  ClickLine(1);
  Page().resize(Page().size() / 2);
  ExpectThemePicture();
  ClickLine(0);
  ExpectPicture("#ff0000");
  EXPECT_NEAR(Picture().width(), place.width(), 3);
}

TEST_F(LookupPicture, ADamagedPictureCountsAsNone)
{
  OpenWithPictures();
  QFile file(PictureFile(2));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("BM no picture");
  file.close();
  ClickLine(0);
  ClickLine(1);
  ExpectThemePicture();
  EXPECT_EQ(Name(), "Bob Wood");
}

TEST_F(LookupPicture, OnlyTheBitmapOfThatKeyCounts)
{
  OpenWithPictures();
  Hands::SavePicture(folder.File("/PeoplePics/2.jpg"));
  Hands::SavePicture(folder.File("/PeoplePics/22.bmp"));
  ClickLine(1);
  ExpectThemePicture();
}

TEST_F(LookupPicture, WithoutTheFolderThereAreNone)
{
  OpenWithPictures();
  ASSERT_TRUE(QDir(folder.File("/PeoplePics")).removeRecursively());
  ClickLine(0);
  ExpectThemePicture();
  EXPECT_EQ(Name(), "Ann Wood");
}
