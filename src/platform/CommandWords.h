// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

// The words of a command, split as a shell does, but for anything that a shell would
// expand: quotes keep blanks in a word, a backslash keeps any one character. None if a
// quote or a backslash stands open.
[[nodiscard]] QStringList CommandWords(const QString& command);
