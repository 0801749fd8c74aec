// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Characters.h"

#include <algorithm>

namespace Characters {

int LengthOf(const QString& text)
{
  int length = 0;
  for (const QChar unit : text) {
    length += unit.isLowSurrogate() ? 0 : 1;
  }
  return length;
}

bool IsBlank(const QString& text)
{
  return std::all_of(text.begin(), text.end(), [](QChar character) { return character == QLatin1Char(' '); });
}

}
