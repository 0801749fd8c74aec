// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "lookup/NameList.h"
#include "lookup/PeoplePrinting.h"
#include "lookup/PersonResults.h"
#include "lookup/ResultTitles.h"
#include "people/PagePicture.h"

#include <QTimer>

#include <memory>

class QCheckBox;
class QRadioButton;

namespace Ui {
class frmQuillmark;
}

// The page on which people are looked up.
class frmQuillmark : public Form
{
  Q_OBJECT

public:
  frmQuillmark();
  ~frmQuillmark() override;

protected:
  void Form_Load() override;
  void Form_Unload() override;
  void Form_Resize() override;

private Q_SLOTS:
  void lblOptions_Click(int index);
  void lblNames_Click(int index);
  void lblAll_Click(int index);
  void lstNames_Click();
  void chkInfo_Click();
  void chkPersonal_Click();
  void chkNotes_Click();
  void optData_Click(int index);
  void tmrTimer_Timer();

private:
  void ConnectControls();

  // The list.
  void DAOPeople();
  void ResetSelection();
  void ShowNobody();
  void SetSelected(int personID);

  // The boxes.
  void ShowPerson();
  void FindWanted();
  void FindContact();
  void FindSpecial();
  void FindNotes();
  void TitleChange();
  [[nodiscard]] QString ValueOf(const char* column);

  // The commands.
  void OpenPanel(QWidget& panel);
  void ClosePrint();
  void WriteLetter(int index);
  void CloseLetter();
  void Clip();
  void Leave(const char* page);

  std::unique_ptr<Ui::frmQuillmark> ui_;
  ControlArray<Label> lblOptions_;
  ControlArray<Label> lblNames_;
  ControlArray<Label> lblAll_;
  ControlArray<QRadioButton> optData_;
  QTimer tmrTimer_{this};
  PersonResults results_;
  ResultTitles titles_;
  NameList names_;
  PeoplePrinting printing_;
  PagePicture picture_;
  int selectedID_ = 0;
  int lastOrder_ = 0;
  int ticks_ = 0;
};
