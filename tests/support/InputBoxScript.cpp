// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/InputBoxScript.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

void Press(QInputDialog& box, QDialogButtonBox::StandardButton which)
{
  const auto* buttons = box.findChild<QDialogButtonBox*>();
  QPushButton* button = buttons == nullptr ? nullptr : buttons->button(which);
  if (button == nullptr) {
    ADD_FAILURE() << "the box has no such button";
    box.done(QDialog::Rejected);
    return;
  }
  button->click();
}

}

InputBoxScript::InputBoxScript()
{
  qApp->installEventFilter(this);
}

InputBoxScript::~InputBoxScript()
{
  qApp->removeEventFilter(this);
  for (std::size_t i = came_; i < expected_.size(); ++i) {
    ADD_FAILURE() << "a box did not come: " << expected_[i].prompt.toStdString();
  }
}

void InputBoxScript::Expect(const QString& prompt, const QString& title, const std::optional<QString>& answer)
{
  expected_.push_back({prompt, title, answer});
}

bool InputBoxScript::eventFilter(QObject* watched, QEvent* event)
{
  auto* box = qobject_cast<QInputDialog*>(watched);
  if (box != nullptr && event->type() == QEvent::Show) {
    QTimer::singleShot(0, box, [this, box] { Answer(*box); });
  }
  return false;
}

void InputBoxScript::Answer(QInputDialog& box)
{
  if (came_ >= expected_.size()) {
    ADD_FAILURE() << "an unexpected box: " << box.labelText().toStdString();
    box.done(QDialog::Rejected);
    return;
  }
  const Box& expected = expected_[came_++];
  EXPECT_EQ(box.windowTitle().toStdString(), expected.title.toStdString());
  EXPECT_EQ(box.labelText().toStdString(), expected.prompt.toStdString());
  EXPECT_EQ(box.textValue().toStdString(), std::string());
  if (!expected.answer) {
    Press(box, QDialogButtonBox::Cancel);
    return;
  }
  auto* line = box.findChild<QLineEdit*>();
  if (line == nullptr) {
    ADD_FAILURE() << "the box has no line to write in";
    box.done(QDialog::Rejected);
    return;
  }
  line->setText(*expected.answer);
  Press(box, QDialogButtonBox::Ok);
}
