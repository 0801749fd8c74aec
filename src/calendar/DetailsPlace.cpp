// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/DetailsPlace.h"

namespace {

constexpr int kToTheLeft = 1000;
constexpr int kAbove = 150;
constexpr int kBelow = 100;

int Left(const QSize& box, const QRect& cell, const QPoint& picture, const QSize& page)
{
  const int left = cell.left() + picture.x();
  if (box.width() + left + cell.width() > page.width()) {
    return left - box.width() / 2 - kToTheLeft;
  }
  return left + cell.width() / 2;
}

int Top(const QSize& box, const QRect& cell, const QPoint& picture, const QSize& page)
{
  const int top = cell.top() + picture.y();
  if (box.height() + top + cell.height() > page.height()) {
    return top - box.height() - kAbove;
  }
  return top + cell.height() + kBelow;
}

}

QPoint DetailsPlace(const QSize& box, const QRect& cell, const QPoint& picture, const QSize& page)
{
  return {Left(box, cell, picture, page), Top(box, cell, picture, page)};
}
