// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Screen.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>

namespace {

class PretendedScreen : public testing::Test
{
protected:
  ~PretendedScreen() override { Screen::Pretend({}); }
};

}

TEST_F(PretendedScreen, SizeIsInTwips)
{
  Screen::Pretend(QRect(0, 0, 800, 600));
  EXPECT_EQ(Screen::Width(), 12000);
  EXPECT_EQ(Screen::Height(), 9000);
  EXPECT_EQ(Screen::TwipsPerPixelX(), 15);
}

TEST_F(PretendedScreen, WindowsAreCentred)
{
  Screen::Pretend(QRect(0, 0, 800, 600));
  EXPECT_EQ(Screen::CentredLeft(12000), 0);
  EXPECT_EQ(Screen::CentredLeft(6000), 3000);
  EXPECT_EQ(Screen::CentredLeft(0), 6000);
}

TEST_F(PretendedScreen, WindowsAreCentredOnAScreenBesideAnother)
{
  Screen::Pretend(QRect(1024, 0, 800, 600));
  EXPECT_EQ(Screen::Width(), 12000);
  EXPECT_EQ(Screen::CentredLeft(6000), 1024 * 15 + 3000);
}

TEST_F(PretendedScreen, WindowsAreCentredFromTopToBottom)
{
  Screen::Pretend(QRect(0, 0, 800, 600));
  EXPECT_EQ(Screen::CentredTop(9000), 0);
  EXPECT_EQ(Screen::CentredTop(3000), 3000);
  Screen::Pretend(QRect(0, 768, 800, 600));
  EXPECT_EQ(Screen::CentredTop(3000), 768 * 15 + 3000);
}

TEST_F(PretendedScreen, AQuarterDownIsAQuarterOfItsHeight)
{
  Screen::Pretend(QRect(0, 0, 800, 600));
  EXPECT_EQ(Screen::QuarterDown(), 2250);
  Screen::Pretend(QRect(0, 768, 800, 600));
  EXPECT_EQ(Screen::QuarterDown(), 768 * 15 + 2250);
}

TEST_F(PretendedScreen, GivesWayToTheRealOne)
{
  Screen::Pretend(QRect(0, 0, 123, 45));
  Screen::Pretend({});
  const QScreen* real = QGuiApplication::primaryScreen();
  ASSERT_NE(real, nullptr);
  EXPECT_NE(Screen::Width(), 123 * 15);
  EXPECT_GT(Screen::Width(), 0);
  EXPECT_LE(Screen::Width(), real->size().width() * 15);
  EXPECT_LE(Screen::Height(), real->size().height() * 15);
}
