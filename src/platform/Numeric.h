// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// Numbers that are kept as text.

// True if the text, without blanks around it, is a number: digits with a sign, a
// decimal point or an exponent if need be.
[[nodiscard]] bool IsNumeric(const QString& text);

// The whole number nearest to the text's number; a half goes to the even one. Throws
// 13 if the text is no number, 6 if the number needs more than 32 bits.
[[nodiscard]] int ToInteger(const QString& text);
