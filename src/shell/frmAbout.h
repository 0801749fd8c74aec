// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Label.h"

#include <memory>

namespace Ui {
class frmAbout;
}

// The program's name, its makers, and where to write to. While it is open the database
// cannot be compacted.
class frmAbout : public Form
{
  Q_OBJECT

public:
  frmAbout();
  ~frmAbout() override;

protected:
  void Form_Load() override;
  void Form_Unload() override;

private Q_SLOTS:
  void lblOptions_Click(int index);

private:
  std::unique_ptr<Ui::frmAbout> ui_;
  ControlArray<Label> lblOptions_;
};
