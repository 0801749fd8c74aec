// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/ReminderOutcome.h"

ReminderOutcome DecideOutcome(const ReminderFacts& facts)
{
  if (!facts.active) {
    return facts.manual ? ReminderOutcome::kNotActive : ReminderOutcome::kNothing;
  }
  if (!facts.textMessage && !facts.audioMessage) {
    return ReminderOutcome::kNothing;
  }
  if (!facts.hit) {
    return facts.manual ? ReminderOutcome::kNothingComingUp : ReminderOutcome::kNothing;
  }
  if (!facts.manual && !facts.reminderOnStart) {
    return ReminderOutcome::kNothing;
  }
  if (!facts.textMessage) {
    return ReminderOutcome::kClipsOnly;
  }
  return facts.manual ? ReminderOutcome::kManualNotices : ReminderOutcome::kStartUpNotices;
}
