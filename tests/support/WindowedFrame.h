// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/Form.h"
#include "controls/Forms.h"
#include "controls/Frame.h"

// A page that only stands there.
class EmptyPage : public Form
{
public:
  explicit EmptyPage(const QString& name) : Form(name, Kind::kPage) {}
};

// A frame with a plain window around one page, which remembers what it is told.
class WindowedFrame : public Frame
{
public:
  [[nodiscard]] WindowState State() const override { return state; }
  void SetState(WindowState newState) override { state = newState; }
  bool Unload() override { return true; }
  void PlacePage(Form& page) override
  {
    placed.append(page.Name());
    page.setParent(&window);
    window.resize(page.size());
    page.move(0, 0);
    page.show();
    window.show();
    window.activateWindow();
  }
  void OpenPage(const QString& name) override { Forms::Load(name).Show(); }
  void AllowDatabaseCare(bool allowed) override { careAllowed = allowed; }
  [[nodiscard]] bool TimerEnabled() const override { return false; }
  void SetTimerEnabled(bool /*enabled*/) override {}

  QWidget window;
  QStringList placed;
  WindowState state = WindowState::kNormal;
  bool careAllowed = true;
};
