// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/TypingLimit.h"

#include "controls/ComboBox.h"
#include "controls/TextBox.h"
#include "platform/Characters.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

namespace {

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

}

TypingLimit::TypingLimit(int longest, QObject* parent) : QObject(parent), longest_(longest) {}

void TypingLimit::Watch(QObject& receiver, const EntryBox& box)
{
  boxes_.insert(&receiver, &box);
  receiver.installEventFilter(this);
}

void TypingLimit::Join(TextBox& box)
{
  Watch(box, box);
}

// The keys go to the box, an input method may go to the line in it.
void TypingLimit::Join(ComboBox& box)
{
  Watch(box, box);
  Watch(*box.lineEdit(), box);
}

bool TypingLimit::eventFilter(QObject* watched, QEvent* event)
{
  return Types(*event) && Characters::LengthOf(boxes_.value(watched)->Text()) >= longest_;
}
