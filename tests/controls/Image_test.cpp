// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/Image.h"

#include <gtest/gtest.h>

#include <QImage>

namespace {

const QColor kAround = Qt::white;

QPixmap PictureOf(int width, int height, const QColor& ink = Qt::red)
{
  QPixmap picture(width, height);
  picture.fill(ink);
  return picture;
}

// Red on the left, blue on the right.
QPixmap TwoColours(int width, int height)
{
  QImage picture(width, height, QImage::Format_RGB32);
  for (int x = 0; x < width; ++x) {
    for (int y = 0; y < height; ++y) {
      picture.setPixelColor(x, y, x < width / 2 ? Qt::red : Qt::blue);
    }
  }
  return QPixmap::fromImage(picture);
}

class ImageTest : public testing::Test
{
protected:
  ImageTest() : image_(&ground_)
  {
    QPalette palette;
    palette.setColor(QPalette::Window, kAround);
    ground_.setPalette(palette);
    ground_.resize(200, 200);
    image_.setGeometry(20, 30, 100, 50);
  }

  // Where on the ground anything but the ground is seen.
  QRect Seen()
  {
    const QImage painted = ground_.grab().toImage();
    QRect seen;
    for (int y = 0; y < painted.height(); ++y) {
      for (int x = 0; x < painted.width(); ++x) {
        if (painted.pixelColor(x, y) != kAround) {
          seen |= QRect(x, y, 1, 1);
        }
      }
    }
    return seen;
  }

  QWidget ground_;
  Image image_;
};

}

TEST_F(ImageTest, IsEmptyAtFirst)
{
  EXPECT_TRUE(image_.Picture().isNull());
  EXPECT_EQ(image_.Handle(), 0);
  EXPECT_FALSE(image_.Stretch());
  EXPECT_EQ(Seen(), QRect());
}

TEST_F(ImageTest, TakesThePicturesOwnSize)
{
  image_.SetPicture(PictureOf(70, 40));
  EXPECT_EQ(image_.geometry(), QRect(20, 30, 70, 40));
  EXPECT_EQ(Seen(), QRect(20, 30, 70, 40));
  image_.SetPicture(PictureOf(10, 90));
  EXPECT_EQ(image_.geometry(), QRect(20, 30, 10, 90));
}

TEST_F(ImageTest, StretchesThePictureToItsOwnSize)
{
  image_.SetStretch(true);
  image_.SetPicture(TwoColours(10, 10));
  EXPECT_EQ(image_.geometry(), QRect(20, 30, 100, 50));
  EXPECT_EQ(Seen(), QRect(20, 30, 100, 50));
  const QImage painted = ground_.grab().toImage();
  EXPECT_EQ(painted.pixelColor(25, 35), QColor(Qt::red));
  EXPECT_EQ(painted.pixelColor(55, 75), QColor(Qt::red));
  EXPECT_EQ(painted.pixelColor(85, 35), QColor(Qt::blue));
  EXPECT_EQ(painted.pixelColor(115, 75), QColor(Qt::blue));
}

TEST_F(ImageTest, LargePictureIsStretchedToASmallerSize)
{
  image_.SetStretch(true);
  image_.SetPicture(TwoColours(1000, 1000));
  EXPECT_EQ(Seen(), QRect(20, 30, 100, 50));
  EXPECT_EQ(image_.Picture().size(), QSize(1000, 1000));
}

TEST_F(ImageTest, GoesBackToThePicturesOwnSize)
{
  image_.SetStretch(true);
  image_.SetPicture(PictureOf(70, 40));
  image_.SetStretch(false);
  EXPECT_EQ(image_.geometry(), QRect(20, 30, 70, 40));
  image_.SetStretch(true);
  EXPECT_EQ(image_.geometry(), QRect(20, 30, 70, 40));
}

TEST_F(ImageTest, FollowsItsSizeWhileItStretches)
{
  image_.SetStretch(true);
  image_.SetPicture(TwoColours(10, 10));
  ASSERT_EQ(Seen(), QRect(20, 30, 100, 50));
  image_.setGeometry(0, 0, 180, 190);
  EXPECT_EQ(Seen(), QRect(0, 0, 180, 190));
  image_.setGeometry(5, 5, 20, 20);
  EXPECT_EQ(Seen(), QRect(5, 5, 20, 20));
  const QImage painted = ground_.grab().toImage();
  EXPECT_EQ(painted.pixelColor(8, 15), QColor(Qt::red));
  EXPECT_EQ(painted.pixelColor(22, 15), QColor(Qt::blue));
}

TEST_F(ImageTest, AnotherPictureIsSeenAtOnce)
{
  image_.SetStretch(true);
  image_.SetPicture(PictureOf(10, 10, Qt::red));
  ASSERT_EQ(ground_.grab().toImage().pixelColor(70, 50), QColor(Qt::red));
  image_.SetPicture(PictureOf(10, 10, Qt::blue));
  EXPECT_EQ(ground_.grab().toImage().pixelColor(70, 50), QColor(Qt::blue));
  image_.SetPicture({});
  EXPECT_EQ(Seen(), QRect());
  image_.SetPicture(PictureOf(10, 10, Qt::green));
  EXPECT_EQ(ground_.grab().toImage().pixelColor(70, 50), QColor(Qt::green));
}

TEST_F(ImageTest, HandleTellsPicturesApart)
{
  image_.SetPicture(PictureOf(10, 10));
  const qint64 first = image_.Handle();
  EXPECT_NE(first, 0);
  image_.SetStretch(true);
  image_.resize(33, 44);
  static_cast<void>(ground_.grab());
  EXPECT_EQ(image_.Handle(), first);
  image_.SetPicture(PictureOf(10, 10));
  EXPECT_NE(image_.Handle(), first);
  EXPECT_NE(image_.Handle(), 0);
  image_.SetPicture({});
  EXPECT_EQ(image_.Handle(), 0);
  EXPECT_TRUE(image_.Picture().isNull());
}

TEST_F(ImageTest, ClearPartsOfAPictureShowWhatIsBehind)
{
  QPixmap picture(40, 40);
  picture.fill(Qt::transparent);
  image_.SetPicture(picture);
  EXPECT_EQ(Seen(), QRect());
}

TEST_F(ImageTest, StretchIsAPropertyOfADesign)
{
  EXPECT_TRUE(image_.setProperty("Stretch", true));
  EXPECT_TRUE(image_.Stretch());
}

TEST_F(ImageTest, WithoutAnySizeNothingIsPainted)
{
  image_.SetStretch(true);
  image_.SetPicture(PictureOf(10, 10));
  image_.resize(0, 0);
  EXPECT_EQ(Seen(), QRect());
  image_.resize(100, 0);
  EXPECT_EQ(Seen(), QRect());
}
