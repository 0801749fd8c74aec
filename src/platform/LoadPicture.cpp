// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LoadPicture.h"

#include "platform/RuntimeError.h"

#include <QFileInfo>
#include <QImageReader>

QPixmap LoadPicture(const QString& path)
{
  if (!QFileInfo::exists(path)) {
    RaiseError(ErrorNumber::kFileNotFound);
  }
  QImageReader reader(path);
  reader.setDecideFormatFromContent(true);
  QPixmap picture = QPixmap::fromImageReader(&reader);
  if (picture.isNull()) {
    RaiseError(ErrorNumber::kInvalidPicture);
  }
  return picture;
}

QPixmap LoadPicture()
{
  return {};
}
