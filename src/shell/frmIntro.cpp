// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/frmIntro.h"

#include "controls/Forms.h"
#include "controls/Frame.h"
#include "looks/modMouseMove.h"
#include "looks/modResize.h"
#include "looks/modThemes.h"
#include "looks/modToolTips.h"
#include "reminders/modTextNotices.h"
#include "ui_frmIntro.h"

namespace {

constexpr int kTimerMilliseconds = 100;
constexpr std::array<const char*, 4> kPages = {"frmQuillmark", "frmSpecial", "frmCharts", "frmReminders"};
constexpr int kExit = 4;
constexpr int kCheck = 5;

}

frmIntro::frmIntro()
    : Form(QStringLiteral("frmIntro"), Kind::kPage), ui_(std::make_unique<Ui::frmIntro>()), tmrTimer_(this)
{
  ui_->setupUi(this);
  tmrTimer_.setObjectName(QStringLiteral("tmrTimer"));
  tmrTimer_.setInterval(kTimerMilliseconds);
  lblOptions_.Collect(*this, QStringLiteral("lblOptions"));
  shpOne_.Collect(*this, QStringLiteral("shpOne"));
  ConnectControls();
}

frmIntro::~frmIntro() = default;

void frmIntro::ConnectControls()
{
  connect(&lblOptions_, &ControlArraySignals::Click, this, &frmIntro::lblOptions_Click);
  connect(&tmrTimer_, &QTimer::timeout, this, &frmIntro::tmrTimer_Timer);
}

void frmIntro::Form_Load()
{
  modResize::InitControlsToResize(*this);
  modToolTips::SetTips(*this);
  modThemes::ApplyTheme();
  modMouseMove::Watch(*this);
  tmrTimer_.start();
}

void frmIntro::Form_Resize()
{
  modResize::ResizeWithFrame(*this);
}

void frmIntro::lblOptions_Click(int index)
{
  if (index == kExit) {
    Frame::Current().Unload();
  } else if (index == kCheck) {
    modTextNotices::ClipIndex = 0;
    modTextNotices::CheckReminders(true);
  } else {
    modMouseMove::ResetAll(*this);
    Frame::Current().OpenPage(QLatin1String(kPages[static_cast<std::size_t>(index)]));
  }
}

// The circles come up one by one, the first after four ticks. Minimised, time stands still.
void frmIntro::tmrTimer_Timer()
{
  if (Frame::Current().State() == WindowState::kMinimised) {
    return;
  }
  ++ticks_;
  if (ticks_ > shpOne_.UBound()) {
    tmrTimer_.stop();
  } else if (ticks_ >= shpOne_.LBound()) {
    shpOne_[ticks_].show();
  }
}
