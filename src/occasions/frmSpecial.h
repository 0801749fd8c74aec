// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "occasions/OccasionSentences.h"
#include "occasions/Occasions.h"
#include "people/PagePicture.h"
#include "store/Database.h"

#include <memory>
#include <optional>
#include <vector>

class ListBox;
class MultiLineTextBox;
class QRadioButton;
class Shape;

namespace Ui {
class frmSpecial;
}

// Birthdays and wedding anniversaries, a month at a time. The month calendar's date is
// the one source of the month and the year on show.
class frmSpecial : public Form
{
  Q_OBJECT

public:
  frmSpecial();
  ~frmSpecial() override;

protected:
  void Form_Load() override;
  void Form_Unload() override;
  void Form_Resize() override;

private Q_SLOTS:
  void lblOptions_Click(int index);
  void lblMonth_Click(int index);
  void cboYear_Click();
  void calCalendar_Change();
  void lstBirthdays_Click();
  void lstAnn_Click();
  void optData_Click(int index);

private:
  // What belongs to one of the two lists.
  struct Side
  {
    ListBox& list;
    MultiLineTextBox& info;
    MultiLineTextBox& details;
    Shape& shape;
    bool firstClick = false;  // was since the calendar last changed
    std::vector<int> keys;
  };

  void ConnectControls();

  // The month.
  void Calendar();
  void ThisMonth();
  void AnnMonth();
  void Fill(Side& side, const QStringList& lines, const QString& none, const QString& hint);
  void SelectMonth(int index);
  void LowerEmphasis();
  void SetPlainEmphasis();

  // The details.
  void ShowDetails(Side& side, const OccasionSentences::Details& details);
  [[nodiscard]] static std::optional<int> ChosenKey(const Side& side);
  void ShowUnknown(Side& side);
  void MoveCalendar(const OccasionSentences::Details& details);

  // The commands.
  void OpenPanel(QWidget& panel);
  void OpenFamous();
  void Connect();
  void Print();
  void ClosePrint();
  void CloseCalendar();
  void LeaveFor(const char* page);

  std::unique_ptr<Ui::frmSpecial> ui_;
  ControlArray<Label> lblOptions_;
  ControlArray<Label> lblMonth_;
  ControlArray<QRadioButton> optData_;
  std::optional<Database> database_;
  PagePicture picture_;
  Side birthdays_;
  Side anniversaries_;
  QString month_;
  QString lastBirthdayMonth_;
  QString lastAnnMonth_;
  bool calendarBusy_ = false;
  bool yearBusy_ = false;
};
