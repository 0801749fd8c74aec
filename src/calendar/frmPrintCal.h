// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "calendar/CalendarPrinting.h"
#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Label.h"

#include <memory>

namespace Ui {
class frmPrintCal;
}

// The dialog that prints the month of the open calendar page.
class frmPrintCal : public Form
{
  Q_OBJECT

public:
  frmPrintCal();
  ~frmPrintCal() override;

protected:
  void Form_Load() override;
  void keyPressEvent(QKeyEvent* event) override;

private Q_SLOTS:
  void lblOptions_Click(int index);

private:
  void Print();
  void PrintMonth(const Form& calendar, CalendarPrinting::Format format);

  std::unique_ptr<Ui::frmPrintCal> ui_;
  ControlArray<Label> lblOptions_;
};
