// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "store/Database.h"

#include <memory>
#include <optional>

class DataControl;
class QRadioButton;

namespace Ui {
class frmCharts;
}

// One chart at a time of the people on file: by city, by province, by age, and birthdays
// or anniversaries by month; as bars or as circles.
class frmCharts : public Form
{
  Q_OBJECT

public:
  frmCharts();
  ~frmCharts() override;

protected:
  void Form_Load() override;
  void Form_Unload() override;
  void Form_Resize() override;

private Q_SLOTS:
  void lblOptions_Click(int index);
  void optChoices_Click(int index);
  void optOptions_Click(int index);

private:
  std::unique_ptr<Ui::frmCharts> ui_;
  ControlArray<Label> lblOptions_;
  ControlArray<QRadioButton> optChoices_;
  ControlArray<QRadioButton> optOptions_;
  DataControl* adoCharts_;
  std::optional<Database> database_;
  std::unique_ptr<Recordset> options_;
  bool chosen_ = false;  // a subject, since the page was opened
};
