// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/EnterWalk.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QWidget>

void EnterWalk::Join(QWidget& from, QWidget& to)
{
  next_.insert(&from, &to);
  from.installEventFilter(this);
}

bool EnterWalk::eventFilter(QObject* watched, QEvent* event)
{
  if (event->type() != QEvent::KeyPress) {
    return false;
  }
  const auto* key = static_cast<QKeyEvent*>(event);
  const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
  if (!isEnter || key->modifiers().testFlag(Qt::ControlModifier)) {
    return false;
  }
  QWidget* next = next_.value(watched);
  // As by Tab, which selects a text that is to be typed anew.
  next->setFocus(qobject_cast<QLineEdit*>(next) == nullptr ? Qt::OtherFocusReason : Qt::TabFocusReason);
  return true;
}
