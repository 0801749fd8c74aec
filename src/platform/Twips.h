// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// Measures of forms and paper are in twips, of which 1440 make an inch.
// On screen 15 twips are one logical pixel.
inline constexpr int kTwipsPerPixel = 15;

[[nodiscard]] constexpr int TwipsFromPixels(int pixels)
{
  return pixels * kTwipsPerPixel;
}

// Whole pixels, the part of a pixel cut off.
[[nodiscard]] constexpr int PixelsFromTwips(int twips)
{
  return twips / kTwipsPerPixel;
}
