// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// Asks for one line of text, as a pause in the running command. The empty text if
// the user cancels.
[[nodiscard]] QString InputBox(const QString& prompt, const QString& title);
