// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/FileDialogScript.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

void Press(QFileDialog& dialog, QDialogButtonBox::StandardButton which)
{
  const auto* buttons = dialog.findChild<QDialogButtonBox*>();
  QPushButton* button = buttons == nullptr ? nullptr : buttons->button(which);
  if (button == nullptr) {
    ADD_FAILURE() << "the file dialog has no such button";
    dialog.reject();
    return;
  }
  EXPECT_TRUE(button->isEnabled());
  button->click();
}

void Choose(QFileDialog& dialog, const QString& path)
{
  auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  if (name == nullptr) {
    ADD_FAILURE() << "the file dialog has no box for a name";
    dialog.reject();
    return;
  }
  name->setText(path);
  const bool saves = dialog.acceptMode() == QFileDialog::AcceptSave;
  Press(dialog, saves ? QDialogButtonBox::Save : QDialogButtonBox::Open);
  if (dialog.isVisible()) {
    ADD_FAILURE() << "the file dialog does not take " << path.toStdString();
    dialog.reject();
  }
}

}

FileDialogScript::FileDialogScript()
{
  qApp->installEventFilter(this);
}

FileDialogScript::~FileDialogScript()
{
  qApp->removeEventFilter(this);
  if (came_ < expected_.size()) {
    ADD_FAILURE() << "file dialogs did not come: " << expected_.size() - came_;
  }
}

bool FileDialogScript::eventFilter(QObject* watched, QEvent* event)
{
  auto* dialog = qobject_cast<QFileDialog*>(watched);
  if (dialog != nullptr && event->type() == QEvent::Show) {
    QTimer::singleShot(0, dialog, [this, dialog] { Answer(*dialog); });
  }
  return false;
}

void FileDialogScript::Answer(QFileDialog& dialog)
{
  if (came_ >= expected_.size()) {
    ADD_FAILURE() << "an unexpected file dialog";
    dialog.reject();
    return;
  }
  if (const std::optional<QString> path = expected_[came_++]) {
    Choose(dialog, *path);
  } else {
    Press(dialog, QDialogButtonBox::Cancel);
  }
}
