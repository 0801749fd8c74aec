// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/ControlArray.h"
#include "controls/EnterWalk.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "people/AddressList.h"
#include "people/EditorMode.h"
#include "people/PersonRecords.h"
#include "people/RecordBoxes.h"
#include "people/RecordPicture.h"

#include <functional>
#include <memory>

namespace Ui {
class frmNew;
}

// The record editor: the one page on which people are added, changed and deleted. It
// browses until fraAdd or fraEdit is visible; then a person is being added or edited.
class frmNew : public Form
{
  Q_OBJECT

public:
  frmNew();
  ~frmNew() override;

protected:
  void Form_Load() override;
  void Form_Unload() override;
  void Form_Resize() override;

private Q_SLOTS:
  void lblOptions_Click(int index);
  void cmdFirst_Click();
  void cmdPrevious_Click();
  void cmdNext_Click();
  void cmdLast_Click();
  void cboStreet_Click();
  void cmdAddPic_Click();
  void cmdDeletePic_Click();
  void FinishByKey();

private:
  void ConnectControls();
  void WalkByEnter();

  // Loading.
  void ShowFirstPerson();
  void ShowSelectedPerson();
  void ShowOpened();

  // Commands.
  void AddNewName();
  void FinishAddition();
  void CancelAddition();
  void EditRecord();
  void FinishEdit();
  void CancelEdit();
  void DeleteRecord();
  void SearchForName();
  void EditAnniversary();
  void ShowHelp();
  void GoToMainPage();

  [[nodiscard]] bool ValidateEntry();
  [[nodiscard]] bool DeletePerson();
  void RefreshAddressList();

  // Showing.
  void Browse(void (Recordset::*step)());
  void ShowRow();
  // Where the row cannot be read nobody is current, so that no later Finish writes the
  // empty boxes over somebody.
  void ShowOrLeave(const std::function<void()>& show);
  void ShowPicture();
  void ShowCurrentRecord();
  void ShowCounter();

  std::unique_ptr<Ui::frmNew> ui_;
  ControlArray<Label> lblOptions_;
  EnterWalk enterWalk_;
  EditorMode mode_;
  RecordBoxes boxes_;
  RecordPicture picture_;
  AddressList addresses_;
  std::unique_ptr<PersonRecords> records_;
};
