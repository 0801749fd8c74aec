// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QProcess>
#include <QTemporaryDir>

#include <vector>

// A sound server of the test's own whose only output is recorded.
class SoundServer
{
public:
  SoundServer();
  ~SoundServer();
  SoundServer(const SoundServer&) = delete;
  SoundServer& operator=(const SoundServer&) = delete;

  // What PULSE_SERVER is to be for a program that plays here.
  [[nodiscard]] QString Address() const;

  // Waits until something is heard.
  [[nodiscard]] bool AwaitSound();

  // Waits until something has been heard and then nothing for so long.
  [[nodiscard]] bool AwaitSilence(int milliseconds);

  // Ends the recording.
  [[nodiscard]] std::vector<float> TakeRecording();

private:
  QTemporaryDir directory_;
  QProcess server_;
  QProcess recorder_;
  QByteArray recorded_;
};

// Sounds thinned out to a rate at which they are quick to compare.
namespace Sounds {

inline constexpr int kRate = 5512;

// A .wav file of 16 bits, mono, 44100 a second.
[[nodiscard]] std::vector<float> ReadClip(const QString& path);

// Where the half second in the middle of `clip` is found in `recording`, in seconds
// from the beginning, and how alike they are there (1: the same).
struct Place
{
  double seconds = 0;
  double likeness = 0;
};
[[nodiscard]] Place Find(const std::vector<float>& clip, const std::vector<float>& recording);

}
