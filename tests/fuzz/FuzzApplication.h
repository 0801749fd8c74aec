// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QApplication>

// The one application of a target that needs pictures or controls, without a display. It
// lives to the end of the process: the fuzzer has no place to take it down.
inline QApplication& FuzzApplication()
{
  static int count = 1;
  static char name[] = "fuzz";
  static char* arguments[] = {name, nullptr};
  static QApplication& application = []() -> QApplication& {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return *new QApplication(count, arguments);
  }();
  return application;
}
