// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// What the program holds at one moment.
struct Resources
{
  qint64 heap = 0;      // bytes given out and not given back
  qint64 resident = 0;  // bytes of the process in memory
  int objects = 0;      // below the application and all windows
  int widgets = 0;
  int windows = 0;
  int descriptors = 0;
  int threads = 0;

  [[nodiscard]] static Resources Now();

  // Writes to the standard error where most of the heap was given out.
  static void ListHeap();

  // One line for a table; the second is its heading.
  [[nodiscard]] QString Text() const;
  [[nodiscard]] static QString Heading();

  // What has grown since `before` by more than comes and goes, in words; empty if nothing has.
  [[nodiscard]] QString GrownSince(const Resources& before) const;
};
