// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "calendar/CalendarEvents.h"
#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/ListBox.h"

#include <QStringList>

#include <memory>

namespace Ui {
class frmReminders;
}

// The wall calendar: a month as a grid of days with their events.
class frmReminders : public Form
{
  Q_OBJECT

public:
  frmReminders();
  ~frmReminders() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

protected:
  void Form_Load() override;
  void Form_Unload() override;
  void Form_Resize() override;
  void keyPressEvent(QKeyEvent* event) override;

private Q_SLOTS:
  void lblOptions_Click(int index);
  void lblDay_Click(int index);
  void lstReminders_Click(int index);
  void lblMonth_Click();
  void lblYear_Click();
  void lstMonth_Click();
  void lstYear_Click();

private:
  void ConnectControls();

  // The month on show.
  void Forward();
  void Back();
  void Step(int months);
  void DrawMonth();
  void HideDays();
  void WorkOutMonth();
  void ConvertMonth();
  void ShowCaptions();
  void Calendar(int days, int firstWeekday);
  void DrawCell(int cell, int days, int firstWeekday);
  void ShowEvents(const std::vector<CalendarEvent>& events);
  void SelectInLists();
  [[nodiscard]] QDate DateOfDay(int index) const;

  // What stands above the grid.
  void ShowDetails(const CalendarEvent& event, const ListBox& cell);
  void HideLists();
  void HideAbove();
  void ForgetChoices(int except);
  void WalkDays(int key);
  void ResizeReminders();
  void PlaceBottomRule();

  std::unique_ptr<Ui::frmReminders> ui_;
  ControlArray<Label> lblOptions_;
  ControlArray<Label> lblDay_;
  ControlArray<ListBox> lstReminders_;
  QStringList listTags_;
};
