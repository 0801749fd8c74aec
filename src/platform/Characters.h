// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// Texts as the user counts and sees them.
namespace Characters {

// Characters of Unicode, so that no letter or picture counts more for how it is encoded.
[[nodiscard]] int LengthOf(const QString& text);

// True if there is nothing but blanks; other white space is something.
[[nodiscard]] bool IsBlank(const QString& text);

}
