// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/Frame.h"

// A frame without a window, which remembers what is done to it.
class StandInFrame : public Frame
{
public:
  [[nodiscard]] WindowState State() const override { return state; }
  void SetState(WindowState newState) override { state = newState; }
  bool Unload() override
  {
    ++unloads;
    return true;
  }
  void PlacePage(Form&) override {}
  void OpenPage(const QString&) override {}
  [[nodiscard]] bool TimerEnabled() const override { return timer; }
  void AllowDatabaseCare(bool /*allowed*/) override {}
  void SetTimerEnabled(bool enabled) override { timer = enabled; }

  WindowState state = WindowState::kNormal;
  bool timer = false;
  int unloads = 0;
};
