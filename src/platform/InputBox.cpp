// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/InputBox.h"

#include "platform/BoxOwner.h"
#include "platform/Command.h"
#include "platform/WindowIcon.h"

#include <QIcon>
#include <QInputDialog>

QString InputBox(const QString& prompt, const QString& title)
{
  const Command::Pause pause;
  QInputDialog box(BoxOwner());
  box.setWindowTitle(title);
  box.setWindowIcon(WindowIcon());
  box.setLabelText(prompt);
  return box.exec() == QDialog::Accepted ? box.textValue() : QString();
}
