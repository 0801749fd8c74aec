// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Label.h"

#include <memory>

namespace Ui {
class frmAutoStart;
}

// The dialog that has the program started with its user's session, or not. It does not
// look at the present state; it tells what each command has done.
class frmAutoStart : public Form
{
  Q_OBJECT

public:
  frmAutoStart();
  ~frmAutoStart() override;

protected:
  void Form_Load() override;

private Q_SLOTS:
  void lblOptions_Click(int index);

private:
  void ConnectControls();
  void Start();
  void DoNotStart();
  void ShowNotice(int index);

  std::unique_ptr<Ui::frmAutoStart> ui_;
  ControlArray<Label> lblOptions_;
  ControlArray<Label> lblNotice_;
};
