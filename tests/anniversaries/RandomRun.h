// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "CouplesModel.h"
#include "RecordHands.h"

#include <random>

// A user who goes on at random with the record editor and the couple editor, and the
// model that tells what must come of it.
class RandomRun : public AnniversariesTest
{
protected:
  // One step on whichever page is open, or to another one.
  void Step();

  // The database holds what the model says, and the page shows what was chosen on it.
  void ExpectAsModelled() const;

  // How often each kind of step was taken.
  std::map<std::string, int> taken;
  std::string last;
  std::mt19937 chance;

private:
  // Names a step.
  void Took(const std::string& step);
  [[nodiscard]] int Below(int end) { return static_cast<int>(chance() % static_cast<unsigned>(end)); }
  [[nodiscard]] bool OneIn(int many) { return Below(many) == 0; }
  [[nodiscard]] int OneOf(const std::vector<int>& keys)
  {
    return keys[static_cast<std::size_t>(Below(static_cast<int>(keys.size())))];
  }
  [[nodiscard]] Day SomeDay();
  [[nodiscard]] CouplesModel::Person SomeName(CouplesModel::Person person);

  // From page to page.
  void ChangePage();
  void LeaveRecordEditor();
  void LeaveCoupleEditor();
  void OpenEither();
  void CoupleEditorHasOpened(int wife, int husband);

  // On the record editor.
  void StepOnRecordEditor();
  [[nodiscard]] int ShownPerson() const;
  void AddSomebody();
  void ChangeShown();
  void DeleteShown();
  void Browse();

  // On the couple editor.
  void StepOnCoupleEditor();
  void ChooseWife(int person);
  void ChooseHusband(int person);
  void ChooseSomebody();
  void EnterDay();
  void UpdateChosen();
  void UpdateWrongDay();
  void DeleteSomeCouple();
  void CancelEntry();
  void MarryTwice();

  CouplesModel model_;
  int serial_ = 0;
  int wife_ = 0;
  int husband_ = 0;
  Day day_;
};
