// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "anniversaries/CoupleRecords.h"
#include "controls/ControlArray.h"
#include "controls/EnterWalk.h"
#include "controls/Form.h"
#include "controls/KeyedList.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "people/RecordPicture.h"

#include <QTimer>

#include <memory>

namespace Ui {
class frmAnn;
}

// The couple editor: two people are made a couple, their wedding date and picture are
// kept, and couples are parted.
class frmAnn : public Form
{
  Q_OBJECT

public:
  frmAnn();
  ~frmAnn() override;

protected:
  void Form_Load() override;
  void Form_Unload() override;
  void Form_Resize() override;

private Q_SLOTS:
  void lblOptions_Click(int index);
  void lstPartner1_Click();
  void lstPartner2_Click();
  void cmdAddPic_Click();
  void cmdDeletePic_Click();
  void tmrTimer_Timer();

private:
  void ConnectControls();
  void ShowHandOverLists();
  void BuildLists();
  void SelectCouple();
  void LeaveFor(const char* page);

  // Commands.
  void UpdateCouple();
  void DeleteCouple();
  void CancelEntry();

  [[nodiscard]] QString RefuseEntry() const;
  void RefreshCouples();
  void ShowDone();

  void ShowPartner(CoupleRecords::Spouse spouse);
  [[nodiscard]] PartialDate Wedding() const;
  void SetWedding(const PartialDate& wedding);
  void ClearEntry();
  void EnablePictureCommands(bool enabled);

  std::unique_ptr<Ui::frmAnn> ui_;
  ControlArray<Label> lblOptions_;
  EnterWalk enterWalk_;
  RecordPicture picture_;
  KeyedList<ListBox> wives_;
  KeyedList<ListBox> husbands_;
  KeyedList<ListBox> couples_;
  QTimer tmrTimer_;
  int ticks_ = 0;
  std::unique_ptr<CoupleRecords> records_;
};
