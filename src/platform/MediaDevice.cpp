// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/MediaDevice.h"

#include <QFileInfo>
#include <QSoundEffect>
#include <QUrl>

#include <memory>

namespace MediaDevice {
namespace {

std::unique_ptr<QSoundEffect> clip;

}

void Open(const QString& path)
{
  if (clip || !QFileInfo(path).isFile()) {
    return;
  }
  clip = std::make_unique<QSoundEffect>();
  clip->setSource(QUrl::fromLocalFile(path));
}

void Play()
{
  if (clip) {
    clip->stop();
    clip->play();
  }
}

QString Mode()
{
  if (!clip || clip->status() == QSoundEffect::Error) {
    return {};
  }
  return clip->isPlaying() ? QStringLiteral("playing") : QStringLiteral("stopped");
}

void Close()
{
  if (clip) {
    clip->stop();
    clip.reset();
  }
}

}
