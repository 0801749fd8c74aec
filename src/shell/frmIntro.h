// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/Shape.h"

#include <QTimer>

#include <memory>

namespace Ui {
class frmIntro;
}

// The main page: the program's commands, its title and the theme's picture. It is
// hidden while another page is open, and unloaded with the frame alone.
class frmIntro : public Form
{
  Q_OBJECT

public:
  frmIntro();
  ~frmIntro() override;

protected:
  void Form_Load() override;
  void Form_Resize() override;

private Q_SLOTS:
  void lblOptions_Click(int index);
  void tmrTimer_Timer();

private:
  void ConnectControls();

  std::unique_ptr<Ui::frmIntro> ui_;
  ControlArray<Label> lblOptions_;
  ControlArray<Shape> shpOne_;
  QTimer tmrTimer_;
  int ticks_ = 0;
};
