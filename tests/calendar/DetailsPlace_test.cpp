// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/DetailsPlace.h"

#include <gtest/gtest.h>

namespace {

const QSize kBox(3135, 855);
const QPoint kPicture(120, 840);
const QSize kPage(10455, 7710);

QRect Cell(int column, int row)
{
  return {1440 * column, 600 + 1080 * row, 1455, 690};
}

QPoint PlaceAt(int column, int row)
{
  return DetailsPlace(kBox, Cell(column, row), kPicture, kPage);
}

// A half of a twip may go either way.
void ExpectLeft(const QPoint& place, double left)
{
  EXPECT_NEAR(place.x(), left, 0.5);
}

}

TEST(DetailsPlace, OpensBesideTheMiddleOfTheCellWhereThereIsRoom)
{
  ExpectLeft(PlaceAt(0, 0), 0 + 120 + 727.5);
  ExpectLeft(PlaceAt(1, 0), 1440 + 120 + 727.5);
  ExpectLeft(PlaceAt(2, 0), 2880 + 120 + 727.5);
  ExpectLeft(PlaceAt(3, 0), 4320 + 120 + 727.5);
}

TEST(DetailsPlace, OpensToTheLeftOfACellFromWhichItWouldLeaveThePage)
{
  ExpectLeft(PlaceAt(4, 0), 5760 + 120 - 1567.5 - 1000);
  ExpectLeft(PlaceAt(5, 0), 7200 + 120 - 1567.5 - 1000);
  ExpectLeft(PlaceAt(6, 0), 8640 + 120 - 1567.5 - 1000);
}

TEST(DetailsPlace, OpensBelowTheCellWhereThereIsRoom)
{
  for (int row = 0; row < 5; ++row) {
    EXPECT_EQ(PlaceAt(0, row).y(), 600 + 1080 * row + 690 + 840 + 100) << row;
  }
}

TEST(DetailsPlace, OpensAboveACellFromWhichItWouldLeaveThePage)
{
  EXPECT_EQ(PlaceAt(0, 5).y(), 6000 + 840 - 855 - 150);
}

TEST(DetailsPlace, TheTwoDirectionsAreDecidedEachForItself)
{
  ExpectLeft(PlaceAt(6, 5), 8640 + 120 - 1567.5 - 1000);
  EXPECT_EQ(PlaceAt(6, 5).y(), 5835);
  ExpectLeft(PlaceAt(1, 5), 2287.5);
  EXPECT_EQ(PlaceAt(1, 5).y(), 5835);
  ExpectLeft(PlaceAt(6, 1), 6192.5);
  EXPECT_EQ(PlaceAt(6, 1).y(), 3310);
}

TEST(DetailsPlace, ABoxThatJustFitsStaysBesideAndBelow)
{
  const QRect cell(1000, 1000, 200, 100);
  const QPoint picture(30, 40);
  const QSize box(400, 300);
  const QSize exact(400 + 1000 + 200 + 30, 300 + 1000 + 100 + 40);
  EXPECT_EQ(DetailsPlace(box, cell, picture, exact), QPoint(1000 + 30 + 100, 1000 + 100 + 40 + 100));
  EXPECT_EQ(DetailsPlace(box, cell, picture, exact - QSize(1, 0)),
            QPoint(1000 + 30 - 200 - 1000, 1000 + 100 + 40 + 100));
  EXPECT_EQ(DetailsPlace(box, cell, picture, exact - QSize(0, 1)), QPoint(1000 + 30 + 100, 1000 + 40 - 300 - 150));
  EXPECT_EQ(DetailsPlace(box, cell, picture, exact - QSize(1, 1)), QPoint(-170, 590));
}
