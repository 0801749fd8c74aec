// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/PictureBox.h"
#include "reminders/ReminderRule.h"

#include <memory>

namespace Ui {
class frmTextNotice;
}

// The notices window: one line for each kind of occasion that is coming up, and who or
// what it is when a line is clicked. NoticesWindow sets it up and shows it.
class frmTextNotice : public Form
{
  Q_OBJECT

public:
  frmTextNotice();
  ~frmTextNotice() override;

  void SetLines(const std::vector<ReminderKind>& kinds);
  void SetFirstCommand(const QString& caption, const QString& tip);
  void ShowFurtherCommands(bool visible);

  // A message in place of the lines.
  void ShowMessage(const QString& message);

  // In the middle of the screen's width, a quarter down its height.
  void Centre();

protected:
  void Form_Load() override;
  void Form_Unload() override;
  void Form_CloseBox() override;

private Q_SLOTS:
  void lstNotices_Click();
  void lblOptions_Click(int index);

private:
  void ConnectControls();
  void ShowDetails(ReminderKind kind);
  void BringFrameBack();

  std::unique_ptr<Ui::frmTextNotice> ui_;
  ControlArray<Label> lblOptions_;
  ControlArray<PictureBox> imgNote_;
};
