// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPixmap>

// Loads a picture of any kind that Qt reads, upright as its camera says. A picture that
// is larger than a screen can show comes smaller, in its own proportion. Throws a
// RuntimeError: 53 if the file is not there, 481 if it is no picture, or one that would
// need more memory than a picture may take.
[[nodiscard]] QPixmap LoadPicture(const QString& path);

// The empty picture.
[[nodiscard]] QPixmap LoadPicture();
