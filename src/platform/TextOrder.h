// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <string>
#include <string_view>

// The order of texts, the same wherever texts are compared or sorted: without
// regard to case, for all of Unicode, and by code points otherwise.
namespace TextOrder {

// A byte string for UTF-8 text; two texts compare as these compare byte by byte.
[[nodiscard]] std::string Key(std::string_view utf8);
[[nodiscard]] std::string Key(const QString& text);

// Below, equal to or above 0.
[[nodiscard]] int Compare(std::string_view utf8, std::string_view other);

[[nodiscard]] bool Less(const QString& text, const QString& other);

}
