// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LoadCursor.h"

#include "platform/LoadPicture.h"
#include "platform/RuntimeError.h"

#include <QFile>
#include <QtEndian>

QCursor LoadCursor(const QString& path)
{
  // A directory of one entry, in which the hot spot follows size and colours.
  constexpr qsizetype kHeaderSize = 22;
  constexpr qsizetype kHotSpotAt = 10;
  const QPixmap picture = LoadPicture(path);
  QFile file(path);
  const QByteArray header = file.open(QIODevice::ReadOnly) ? file.read(kHeaderSize) : QByteArray();
  if (header.size() < kHeaderSize || qFromLittleEndian<quint16>(header.constData() + 2) != 2) {
    RaiseError(ErrorNumber::kInvalidPicture);
  }
  const auto hotX = qFromLittleEndian<quint16>(header.constData() + kHotSpotAt);
  const auto hotY = qFromLittleEndian<quint16>(header.constData() + kHotSpotAt + 2);
  return QCursor(picture, hotX, hotY);
}
