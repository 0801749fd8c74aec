// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Twips.h"

#include <gtest/gtest.h>

TEST(Twips, FifteenAreAPixel)
{
  static_assert(TwipsFromPixels(1) == kTwipsPerPixel);
  EXPECT_EQ(TwipsFromPixels(0), 0);
  EXPECT_EQ(TwipsFromPixels(800), 12000);
  EXPECT_EQ(TwipsFromPixels(-2), -30);
}

TEST(Twips, PartsOfAPixelAreCutOff)
{
  const struct
  {
    int twips;
    int pixels;
  } kCases[] = {{0, 0}, {14, 0}, {15, 1}, {29, 1}, {30, 2}, {1440, 96}, {-14, 0}, {-15, -1}, {-29, -1}};
  for (const auto& [twips, pixels] : kCases) {
    EXPECT_EQ(PixelsFromTwips(twips), pixels) << twips;
  }
}

TEST(Twips, PixelsComeBack)
{
  for (int pixels = -100; pixels <= 100; ++pixels) {
    EXPECT_EQ(PixelsFromTwips(TwipsFromPixels(pixels)), pixels);
  }
}
