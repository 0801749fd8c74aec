// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/PictureBox.h"

#include <gtest/gtest.h>

#include <QImage>

namespace {

const QColor kAround = Qt::white;
const QColor kInk = Qt::red;

QPixmap PictureOf(int width, int height)
{
  QPixmap picture(width, height);
  picture.fill(kInk);
  return picture;
}

// Where the ink stands on an image.
QRect InkOf(const QImage& image)
{
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y) == kInk) {
        ink |= QRect(x, y, 1, 1);
      }
    }
  }
  return ink;
}

class PictureBoxTest : public testing::Test
{
protected:
  PictureBoxTest() : box_(&ground_)
  {
    QPalette palette;
    palette.setColor(QPalette::Window, kAround);
    ground_.setPalette(palette);
    Resize(100, 100);
  }

  void Resize(int width, int height)
  {
    ground_.resize(width, height);
    box_.setGeometry(0, 0, width, height);
  }

  QImage Painted() { return ground_.grab().toImage(); }

  QWidget ground_;
  PictureBox box_;
};

}

TEST_F(PictureBoxTest, PictureIsAsLargeAsItFitsInItsProportionsAndCentred)
{
  struct Case
  {
    QSize picture;
    QSize box;
    QRect place;
  };
  const std::vector<Case> cases = {
      {{200, 100}, {100, 100}, {0, 25, 100, 50}},    // wide
      {{100, 200}, {100, 100}, {25, 0, 50, 100}},    // tall
      {{50, 50}, {200, 100}, {50, 0, 100, 100}},     // small in a wide box
      {{400, 400}, {100, 300}, {0, 100, 100, 100}},  // large in a tall box
      {{60, 40}, {60, 40}, {0, 0, 60, 40}},          // fits
  };
  for (const Case& c : cases) {
    Resize(c.box.width(), c.box.height());
    box_.SetPicture(PictureOf(c.picture.width(), c.picture.height()));
    EXPECT_EQ(InkOf(Painted()), c.place) << c.picture.width() << " x " << c.picture.height();
  }
}

TEST_F(PictureBoxTest, PictureFollowsTheSizeOfTheBox)
{
  box_.SetPicture(PictureOf(200, 100));
  Resize(40, 40);
  EXPECT_EQ(InkOf(Painted()), QRect(0, 10, 40, 20));
}

TEST_F(PictureBoxTest, EmptyPictureEmptiesTheBox)
{
  box_.SetPicture(PictureOf(10, 10));
  ASSERT_EQ(InkOf(Painted()), QRect(0, 0, 100, 100));
  box_.SetPicture({});
  EXPECT_TRUE(box_.Picture().isNull());
  EXPECT_TRUE(InkOf(Painted()).isNull());
}

TEST_F(PictureBoxTest, PictureIsKeptAsItCame)
{
  EXPECT_TRUE(box_.Picture().isNull());
  box_.SetPicture(PictureOf(321, 123));
  EXPECT_EQ(box_.Picture().size(), QSize(321, 123));
}

TEST_F(PictureBoxTest, WhatIsBehindShowsUntilABackColourIsSet)
{
  EXPECT_FALSE(box_.BackColor().isValid());
  EXPECT_EQ(Painted().pixelColor(50, 50), kAround);
  box_.SetBackColor(Qt::green);
  EXPECT_EQ(Painted().pixelColor(50, 50), QColor(Qt::green));
  EXPECT_EQ(Painted().pixelColor(0, 0), QColor(Qt::green));
}

TEST_F(PictureBoxTest, BackColourShowsBesideThePicture)
{
  box_.SetBackColor(Qt::green);
  box_.SetPicture(PictureOf(200, 100));
  const QImage painted = Painted();
  EXPECT_EQ(painted.pixelColor(50, 10), QColor(Qt::green));
  EXPECT_EQ(painted.pixelColor(50, 50), kInk);
  EXPECT_EQ(painted.pixelColor(50, 90), QColor(Qt::green));
}
