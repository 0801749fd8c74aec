// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/MessageBoxScript.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QTimer>

#include <gtest/gtest.h>

MessageBoxScript::MessageBoxScript()
{
  qApp->installEventFilter(this);
}

MessageBoxScript::~MessageBoxScript()
{
  qApp->removeEventFilter(this);
  for (std::size_t i = came_; i < expected_.size(); ++i) {
    ADD_FAILURE() << "a message box did not come: " << expected_[i].text.toStdString();
  }
}

void MessageBoxScript::Expect(const QString& text, QMessageBox::StandardButtons buttons,
                              QMessageBox::StandardButton answer, const QString& title)
{
  expected_.push_back({title, text, buttons, answer});
}

bool MessageBoxScript::eventFilter(QObject* watched, QEvent* event)
{
  auto* box = qobject_cast<QMessageBox*>(watched);
  if (box != nullptr && event->type() == QEvent::Show) {
    QTimer::singleShot(0, box, [this, box] { Answer(*box); });
  }
  return false;
}

void MessageBoxScript::Answer(QMessageBox& box)
{
  if (came_ >= expected_.size()) {
    ADD_FAILURE() << "an unexpected message box: " << box.text().toStdString();
    box.done(0);
    return;
  }
  const Box& expected = expected_[came_++];
  EXPECT_EQ(box.windowTitle().toStdString(), expected.title.toStdString());
  EXPECT_EQ(box.text().toStdString(), expected.text.toStdString());
  EXPECT_EQ(box.standardButtons(), expected.buttons);
  QAbstractButton* button = box.button(expected.answer);
  if (button == nullptr) {
    ADD_FAILURE() << "the box has no such button";
    box.done(0);
    return;
  }
  button->click();
}
