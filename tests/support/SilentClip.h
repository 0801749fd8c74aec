// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/ProgramFolder.h"

#include <QDir>
#include <QFile>
#include <QtEndian>

#include <gtest/gtest.h>

// A clip of silence, 16 bits and 8000 a second, so that it plays without a server.
inline void WriteSilentClip(const QString& path, int milliseconds)
{
  const int bytes = milliseconds * 16;
  QByteArray wav("RIFF\0\0\0\0WAVEfmt \x10\0\0\0\x01\0\x01\0\x40\x1f\0\0\x80\x3e\0\0\x02\0\x10\0data\0\0\0\0", 44);
  const auto put = [&](int at, quint32 value) { qToLittleEndian(value, wav.data() + at); };
  put(4, static_cast<quint32>(36 + bytes));
  put(40, static_cast<quint32>(bytes));
  wav.append(QByteArray(bytes, '\0'));
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(wav);
}

// The three clips of the program's folder.
inline void WriteSilentClips(const ProgramFolder& folder, int milliseconds)
{
  QDir().mkpath(folder.File(QStringLiteral("/notices")));
  for (const char* name : {"hapbirth.wav", "wmfade2.wav", "jad0044.wav"}) {
    WriteSilentClip(folder.File(QStringLiteral("/notices/")) + QLatin1String(name), milliseconds);
  }
}
