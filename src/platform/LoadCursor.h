// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCursor>

// Loads a mouse cursor from a .cur file, with its hot spot. Throws a RuntimeError: 53 if
// the file is not there, 481 if it is no cursor.
[[nodiscard]] QCursor LoadCursor(const QString& path);
