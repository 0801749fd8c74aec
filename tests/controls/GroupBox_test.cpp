// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/GroupBox.h"

#include "controls/Label.h"

#include <gtest/gtest.h>

#include <QImage>

namespace {

// Where anything stands on an image that is not white.
QRect InkOf(const QImage& image)
{
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y) != QColor(Qt::white)) {
        ink |= QRect(x, y, 1, 1);
      }
    }
  }
  return ink;
}

// A box of 300 by 200 pixels, white, with the title "HH".
class GroupBoxTest : public testing::Test
{
protected:
  GroupBoxTest()
  {
    box_.resize(300, 200);
    box_.SetBackColor(Qt::white);
    box_.setTitle(QStringLiteral("HH"));
  }

  QWidget& Put(int x, int y)
  {
    auto* control = new QWidget(&box_);
    control->setGeometry(x, y, 100, 24);
    return *control;
  }
  QRect Title() { return InkOf(box_.grab().toImage()); }

  GroupBox box_;
};

constexpr int kBearing = 3;  // between the edge of a letter's room and its ink

}

TEST_F(GroupBoxTest, TitleBeginsWhereTheControlsBegin)
{
  Put(40, 60);
  QWidget& first = Put(16, 90);
  EXPECT_NEAR(Title().left(), 16, kBearing);
  first.move(60, 90);
  EXPECT_NEAR(Title().left(), 40, kBearing);
}

TEST_F(GroupBoxTest, TitleBeginsWhereTheCaptionOfACommandBegins)
{
  auto* command = new Label(&box_);
  command->SetRole(QStringLiteral("command"));
  command->setGeometry(16, 60, 100, 28);
  EXPECT_NEAR(Title().left(), 16 + command->TextInset(), kBearing);
}

TEST_F(GroupBoxTest, TitleStandsHalfwayAboveTheControls)
{
  for (const int top : {30, 60, 120}) {
    delete box_.findChild<QWidget*>();
    Put(16, top);
    EXPECT_NEAR(Title().center().y(), top / 2, 2) << top;
  }
}

TEST_F(GroupBoxTest, TitleStandsBesideControlsAtTheUpperEdge)
{
  Put(120, 0);
  Put(16, 60);
  EXPECT_NEAR(Title().center().y(), 12, 2);
  EXPECT_NEAR(Title().left(), 16, kBearing);
}

TEST_F(GroupBoxTest, BlanksAroundTheTitleAreNotPainted)
{
  Put(16, 60);
  const QRect plain = Title();
  box_.setTitle(QStringLiteral("  HH "));
  EXPECT_EQ(Title(), plain);
}

TEST_F(GroupBoxTest, BoxWithoutATitleIsBlank)
{
  Put(16, 60);
  box_.setTitle({});
  EXPECT_TRUE(Title().isNull());
}
