// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LoadPicture.h"

#include "platform/RuntimeError.h"

#include <QFileInfo>
#include <QImageReader>

namespace {

// In megabytes. The photographs of today's largest cameras fit in.
constexpr int kMemoryLimit = 512;
constexpr QSize kLargest(4096, 4096);

// What reads a picture at a smaller size need not hold all of it.
void LimitSize(QImageReader& reader)
{
  const QSize size = reader.size();
  if (size.width() > kLargest.width() || size.height() > kLargest.height()) {
    reader.setScaledSize(size.scaled(kLargest, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
  }
}

QPixmap Read(const QString& path, bool byContent)
{
  QImageReader reader(path);
  reader.setDecideFormatFromContent(byContent);
  reader.setAutoTransform(true);
  LimitSize(reader);
  return QPixmap::fromImageReader(&reader);
}

// By its name first: only the reader of that kind is loaded then.
QPixmap Read(const QString& path)
{
  const QPixmap picture = Read(path, false);
  return picture.isNull() ? Read(path, true) : picture;
}

}

QPixmap LoadPicture(const QString& path)
{
  if (!QFileInfo::exists(path)) {
    RaiseError(ErrorNumber::kFileNotFound);
  }
  if (!QFileInfo(path).isFile()) {
    RaiseError(ErrorNumber::kInvalidPicture);
  }
  QImageReader::setAllocationLimit(kMemoryLimit);
  QPixmap picture = Read(path);
  if (picture.isNull()) {
    RaiseError(ErrorNumber::kInvalidPicture);
  }
  picture.setDevicePixelRatio(1);  // also of a file whose name ends in "@2x"
  return picture;
}

QPixmap LoadPicture()
{
  return {};
}
