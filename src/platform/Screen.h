// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QRect>

// The screen that the program's windows are placed on.
namespace Screen {

// Size in twips.
[[nodiscard]] int Width();
[[nodiscard]] int Height();

[[nodiscard]] int TwipsPerPixelX();

// The left edge, in twips, that centres a window of this width, and the top edge that
// centres one of this height; and the top edge a quarter of the screen's height down.
[[nodiscard]] int CentredLeft(int windowWidth);
[[nodiscard]] int CentredTop(int windowHeight);
[[nodiscard]] int QuarterDown();

// Takes another rectangle, in pixels, for the screen; an empty one gives the real screen back.
void Pretend(const QRect& pixels);

}
