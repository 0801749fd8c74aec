// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <QString>

// Saves a picture as a bitmap file. It appears whole or not at all, over whatever stands
// there. Throws 75 if it cannot be written.
void SavePicture(const QImage& picture, const QString& path);
