// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Application.h"

#include <gtest/gtest.h>

// The toolkit's font and theme libraries keep memory to the end on purpose.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options()
{
  return "detect_leaks=0";
}

int main(int argc, char** argv)
{
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  qputenv("CUPS_SERVER", "/nonexistent");  // no printer of this machine is printed on
  testing::InitGoogleTest(&argc, argv);
  Application application(argc, argv);
  return RUN_ALL_TESTS();
}
