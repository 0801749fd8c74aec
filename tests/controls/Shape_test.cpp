// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/Label.h"
#include "controls/Shape.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

namespace {

const QColor kAround = Qt::white;
const QColor kFill = Qt::red;
const QColor kLine = Qt::blue;

// A shape on a white ground of its own size, filled red.
class ShapeTest : public testing::Test
{
protected:
  ShapeTest() : shape_(&ground_)
  {
    QPalette palette;
    palette.setColor(QPalette::Window, kAround);
    ground_.setPalette(palette);
    shape_.SetFillColor(kFill);
    Resize(100, 100);
  }

  void Resize(int width, int height)
  {
    ground_.resize(width, height);
    shape_.setGeometry(0, 0, width, height);
  }

  QColor At(int x, int y) { return ground_.grab().toImage().pixelColor(x, y); }

  QWidget ground_;
  Shape shape_;
};

}

TEST_F(ShapeTest, RectangleIsFilledUpToItsCorners)
{
  EXPECT_EQ(At(0, 0), kFill);
  EXPECT_EQ(At(50, 50), kFill);
  EXPECT_EQ(At(99, 99), kFill);
}

TEST_F(ShapeTest, CircleLeavesItsCornersOpen)
{
  shape_.SetFigure(Shape::Circle);
  EXPECT_EQ(At(50, 50), kFill);
  EXPECT_EQ(At(50, 4), kFill);
  EXPECT_EQ(At(4, 50), kFill);
  EXPECT_EQ(At(4, 4), kAround);
  EXPECT_EQ(At(95, 95), kAround);
}

TEST_F(ShapeTest, CircleIsRoundInAWideBoxToo)
{
  shape_.SetFigure(Shape::Circle);
  Resize(200, 60);
  EXPECT_EQ(At(100, 30), kFill);
  EXPECT_EQ(At(76, 30), kFill);
  EXPECT_EQ(At(124, 30), kFill);
  EXPECT_EQ(At(50, 30), kAround);
  EXPECT_EQ(At(150, 30), kAround);
}

TEST_F(ShapeTest, RoundedRectangleLeavesOnlyItsCornersOpen)
{
  shape_.SetFigure(Shape::RoundedRectangle);
  EXPECT_EQ(At(0, 0), kAround);
  EXPECT_EQ(At(99, 99), kAround);
  EXPECT_EQ(At(50, 2), kFill);
  EXPECT_EQ(At(2, 50), kFill);
  EXPECT_EQ(At(50, 50), kFill);
}

TEST_F(ShapeTest, HollowShapeLeavesOutTheFill)
{
  for (const Shape::Figure figure : {Shape::Rectangle, Shape::Circle, Shape::RoundedRectangle}) {
    SCOPED_TRACE(figure);
    shape_.SetFigure(figure);
    shape_.SetFillStyle(Shape::kHollow);
    EXPECT_EQ(At(50, 50), kAround);
    shape_.SetFillStyle(Shape::kSolid);
    EXPECT_EQ(At(50, 50), kFill);
  }
}

TEST_F(ShapeTest, HollowShapeKeepsItsLine)
{
  shape_.SetLineColor(kLine);
  shape_.SetFillStyle(Shape::kHollow);
  EXPECT_EQ(At(50, 0), kLine);
  EXPECT_EQ(At(50, 50), kAround);
}

TEST_F(ShapeTest, WithoutALineColourOnlyTheFillIsDrawn)
{
  shape_.SetLineColor(kLine);
  EXPECT_EQ(At(50, 0), kLine);
  shape_.SetLineColor({});
  EXPECT_EQ(At(50, 0), kFill);
}

TEST_F(ShapeTest, IsSolidAndBlackAtFirst)
{
  const Shape shape;
  EXPECT_EQ(shape.GetFigure(), Shape::Rectangle);
  EXPECT_EQ(shape.FillStyle(), Shape::kSolid);
  EXPECT_EQ(shape.FillColor(), QColor(Qt::black));
  EXPECT_FALSE(shape.LineColor().isValid());
}

TEST_F(ShapeTest, MouseGoesThroughToWhatIsBelow)
{
  Label below(&ground_);
  below.setGeometry(0, 0, 100, 100);
  shape_.raise();
  const QSignalSpy clicks(&below, &Label::Click);
  ground_.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&ground_));
  QTest::mouseClick(ground_.windowHandle(), Qt::LeftButton, {}, QPoint(50, 50));
  EXPECT_EQ(clicks.count(), 1);
}

TEST_F(ShapeTest, HairlineStaysThinHoweverThickItsPlaceIs)
{
  shape_.SetFigure(Shape::Hairline);
  for (const int thickness : {1, 2, 4}) {
    Resize(100, thickness);
    EXPECT_EQ(At(50, 0), kFill) << thickness;
    EXPECT_EQ(At(99, 0), kFill) << thickness;
    EXPECT_EQ(At(50, thickness - 1), thickness == 1 ? kFill : kAround) << thickness;
    Resize(thickness, 100);
    EXPECT_EQ(At(0, 99), kFill) << thickness;
    EXPECT_EQ(At(thickness - 1, 50), thickness == 1 ? kFill : kAround) << thickness;
  }
}
