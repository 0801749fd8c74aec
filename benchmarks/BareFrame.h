// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/Form.h"
#include "controls/Frame.h"

// A frame that shows a page as a window of the frame's first size.
class BareFrame : public Frame
{
public:
  [[nodiscard]] WindowState State() const override { return WindowState::kNormal; }
  void SetState(WindowState /*state*/) override {}
  bool Unload() override { return true; }
  void PlacePage(Form& page) override
  {
    page.resize(768, 578);
    page.show();
  }
  void OpenPage(const QString& /*name*/) override {}
  void AllowDatabaseCare(bool /*allowed*/) override {}
  [[nodiscard]] bool TimerEnabled() const override { return false; }
  void SetTimerEnabled(bool /*enabled*/) override {}
};
