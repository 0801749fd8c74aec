// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "platform/MsgBox.h"
#include "reminders/NoticePanel.h"

#include <QCheckBox>
#include <QTimer>

#include <array>
#include <memory>

namespace Ui {
class frmNotice;
}

// The settings of the reminders, each written as soon as it is changed, with the clips to
// listen to. It cannot be closed with a kind that is only half set, or is on while no
// method is chosen, unless all kinds are switched off.
class frmNotice : public Form
{
  Q_OBJECT

public:
  frmNotice();
  ~frmNotice() override;

  // What the answer to a message of the closing does: Cancel switches all kinds off.
  void CloseWarnings(MsgBoxAnswer answer);

protected:
  void Form_Load() override;
  void Form_QueryUnload(bool& cancel) override;

private Q_SLOTS:
  void chkTextAudio_Click(int index);
  void chkReminderOnStart_Click(bool ticked);
  void lblOptions_Click(int index);
  void tmrTimerPreview_Timer();

private:
  void ConnectControls();
  void Preview(ReminderKind kind);

  std::unique_ptr<Ui::frmNotice> ui_;
  ControlArray<Label> lblOptions_;
  ControlArray<QCheckBox> chkTextAudio_;
  std::array<NoticePanel, 3> panels_;
  QTimer tmrTimerPreview_;
};
