// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The time of an event as it is typed: no time, or one that is told and read back alike.

#include "FuzzTarget.h"
#include "calendar/TimeText.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  const std::optional<QTime> time = ReadTime(QString::fromUtf8(InputFrom(data, size)));
  if (!time) {
    return 0;
  }
  for (const char* form : {"h:mm:ss AP", "hh:mm:ss", " h:mm:ss ap "}) {
    if (!time->isValid() || ReadTime(time->toString(QLatin1String(form))) != time) {
      std::abort();
    }
  }
  return 0;
}
