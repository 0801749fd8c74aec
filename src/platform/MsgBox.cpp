// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/MsgBox.h"

#include "platform/BoxOwner.h"
#include "platform/Command.h"
#include "platform/WindowIcon.h"

#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>

namespace {

QMessageBox::StandardButtons Shown(MsgBoxButtons buttons)
{
  switch (buttons) {
    case MsgBoxButtons::kOkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case MsgBoxButtons::kYesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case MsgBoxButtons::kOk:
      break;
  }
  return QMessageBox::Ok;
}

QMessageBox::StandardButton OnEscape(MsgBoxButtons buttons)
{
  switch (buttons) {
    case MsgBoxButtons::kOkCancel:
      return QMessageBox::Cancel;
    case MsgBoxButtons::kYesNo:
      return QMessageBox::No;
    case MsgBoxButtons::kOk:
      break;
  }
  return QMessageBox::Ok;
}

MsgBoxAnswer Answer(int button)
{
  switch (button) {
    case QMessageBox::Cancel:
      return MsgBoxAnswer::kCancel;
    case QMessageBox::Yes:
      return MsgBoxAnswer::kYes;
    case QMessageBox::No:
      return MsgBoxAnswer::kNo;
    default:
      return MsgBoxAnswer::kOk;
  }
}

// A key that is still held from the command that asks is no answer.
class HeldKeys : public QObject
{
public:
  explicit HeldKeys(QMessageBox& box)
  {
    box.installEventFilter(this);
    for (QAbstractButton* button : box.buttons()) {
      button->installEventFilter(this);
    }
  }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override
  {
    return event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->isAutoRepeat();
  }
};

}

MsgBoxAnswer MsgBox(const QString& text, MsgBoxButtons buttons, const QString& title)
{
  const Command::Pause pause;
  QMessageBox box(BoxOwner());
  box.setWindowTitle(title);
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
  box.setIcon(buttons == MsgBoxButtons::kOk ? QMessageBox::Information : QMessageBox::Question);
  box.setWindowIcon(WindowIcon());
  box.setStandardButtons(Shown(buttons));
  box.setEscapeButton(OnEscape(buttons));
  const HeldKeys held(box);
  return Answer(box.exec());
}
