// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/TextOrder.h"

#include "platform/Utf8.h"

#include <algorithm>

namespace TextOrder {
namespace {

bool IsAscii(std::string_view text)
{
  return std::none_of(text.begin(), text.end(), [](char c) { return static_cast<signed char>(c) < 0; });
}

char FoldAscii(char c)
{
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}

std::string Key(std::string_view utf8)
{
  if (!IsAscii(utf8)) {
    return Key(FromUtf8(utf8));
  }
  std::string key(utf8);
  std::transform(key.begin(), key.end(), key.begin(), FoldAscii);
  return key;
}

std::string Key(const QString& text)
{
  return text.toCaseFolded().toStdString();
}

int Compare(std::string_view utf8, std::string_view other)
{
  const std::size_t common = std::min(utf8.size(), other.size());
  for (std::size_t i = 0; i < common; ++i) {
    const char left = FoldAscii(utf8[i]);
    const char right = FoldAscii(other[i]);
    if (static_cast<signed char>(left) < 0 || static_cast<signed char>(right) < 0) {
      return Key(utf8).compare(Key(other));
    }
    if (left != right) {
      return left < right ? -1 : 1;
    }
  }
  if (utf8.size() == other.size()) {
    return 0;
  }
  return utf8.size() < other.size() ? -1 : 1;
}

bool Less(const QString& text, const QString& other)
{
  return Key(text) < Key(other);
}

}
