// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/MsgBox.h"

#include "platform/App.h"
#include "platform/Command.h"

#include <QApplication>
#include <QMessageBox>

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

}

MsgBoxAnswer MsgBox(const QString& text, MsgBoxButtons buttons, const QString& title)
{
  const Command::Pause pause;
  QMessageBox box(QApplication::activeWindow());
  box.setWindowTitle(title);
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
  box.setIcon(buttons == MsgBoxButtons::kOk ? QMessageBox::Information : QMessageBox::Question);
  box.setWindowIcon(QIcon(App::File(QStringLiteral("/animp.ico"))));
  box.setStandardButtons(Shown(buttons));
  box.setEscapeButton(OnEscape(buttons));
  return Answer(box.exec());
}
