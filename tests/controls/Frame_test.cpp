// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/Frame.h"
#include "platform/RuntimeError.h"

#include <gtest/gtest.h>

namespace {

class StandInFrame : public Frame
{
public:
  [[nodiscard]] WindowState State() const override { return WindowState::kNormal; }
  void SetState(WindowState /*state*/) override {}
  bool Unload() override { return true; }
  void PlacePage(Form& /*page*/) override {}
  void OpenPage(const QString& /*name*/) override {}
  [[nodiscard]] bool TimerEnabled() const override { return false; }
  void AllowDatabaseCare(bool /*allowed*/) override {}
  void SetTimerEnabled(bool /*enabled*/) override {}
};

int ErrorOfCurrent()
{
  try {
    static_cast<void>(Frame::Current());
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

}

TEST(Frame, IsReachedWhileItIsThere)
{
  EXPECT_FALSE(Frame::Exists());
  {
    StandInFrame frame;
    EXPECT_TRUE(Frame::Exists());
    EXPECT_EQ(&Frame::Current(), &frame);
  }
  EXPECT_FALSE(Frame::Exists());
}

TEST(Frame, AskingForItWhenThereIsNoneFails)
{
  EXPECT_EQ(ErrorOfCurrent(), ErrorNumber::kObjectUnloaded);
  {
    const StandInFrame frame;
    EXPECT_EQ(ErrorOfCurrent(), 0);
  }
  EXPECT_EQ(ErrorOfCurrent(), ErrorNumber::kObjectUnloaded);
}
