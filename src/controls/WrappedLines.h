// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

class QFont;

// A text as a box of that width, in twips on screen, would break it into lines: at its own line
// breaks and between words, within a word that is too long for a line.
[[nodiscard]] QStringList WrappedLines(const QString& text, const QFont& font, int widthTwips);
