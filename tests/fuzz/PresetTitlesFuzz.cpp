// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The contents of "reminders.txt": titles that fit, and none that are empty.

#include "FuzzTarget.h"
#include "calendar/PresetTitles.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  constexpr qsizetype kLongest = 255;
  const QStringList titles = PresetTitles::In(InputFrom(data, size));
  for (const QString& title : titles) {
    if (title.trimmed().isEmpty() || title.size() > kLongest || title.contains(u'\n') || title.contains(u'\r')) {
      std::abort();
    }
  }
  return 0;
}
