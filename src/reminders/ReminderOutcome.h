// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// What a reminder check comes to.
enum class ReminderOutcome
{
  kNothing,
  kNotActive,
  kNothingComingUp,
  kManualNotices,
  kStartUpNotices,
  kClipsOnly,
};

struct ReminderFacts
{
  bool active = false;
  bool manual = false;
  bool hit = false;
  bool textMessage = false;
  bool audioMessage = false;
  bool reminderOnStart = false;
};

[[nodiscard]] ReminderOutcome DecideOutcome(const ReminderFacts& facts);
