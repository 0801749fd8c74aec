// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/ControlArray.h"
#include "reminders/NoticeSettings.h"

#include <QRadioButton>

class ComboBox;
class Label;
class QCheckBox;
class QWidget;

// The panel of one kind on the settings page: the rule, its number of days, the box that
// cancels, and what is set now. What the user changes is written at once.
class NoticePanel : public QObject
{
  Q_OBJECT

public:
  struct Controls
  {
    QString options;  // name of their array
    ComboBox* days;
    QCheckBox* cancel;
    Label* status;
    Label* method;
  };

  NoticePanel(ReminderKind kind, const QWidget& page, const Controls& controls);

  // Shows the settings.
  void Load(Recordset& options);

  // Says how reminders are given now, if the kind is on.
  void TellMethod();

  // What keeps the page from being closed; nothing if the panel is in order.
  [[nodiscard]] std::optional<QString> ClosingMessage() const;

  // Switches the kind off and empties the panel.
  void Reset();

private Q_SLOTS:
  void days_Click();
  void days_KeyDown(int key);
  void options_Click(int index);
  void cancel_Click(bool ticked);

private:
  void SaveRule(DayRule rule);
  void SwitchOff();
  void SetMethod(const NoticeSettings::Methods& methods);
  void Select(DayRule rule);
  [[nodiscard]] bool IsChosen(DayRule rule) const;
  void DeselectOptions();

  ReminderKind kind_;
  Controls controls_;
  ControlArray<QRadioButton> options_;
};
