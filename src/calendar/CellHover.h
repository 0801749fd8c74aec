// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/ControlArray.h"
#include "controls/Label.h"
#include "controls/ListBox.h"

class Form;

// What the calendar shows under the mouse: the day's list is lit, a mark stands before the
// line, and a line that is cut off is told whole by a tip, where there are tips.
class CellHover : public QObject
{
public:
  // Lives with the form.
  CellHover(Form& form, const ControlArray<ListBox>& lists, const ControlArray<Label>& days, QWidget& mark);

  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void MoveOver(ListBox& list, const QPoint& point);
  void Leave();
  static bool ShowTip(const ListBox& list, const QPoint& point, const QPoint& onScreen);

  Form& form_;
  QWidget& mark_;
};
