// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Caretaker.h"

#include "controls/Form.h"
#include "controls/Forms.h"

#include <QApplication>
#include <QDialog>
#include <QMessageBox>

Caretaker::Caretaker(Apart::Say say) : say_(std::move(say))
{
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { LookAround(); });
  timer_.start(2);
}

// The notices stand above all windows without being modal.
void Caretaker::LookAround()
{
  if (QWidget* modal = QApplication::activeModalWidget()) {
    Leave(*modal);
  } else if (Form* notices = Forms::Loaded(QStringLiteral("frmTextNotice"));
             notices != nullptr && notices->isVisible()) {
    Leave(*notices);
  }
}

void Caretaker::Leave(QWidget& window)
{
  if (auto* box = qobject_cast<QMessageBox*>(&window)) {
    say_(QStringLiteral("box: ") + box->text());
    box->reject();
  } else if (auto* dialog = qobject_cast<QDialog*>(&window)) {
    dialog->reject();
  } else {
    window.close();
  }
}
