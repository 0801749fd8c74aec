// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "people/modImages.h"

#include "controls/Form.h"
#include "controls/Image.h"
#include "controls/PictureBox.h"

#include <gtest/gtest.h>

namespace {

class Page : public Form
{
public:
  Page() : Form(QStringLiteral("frmTest"), Kind::kWindow) { resize(300, 150); }
};

class FitImageTest : public testing::Test
{
protected:
  FitImageTest() : box_(&page_), image_(&box_)
  {
    page_.resize(600, 600);
    box_.setGeometry(10, 10, 300, 150);
    modImages::BoxWidth = 300 * 15;
    modImages::BoxHeight = 150 * 15;
    modImages::UnstretchEmpty = false;
  }

  ~FitImageTest() override
  {
    modImages::BoxWidth = modImages::BoxHeight = 0;
    modImages::UnstretchEmpty = false;
  }

  static QPixmap PictureOf(int width, int height)
  {
    QPixmap picture(width, height);
    picture.fill(Qt::red);
    return picture;
  }

  // Where a picture of that size stands in a box of that size.
  QRect Fitted(QSize picture, QSize box, int margin = 0)
  {
    box_.resize(box);
    image_.SetPicture(PictureOf(picture.width(), picture.height()));
    modImages::FitImage(image_, margin);
    EXPECT_TRUE(image_.Stretch());
    return image_.geometry();
  }

  QWidget page_;
  PictureBox box_;
  Image image_;
};

}

TEST_F(FitImageTest, TallPictureTouchesTopAndBottomOfAWideBox)
{
  EXPECT_EQ(Fitted({100, 200}, {300, 150}), QRect(112, 0, 75, 150));
  EXPECT_EQ(Fitted({10, 20}, {300, 150}), QRect(112, 0, 75, 150)) << "a small picture grows";
  EXPECT_EQ(Fitted({1000, 2000}, {300, 150}), QRect(112, 0, 75, 150)) << "a large one shrinks";
}

TEST_F(FitImageTest, WidePictureTouchesLeftAndRightOfATallBox)
{
  EXPECT_EQ(Fitted({200, 100}, {150, 300}), QRect(0, 112, 150, 75));
  EXPECT_EQ(Fitted({20, 10}, {150, 300}), QRect(0, 112, 150, 75));
  EXPECT_EQ(Fitted({2000, 1000}, {150, 300}), QRect(0, 112, 150, 75));
}

TEST_F(FitImageTest, ProportionsOfPictureAndBoxDecide)
{
  EXPECT_EQ(Fitted({400, 100}, {200, 100}), QRect(0, 25, 200, 50)) << "wider than its wide box";
  EXPECT_EQ(Fitted({150, 100}, {200, 100}), QRect(25, 0, 150, 100)) << "wide, but less than its box";
  EXPECT_EQ(Fitted({100, 400}, {100, 200}), QRect(25, 0, 50, 200)) << "taller than its tall box";
  EXPECT_EQ(Fitted({100, 150}, {100, 200}), QRect(0, 25, 100, 150)) << "tall, but less than its box";
  EXPECT_EQ(Fitted({50, 50}, {200, 100}), QRect(50, 0, 100, 100));
  EXPECT_EQ(Fitted({50, 50}, {100, 200}), QRect(0, 50, 100, 100));
}

TEST_F(FitImageTest, PictureOfTheBoxesProportionFillsIt)
{
  EXPECT_EQ(Fitted({50, 50}, {120, 120}), QRect(0, 0, 120, 120));
  EXPECT_EQ(Fitted({20, 10}, {240, 120}), QRect(0, 0, 240, 120));
  EXPECT_EQ(Fitted({300, 150}, {300, 150}), QRect(0, 0, 300, 150));
}

TEST_F(FitImageTest, MarginIsLeftAllRound)
{
  EXPECT_EQ(Fitted({50, 50}, {200, 200}, 150), QRect(10, 10, 180, 180));
  EXPECT_EQ(Fitted({100, 200}, {300, 150}, 375), QRect(125, 25, 50, 100));
  EXPECT_EQ(Fitted({200, 100}, {150, 300}, 375), QRect(25, 125, 100, 50));
}

TEST_F(FitImageTest, WhatIsNoWholePixelIsOffByLessThanOne)
{
  for (const QSize box : {QSize(101, 101), QSize(97, 211), QSize(331, 64), QSize(300, 149)}) {
    for (const QSize picture : {QSize(3, 1), QSize(1, 3), QSize(7, 5), QSize(640, 479)}) {
      const QRect place = Fitted(picture, box);
      const QSizeF exact = QSizeF(picture).scaled(box, Qt::KeepAspectRatio);
      EXPECT_NEAR(place.width(), exact.width(), 1);
      EXPECT_NEAR(place.height(), exact.height(), 1);
      EXPECT_NEAR(place.x(), (box.width() - exact.width()) / 2, 1);
      EXPECT_NEAR(place.y(), (box.height() - exact.height()) / 2, 1);
      EXPECT_TRUE(QRect(QPoint(0, 0), box).contains(place)) << box.width() << ' ' << picture.width();
      EXPECT_TRUE(place.width() == box.width() || place.height() == box.height())
          << "one axis is touched " << place.width() << ' ' << place.height();
    }
  }
}

TEST_F(FitImageTest, PictureComesIntoSight)
{
  image_.hide();
  Fitted({10, 10}, {100, 100});
  EXPECT_FALSE(image_.isHidden());
}

TEST_F(FitImageTest, FittingAgainChangesNothing)
{
  const QRect place = Fitted({100, 200}, {300, 150});
  modImages::FitImage(image_);
  EXPECT_EQ(image_.geometry(), place);
  box_.resize(150, 300);
  modImages::FitImage(image_);
  EXPECT_EQ(image_.geometry(), QRect(0, 0, 150, 300)) << "it follows its box";
}

TEST_F(FitImageTest, FormIsAContainerToo)
{
  Page form;
  Image image(&form);
  image.SetPicture(PictureOf(100, 200));
  modImages::FitImage(image);
  EXPECT_EQ(image.geometry(), QRect(112, 0, 75, 150));
}

TEST_F(FitImageTest, WithoutAPictureItTakesTheSizeOfTheBox)
{
  image_.setGeometry(33, 44, 5, 6);
  modImages::BoxWidth = 1234 * 15;
  modImages::BoxHeight = 77 * 15;
  modImages::FitImage(image_, 150);
  EXPECT_EQ(image_.geometry(), QRect(0, 0, 1234, 77));
}

TEST_F(FitImageTest, WithoutAPictureItStaysAsVisibleAsItWas)
{
  image_.hide();
  modImages::FitImage(image_);
  EXPECT_TRUE(image_.isHidden());
  image_.show();
  modImages::FitImage(image_);
  EXPECT_FALSE(image_.isHidden());
}

TEST_F(FitImageTest, WithoutAPictureItUnstretchesOnlyWhenAsked)
{
  image_.SetStretch(true);
  modImages::FitImage(image_);
  EXPECT_TRUE(image_.Stretch());
  modImages::UnstretchEmpty = true;
  modImages::FitImage(image_);
  EXPECT_FALSE(image_.Stretch());
  EXPECT_EQ(image_.geometry(), QRect(0, 0, 300, 150));
  modImages::UnstretchEmpty = false;
  modImages::FitImage(image_);
  EXPECT_FALSE(image_.Stretch());
}

TEST_F(FitImageTest, AskedToUnstretchItStillStretchesAPicture)
{
  modImages::UnstretchEmpty = true;
  EXPECT_EQ(Fitted({100, 200}, {300, 150}), QRect(112, 0, 75, 150));
}

TEST_F(FitImageTest, BoxWithoutAnyRoomIsNoFailure)
{
  image_.hide();
  for (const QSize box : {QSize(0, 0), QSize(100, 0), QSize(0, 100)}) {
    Fitted({10, 10}, box);
    EXPECT_FALSE(image_.isHidden());
    EXPECT_LE(image_.width(), 1);
    EXPECT_LE(image_.height(), 1);
  }
}
