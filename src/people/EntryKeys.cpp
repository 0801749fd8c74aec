// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "people/EntryKeys.h"

#include "controls/Form.h"
#include "controls/MultiLineTextBox.h"
#include "controls/TextBox.h"
#include "people/EntryRules.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace {

constexpr std::array<const char*, 8> kLimited = {"txtFirst", "txtLast", "txtStreet",  "txtSecondAddress",
                                                 "txtCity",  "txtProv", "txtCountry", "txtPostal"};
constexpr std::array<const char*, 4> kUnlimited = {"txtPhone", "txtMobile", "txtBus", "txtEmail"};
constexpr auto kPostal = "txtPostal";

bool IsLimited(const QObject& box)
{
  return std::any_of(kLimited.begin(), kLimited.end(),
                     [&](const char* name) { return box.objectName() == QLatin1String(name); });
}

bool IsForward(int key)
{
  return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Down;
}

// True for what would put a character into a box. Shortcuts do not.
bool IsCharacter(const QKeyEvent& key)
{
  const Qt::KeyboardModifiers held = key.modifiers() & ~Qt::KeyboardModifiers(Qt::ShiftModifier);
  return held != Qt::ControlModifier && !key.text().isEmpty() && key.text().front().category() != QChar::Other_Control;
}

bool Types(const QEvent& event)
{
  if (event.type() == QEvent::InputMethod) {
    return !static_cast<const QInputMethodEvent&>(event).commitString().isEmpty();
  }
  return event.type() == QEvent::KeyPress && IsCharacter(static_cast<const QKeyEvent&>(event));
}

bool IsFull(const TextBox& box)
{
  return EntryRules::LengthOf(box.Text()) >= EntryRules::kMaxLength;
}

}

EntryKeys::EntryKeys(Form& form) : QObject(&form), form_(form)
{
  const auto watch = [&](const char* name) { form.Control(QLatin1String(name))->installEventFilter(this); };
  std::for_each(kLimited.begin(), kLimited.end(), watch);
  std::for_each(kUnlimited.begin(), kUnlimited.end(), watch);
}

bool EntryKeys::eventFilter(QObject* watched, QEvent* event)
{
  auto& box = static_cast<TextBox&>(*watched);
  if (event->type() == QEvent::KeyPress) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    currentTabIndex_ = box.TabIndex();
    if (box.objectName() == QLatin1String(kPostal) ? WalkFromPostal(key) : Walk(key)) {
      return true;
    }
  }
  return Types(*event) && IsLimited(box) && IsFull(box);
}

bool EntryKeys::Walk(const QKeyEvent& key)
{
  if (!IsForward(key.key()) && key.key() != Qt::Key_Up) {
    return false;
  }
  Text(key.key());
  return true;
}

// The stop behind the postal code is no text box.
bool EntryKeys::WalkFromPostal(const QKeyEvent& key) const
{
  if (IsForward(key.key())) {
    form_.Control(QStringLiteral("cboBirthMonth"))->setFocus();
  } else if (key.key() == Qt::Key_Up) {
    form_.Control(QStringLiteral("txtCountry"))->setFocus(Qt::TabFocusReason);
  } else {
    return false;
  }
  return true;
}

void EntryKeys::Text(int key)
{
  if (IsForward(key)) {
    FocusBoxAt(currentTabIndex_ + 1);
  } else if (key == Qt::Key_Up) {
    FocusBoxAt(currentTabIndex_ - 1);
  }
}

// As by Tab, so that what is typed next replaces the text.
void EntryKeys::FocusBoxAt(int tabIndex) const
{
  for (QWidget* control : form_.Controls()) {
    const bool isTextBox =
        qobject_cast<TextBox*>(control) != nullptr || qobject_cast<MultiLineTextBox*>(control) != nullptr;
    if (isTextBox && control->property("TabIndex").toInt() == tabIndex) {
      control->setFocus(Qt::TabFocusReason);
    }
  }
}
