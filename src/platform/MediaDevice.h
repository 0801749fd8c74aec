// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// The one device that plays clips: 16-bit PCM .wav files, one at a time.
// Nothing here fails aloud: an operation that cannot be done does nothing.
// Without a sound server a clip runs its time in silence.
namespace MediaDevice {

// Opens a clip. Does nothing if one is open already or the file is no clip.
void Open(const QString& path);

// Starts the open clip from its beginning.
void Play();

// "playing" or "stopped"; empty if no clip is open.
[[nodiscard]] QString Mode();

// Silences and closes the open clip.
void Close();

}
