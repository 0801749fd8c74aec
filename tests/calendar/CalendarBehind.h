// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "calendar/frmReminders.h"
#include "platform/Clock.h"
#include "platform/Command.h"
#include "support/Drive.h"
#include "support/WindowedFrame.h"

#include <gtest/gtest.h>

// The calendar page that the event editor stands over, in a plain window.
class CalendarBehind
{
public:
  CalendarBehind()
  {
    Forms::Register("frmReminders", [] { return new frmReminders; });
    Forms::Register("frmIntro", [] { return new EmptyPage("frmIntro"); });
  }

  // Opens the page on the month of the date.
  void Open(QDate date)
  {
    Clock::StopOn(date);
    Command::Run([] { Forms::Load("frmReminders").Show(); });
    ASSERT_TRUE(QTest::qWaitForWindowActive(&frame_.window));
  }

  static bool IsOpen() { return Forms::Loaded("frmReminders") != nullptr; }
  static Form& Page() { return *Forms::Loaded("frmReminders"); }
  [[nodiscard]] QWidget& Window() { return frame_.window; }

private:
  WindowedFrame frame_;
};
