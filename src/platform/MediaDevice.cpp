// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/MediaDevice.h"

#include <QAudioDevice>
#include <QDateTime>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>
#include <QtEndian>

#include <map>
#include <optional>
#include <tuple>

namespace MediaDevice {
namespace {

struct Clip
{
  QSoundEffect* effect = nullptr;
  qint64 milliseconds = 0;
  QElapsedTimer sincePlay;
};

std::optional<Clip> clip;

// The effects are kept for good: the toolkit's loader may wait for ever for itself when
// a sound goes while it is being loaded. A file that has changed is another sound, and so
// is the same file on another output, such as one that came up after the program.
QSoundEffect& EffectFor(const QString& path)
{
  static std::map<std::tuple<QString, QDateTime, QByteArray>, QSoundEffect*> effects;
  const QAudioDevice output = QMediaDevices::defaultAudioOutput();
  QSoundEffect*& effect = effects[{path, QFileInfo(path).lastModified(), output.id()}];
  if (effect == nullptr) {
    effect = new QSoundEffect(output);
    effect->setSource(QUrl::fromLocalFile(path));
  }
  return *effect;
}

// How long a .wav file plays; 0 if it is none.
qint64 ClipLength(const QString& path)
{
  constexpr qsizetype kHeaderSize = 44;
  constexpr qsizetype kByteRateAt = 28;
  QFile file(path);
  // A pipe in its place would be waited for.
  if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
    return 0;
  }
  const QByteArray header = file.read(kHeaderSize);
  if (header.size() < kHeaderSize || !header.startsWith("RIFF") || header.mid(8, 4) != "WAVE") {
    return 0;
  }
  const auto bytesPerSecond = qFromLittleEndian<quint32>(header.constData() + kByteRateAt);
  return bytesPerSecond == 0 ? 0 : (file.size() - kHeaderSize) * 1000 / bytesPerSecond;
}

// A server that has gone never says that a clip has ended; its time does.
bool HasRunItsTime()
{
  constexpr qint64 kPatience = 2000;
  const qint64 patience = QMediaDevices::defaultAudioOutput().isNull() ? 0 : kPatience;
  return clip->sincePlay.elapsed() > clip->milliseconds + patience;
}

}

void Open(const QString& path)
{
  if (clip && clip->effect->status() == QSoundEffect::Error) {
    clip.reset();
  }
  const qint64 length = clip ? 0 : ClipLength(path);
  if (length > 0) {
    clip = Clip{&EffectFor(path), length, {}};
  }
}

void Play()
{
  if (clip) {
    clip->effect->stop();
    clip->effect->play();
    clip->sincePlay.start();
  }
}

QString Mode()
{
  if (!clip || clip->effect->status() == QSoundEffect::Error) {
    return {};
  }
  const bool playing = clip->sincePlay.isValid() && clip->effect->isPlaying() && !HasRunItsTime();
  return playing ? QStringLiteral("playing") : QStringLiteral("stopped");
}

void Close()
{
  if (clip) {
    clip->effect->stop();
    clip.reset();
  }
}

}
