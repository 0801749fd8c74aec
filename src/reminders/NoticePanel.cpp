// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/NoticePanel.h"

#include "controls/Choices.h"
#include "controls/ComboBox.h"
#include "controls/Label.h"
#include "store/Recordset.h"

#include <QCheckBox>

namespace {

constexpr int kMostDays = 30;

QStringList Numbers()
{
  QStringList numbers;
  for (int days = 0; days <= kMostDays; ++days) {
    numbers.append(QString::number(days));
  }
  return numbers;
}

int IndexOf(DayRule rule)
{
  return static_cast<int>(rule);
}

}

NoticePanel::NoticePanel(ReminderKind kind, const QWidget& page, const Controls& controls)
    : kind_(kind), controls_(controls)
{
  options_.Collect(page, controls.options);
  connect(controls.days, &ComboBox::Click, this, &NoticePanel::days_Click);
  connect(controls.days, &ComboBox::KeyDown, this, &NoticePanel::days_KeyDown);
  connect(&options_, &ControlArraySignals::Click, this, &NoticePanel::options_Click);
  connect(controls.cancel, &QCheckBox::clicked, this, &NoticePanel::cancel_Click);
}

void NoticePanel::Load(Recordset& options)
{
  const ReminderRule rule = ReadRule(options, kind_);
  const QString length = rule.length ? QString::number(*rule.length) : QString();
  controls_.days->AddItems(Numbers());
  if (rule.once) {
    Select(DayRule::kOneDay);
    controls_.days->SetText(length);
  }
  if (rule.many) {
    Select(DayRule::kManyDays);
    controls_.days->SetText(length);
  }
  controls_.status->setText(StatusTexts::StatusOf(kind_, rule));
  if (rule.on) {
    SetMethod(NoticeSettings::ReadMethods(options));
  }
}

void NoticePanel::TellMethod()
{
  if (NoticeSettings::IsOn(kind_)) {
    SetMethod(NoticeSettings::ReadMethods());
  }
}

std::optional<QString> NoticePanel::ClosingMessage() const
{
  NoticeSettings::PanelState state;
  state.on = NoticeSettings::IsOn(kind_);
  state.hasMethod = NoticeSettings::ReadMethods().Any();
  state.daysShown = !controls_.days->Text().isEmpty();
  state.optionChosen = IsChosen(DayRule::kOneDay) || IsChosen(DayRule::kManyDays);
  return NoticeSettings::ClosingMessage(kind_, state);
}

void NoticePanel::Reset()
{
  SwitchOff();
  controls_.cancel->setChecked(false);
}

void NoticePanel::days_Click()
{
  controls_.cancel->setChecked(false);
  if (IsChosen(DayRule::kOneDay)) {
    SaveRule(DayRule::kOneDay);
  } else if (IsChosen(DayRule::kManyDays)) {
    SaveRule(DayRule::kManyDays);
  }
}

void NoticePanel::options_Click(int index)
{
  controls_.cancel->setChecked(false);
  SaveRule(static_cast<DayRule>(index));
}

void NoticePanel::days_KeyDown(int key)
{
  if (key != Qt::Key_Delete && key != Qt::Key_Backspace) {
    return;
  }
  controls_.days->SetText({});
  if (key == Qt::Key_Backspace || NoticeSettings::IsOn(kind_)) {
    NoticeSettings::DropDays(kind_);
  } else {
    NoticeSettings::DropUnusedDays(kind_);
  }
  controls_.status->setText(StatusTexts::NoStatus(kind_));
}

void NoticePanel::cancel_Click(bool ticked)
{
  if (ticked) {
    SwitchOff();
  }
}

// Without a number nothing is saved yet; the closing asks for it.
void NoticePanel::SaveRule(DayRule rule)
{
  const QString days = controls_.days->Text();
  if (days.isEmpty()) {
    return;
  }
  NoticeSettings::SetRule(kind_, rule, days);
  controls_.status->setText(StatusTexts::Status(kind_, rule, days));
  const NoticeSettings::Methods methods = NoticeSettings::ReadMethods();
  if (methods.Any()) {
    SetMethod(methods);
  }
}

void NoticePanel::SwitchOff()
{
  controls_.days->SetText({});
  DeselectOptions();
  NoticeSettings::Cancel(kind_);
  controls_.status->setText(StatusTexts::NoStatus(kind_));
  controls_.method->setText({});
  controls_.method->hide();
}

// The last text stays behind a line that is hidden.
void NoticePanel::SetMethod(const NoticeSettings::Methods& methods)
{
  if (methods.Any()) {
    controls_.method->setText(StatusTexts::Method(methods.text, methods.audio));
  }
  controls_.method->setVisible(methods.Any());
}

// Tab comes to the selected option, as it does once the user has clicked it.
void NoticePanel::Select(DayRule rule)
{
  options_[IndexOf(rule)].setChecked(true);
  for (const auto& [each, option] : options_.All()) {
    option->setFocusPolicy(each == IndexOf(rule) ? Qt::StrongFocus : Qt::ClickFocus);
  }
}

bool NoticePanel::IsChosen(DayRule rule) const
{
  return options_[IndexOf(rule)].isChecked();
}

void NoticePanel::DeselectOptions()
{
  Choices::Clear({&options_[IndexOf(DayRule::kOneDay)], &options_[IndexOf(DayRule::kManyDays)]});
}
