// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <string_view>

// The whole text: the toolkit takes a byte order mark at its start for no part of it.
[[nodiscard]] QString FromUtf8(std::string_view utf8);
