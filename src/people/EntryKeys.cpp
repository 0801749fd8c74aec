// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "people/EntryKeys.h"

#include "controls/Form.h"
#include "controls/MultiLineTextBox.h"
#include "controls/TextBox.h"
#include "people/EntryRules.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace {

constexpr std::array<const char*, 8> kLimited = {"txtFirst", "txtLast", "txtStreet",  "txtSecondAddress",
                                                 "txtCity",  "txtProv", "txtCountry", "txtPostal"};
constexpr std::array<const char*, 4> kUnlimited = {"txtPhone", "txtMobile", "txtBus", "txtEmail"};
constexpr auto kPostal = "txtPostal";

bool IsForward(int key)
{
  return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Down;
}

}

EntryKeys::EntryKeys(Form& form) : QObject(&form), form_(form), limit_(EntryRules::kMaxLength)
{
  const auto box = [&](const char* name) { return static_cast<TextBox*>(form.Control(QLatin1String(name))); };
  const auto watch = [&](const char* name) { box(name)->installEventFilter(this); };
  std::for_each(kLimited.begin(), kLimited.end(), watch);
  std::for_each(kUnlimited.begin(), kUnlimited.end(), watch);
  std::for_each(kLimited.begin(), kLimited.end(), [&](const char* name) { limit_.Join(*box(name)); });
}

bool EntryKeys::eventFilter(QObject* watched, QEvent* event)
{
  if (event->type() != QEvent::KeyPress) {
    return false;
  }
  const auto& box = static_cast<TextBox&>(*watched);
  const auto& key = static_cast<const QKeyEvent&>(*event);
  currentTabIndex_ = box.TabIndex();
  return box.objectName() == QLatin1String(kPostal) ? WalkFromPostal(key) : Walk(key);
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
