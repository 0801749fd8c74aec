// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "calendar/frmReminders.h"
#include "controls/Forms.h"
#include "controls/Frame.h"
#include "platform/Clock.h"
#include "platform/Command.h"
#include "support/Drive.h"

#include <gtest/gtest.h>

// The calendar page that the event editor stands over, in a plain window.
class CalendarBehind : private Frame
{
public:
  CalendarBehind()
  {
    Forms::Register("frmReminders", [] { return new frmReminders; });
    Forms::Register("frmIntro", [] { return new EmptyPage; });
  }

  // Opens the page on the month of the date.
  void Open(QDate date)
  {
    Clock::StopOn(date);
    Command::Run([] { Forms::Load("frmReminders").Show(); });
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  }

  static bool IsOpen() { return Forms::Loaded("frmReminders") != nullptr; }
  static Form& Page() { return *Forms::Loaded("frmReminders"); }
  [[nodiscard]] QWidget& Window() { return window_; }

private:
  class EmptyPage : public Form
  {
  public:
    EmptyPage() : Form("frmIntro", Kind::kPage) {}
  };

  [[nodiscard]] WindowState State() const override { return WindowState::kNormal; }
  void SetState(WindowState /*state*/) override {}
  bool Unload() override { return true; }
  void PlacePage(Form& page) override
  {
    page.setParent(&window_);
    window_.resize(page.size());
    page.show();
    window_.show();
    window_.activateWindow();
  }
  void OpenPage(const QString& name) override { Forms::Load(name).Show(); }
  void AllowDatabaseCare(bool /*allowed*/) override {}
  [[nodiscard]] bool TimerEnabled() const override { return false; }
  void SetTimerEnabled(bool /*enabled*/) override {}

  QWidget window_;
};
