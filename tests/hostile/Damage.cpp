// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Damage.h"

#include <algorithm>

namespace {

constexpr qsizetype kPage = 4096;
constexpr qsizetype kHeader = 100;
constexpr qsizetype kFreeListAt = 32;

}

QByteArray Damage::Database(QByteArray whole)
{
  const qsizetype page = SomePage(whole);
  switch (Below(10)) {
    case 0:
      Flip(whole, 0, kHeader, 3);
      break;
    case 1:
      Flip(whole, kFreeListAt, kFreeListAt + 8, 4);
      break;
    case 2:
      Flip(whole, kHeader, kPage, 8);
      break;
    case 3:
      Flip(whole, page, page + 12, 3);  // what the page says of itself
      break;
    case 4:
      Flip(whole, page + 8, page + 80, 6);  // where its rows are
      break;
    case 5:
      CutOff(whole);
      break;
    case 6:
      Overwrite(whole, page, kPage);
      break;
    case 7:
      CopyPage(whole);
      break;
    case 8:
      Flip(whole, page, page + kPage, 60);
      break;
    default:
      Flip(whole, 0, whole.size(), 200);
  }
  return whole;
}

QByteArray Damage::File(QByteArray whole)
{
  switch (Below(5)) {
    case 0:
      CutOff(whole);
      break;
    case 1:
      Overwrite(whole, Below(whole.size() + 1), Below(2000) + 1);
      break;
    case 2:
      Flip(whole, 0, std::min<qsizetype>(whole.size(), 64), 4);
      break;
    case 3:
      Flip(whole, 0, whole.size(), 30);
      break;
    default:
      whole = QByteArray(Below(5000), '\0');
  }
  return whole;
}

// One bit to a few, somewhere between two places.
void Damage::Flip(QByteArray& bytes, qsizetype from, qsizetype to, int most)
{
  to = std::min(to, bytes.size());
  for (int flips = Below(most) + 1; flips > 0 && from < to; --flips) {
    const qsizetype place = from + Below(to - from);
    bytes[place] = static_cast<char>(bytes[place] ^ (1 << Below(8)));
  }
}

// Zeros, ones or noise.
void Damage::Overwrite(QByteArray& bytes, qsizetype from, qsizetype length)
{
  const int kind = Below(3);
  for (qsizetype place = from; place < std::min(from + length, bytes.size()); ++place) {
    bytes[place] = kind == 0 ? '\0' : kind == 1 ? '\xff' : static_cast<char>(Below(256));
  }
}

void Damage::CopyPage(QByteArray& bytes)
{
  const QByteArray page = bytes.mid(SomePage(bytes), kPage);
  bytes.replace(SomePage(bytes), page.size(), page);
}

void Damage::CutOff(QByteArray& bytes)
{
  bytes.truncate(Below(2) == 0 ? SomePage(bytes) : Below(bytes.size() + 1));
}

// Where a page begins.
qsizetype Damage::SomePage(const QByteArray& bytes)
{
  return Below(std::max<qsizetype>(1, bytes.size() / kPage)) * kPage;
}
