// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Screen.h"

#include "platform/Twips.h"

#include <QGuiApplication>
#include <QScreen>

namespace Screen {
namespace {

QRect pretended;

QRect Pixels()
{
  return pretended.isEmpty() ? QGuiApplication::primaryScreen()->geometry() : pretended;
}

}

int Width()
{
  return TwipsFromPixels(Pixels().width());
}

int Height()
{
  return TwipsFromPixels(Pixels().height());
}

int TwipsPerPixelX()
{
  return kTwipsPerPixel;
}

int CentredLeft(int windowWidth)
{
  return TwipsFromPixels(Pixels().left()) + Width() / 2 - windowWidth / 2;
}

int CentredTop(int windowHeight)
{
  return TwipsFromPixels(Pixels().top()) + Height() / 2 - windowHeight / 2;
}

int QuarterDown()
{
  return TwipsFromPixels(Pixels().top()) + Height() / 4;
}

void Pretend(const QRect& pixels)
{
  pretended = pixels;
}

}
