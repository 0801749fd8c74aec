// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/Heap.h"

#include <malloc.h>

#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

qint64 Heap::BytesInUse()
{
#ifdef __SANITIZE_ADDRESS__
  return static_cast<qint64>(__sanitizer_get_current_allocated_bytes());
#else
  const auto info = mallinfo2();
  return static_cast<qint64>(info.uordblks + info.hblkhd);
#endif
}
