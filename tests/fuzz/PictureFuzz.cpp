// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The file of a picture: refused as none, or shown in a box that it does not leave.

#include "FuzzApplication.h"
#include "FuzzTarget.h"
#include "controls/Image.h"
#include "people/modImages.h"
#include "platform/LoadPicture.h"
#include "platform/RuntimeError.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

namespace {

QString FileHolding(const QByteArray& contents)
{
  static const QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("1.bmp")));
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(contents) != contents.size()) {
    std::abort();
  }
  return file.fileName();
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  static const QApplication& application = FuzzApplication();
  static_cast<void>(application);
  QWidget box;
  box.resize(300, 200);
  Image image(&box);
  try {
    image.SetPicture(LoadPicture(FileHolding(InputFrom(data, size))));
  } catch (const RuntimeError& error) {
    return error.Number() == ErrorNumber::kInvalidPicture ? 0 : (std::abort(), 1);
  }
  modImages::FitImage(image);
  if (!box.rect().contains(image.geometry())) {
    std::abort();
  }
  static_cast<void>(image.grab());
  return 0;
}
