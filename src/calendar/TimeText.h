// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QTime>

#include <optional>

// A time of day as people type it, with or without blanks around it: "9:30 pm", "9:30PM",
// "9 pm", "9:30:15 am", "21:30", "21:30:15". Nothing for any other text.
[[nodiscard]] std::optional<QTime> ReadTime(const QString& text);
