// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/SavePicture.h"

#include "platform/Files.h"
#include "platform/RuntimeError.h"

#include <QSaveFile>

void SavePicture(const QImage& picture, const QString& path)
{
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly) || !picture.save(&file, "BMP")) {
    RaiseError(ErrorNumber::kFileAccess);
  }
  Files::Commit(file);
}
