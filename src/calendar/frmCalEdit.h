// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "calendar/CalendarEvents.h"
#include "calendar/EventRecords.h"
#include "controls/ControlArray.h"
#include "controls/EnterWalk.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/TypingLimit.h"

#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class ListBox;

namespace Ui {
class frmCalEdit;
}

// The event editor: adds, deletes and changes the events of the day that was chosen on the
// calendar, and redraws that day's cell behind it.
class frmCalEdit : public Form
{
  Q_OBJECT

public:
  frmCalEdit();
  ~frmCalEdit() override;

protected:
  void Form_Load() override;
  void keyPressEvent(QKeyEvent* event) override;

private Q_SLOTS:
  void lblOptions_Click(int index);
  void lblData_Click(int index);
  void lstChanges_Click();
  void tmrTimer_Timer();
  void FinishByKey();

private:
  void ConnectControls();
  void ConnectKeys();
  void StandOverCalendar();

  // The panels.
  void OpenAdd();
  void OpenDelete();
  void OpenEdit();
  void ShowEdit(const std::vector<CalendarEvent>& events);
  void OpenPanel(QWidget& panel, const QString& heading);
  void ClosePanel(QWidget& panel);
  void ClearChanges();

  // The commands.
  void AddEvent();
  void DeleteEvent();
  void ApplyChanges();
  void ShowDone(Label& done);

  // Writes, and gives the events of the day as they are then; nothing if that failed, in
  // which case nothing is written and the user has been told.
  using Work = std::function<void(Database&)>;
  std::optional<std::vector<CalendarEvent>> Write(const Work& work);

  std::unique_ptr<Ui::frmCalEdit> ui_;
  ControlArray<Label> lblOptions_;
  ControlArray<Label> lblData_;
  TypingLimit titleLimit_;
  EnterWalk enterWalk_;
  QTimer tmrTimer_;
  int ticks_ = 0;
};
