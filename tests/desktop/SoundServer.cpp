// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "SoundServer.h"

#include <QFile>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace {

constexpr int kPatience = 20000;
constexpr qsizetype kThinning = 8;

std::vector<float> Thinned(const QByteArray& samples)
{
  const auto* values = reinterpret_cast<const qint16*>(samples.constData());
  const qsizetype count = samples.size() / 2 / kThinning;
  std::vector<float> thinned;
  for (qsizetype i = 0; i < count; ++i) {
    float sum = 0;
    for (qsizetype j = 0; j < kThinning; ++j) {
      sum += values[i * kThinning + j];
    }
    thinned.push_back(sum);
  }
  return thinned;
}

bool IsSilent(const QByteArray& samples)
{
  return std::all_of(samples.begin(), samples.end(), [](char byte) { return byte == 0; });
}

}

SoundServer::SoundServer()
{
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), directory_.path());
  environment.insert(QStringLiteral("HOME"), directory_.path());
  environment.remove(QStringLiteral("PULSE_SERVER"));
  server_.setProcessEnvironment(environment);
  server_.start("pulseaudio", {"-n", "--daemonize=no", "--exit-idle-time=-1", "--disallow-exit", "--use-pid-file=no",
                               "-L", "module-null-sink sink_name=test rate=44100", "-L",
                               "module-native-protocol-unix auth-anonymous=1 socket=" + directory_.filePath("socket")});
  const bool listens = QTest::qWaitFor([this] { return QFile::exists(directory_.filePath("socket")); }, kPatience);
  if (!listens) {
    throw std::runtime_error("the sound server does not start: " + server_.readAllStandardError().toStdString());
  }
  environment.insert(QStringLiteral("PULSE_SERVER"), Address());
  recorder_.setProcessEnvironment(environment);
  recorder_.start("parec", {"--device=test.monitor", "--format=s16le", "--rate=44100", "--channels=1", "--raw",
                            "--latency-msec=50"});
  if (!recorder_.waitForReadyRead(kPatience)) {
    throw std::runtime_error("the recorder does not start: " + recorder_.readAllStandardError().toStdString());
  }
}

SoundServer::~SoundServer()
{
  for (QProcess* process : {&recorder_, &server_}) {
    process->kill();
    process->waitForFinished(kPatience);
  }
}

QString SoundServer::Address() const
{
  return QStringLiteral("unix:") + directory_.filePath("socket");
}

bool SoundServer::AwaitSound()
{
  return QTest::qWaitFor(
      [this] {
        recorded_ += recorder_.readAllStandardOutput();
        return !IsSilent(recorded_);
      },
      kPatience);
}

bool SoundServer::AwaitSilence(int milliseconds)
{
  constexpr qsizetype kBytesPerMillisecond = 88;
  constexpr int kLongestPlay = 60000;
  const qsizetype tail = milliseconds * kBytesPerMillisecond;
  return AwaitSound() && QTest::qWaitFor(
                             [&] {
                               recorded_ += recorder_.readAllStandardOutput();
                               return recorded_.size() > tail && IsSilent(recorded_.last(tail)) &&
                                      !IsSilent(recorded_.chopped(tail));
                             },
                             kLongestPlay);
}

std::vector<float> SoundServer::TakeRecording()
{
  recorder_.terminate();
  recorder_.waitForFinished(kPatience);
  return Thinned(recorded_ + recorder_.readAllStandardOutput());
}

namespace Sounds {

std::vector<float> ReadClip(const QString& path)
{
  constexpr qsizetype kHeaderSize = 44;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    throw std::runtime_error("no clip " + path.toStdString());
  }
  return Thinned(file.readAll().mid(kHeaderSize));
}

Place Find(const std::vector<float>& clip, const std::vector<float>& recording)
{
  const std::size_t length = kRate / 2;
  const std::size_t start = clip.size() / 2 - length / 2;
  double clipPower = 0;
  for (std::size_t i = 0; i < length; ++i) {
    clipPower += double{clip[start + i]} * clip[start + i];
  }
  Place best;
  for (std::size_t at = 0; at + length <= recording.size(); ++at) {
    double product = 0;
    double power = 1;
    for (std::size_t i = 0; i < length; ++i) {
      product += double{clip[start + i]} * recording[at + i];
      power += double{recording[at + i]} * recording[at + i];
    }
    const double likeness = product / std::sqrt(clipPower * power);
    if (likeness > best.likeness) {
      best = {static_cast<double>(at) / kRate, likeness};
    }
  }
  return best;
}

}
