// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Apart.h"

#include <string>

// What may come of a damaged file: a message and a quiet default are well, the rest is not.
namespace Verdict {

// In a word: "crashed", "hung", "stopped with N", "spoke" or "quiet".
[[nodiscard]] QString Of(const Apart::Outcome& outcome);

// All that is wrong: a crash, a hang, an end without a message, a message that tells
// nothing, a write.
[[nodiscard]] QStringList Faults(const Apart::Outcome& outcome);

// All that was said, for somebody who reads a failure.
[[nodiscard]] std::string Story(const Apart::Outcome& outcome);

}
