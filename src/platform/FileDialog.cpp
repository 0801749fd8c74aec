// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FileDialog.h"

#include "platform/BoxOwner.h"
#include "platform/Command.h"
#include "platform/RuntimeError.h"
#include "platform/WindowIcon.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QIcon>
#include <QStandardPaths>

namespace {

QString Ask(QFileDialog& dialog, QString& folder)
{
  const Command::Pause pause;
  dialog.setWindowIcon(WindowIcon());
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
    RaiseError(ErrorNumber::kCancelled);
  }
  QString chosen = dialog.selectedFiles().constFirst();
  folder = QFileInfo(chosen).absolutePath();
  return chosen;
}

}

QString ShowOpen()
{
  static QString folder = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
  QFileDialog dialog(BoxOwner());
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setDirectory(folder);
  return Ask(dialog, folder);
}

QString ShowSave(const QString& fileName, const QString& extension)
{
  static QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  QFileDialog dialog(BoxOwner());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(extension);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.setDirectory(folder);
  dialog.selectFile(fileName);
  return Ask(dialog, folder);
}
