// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QVariant>

#include <array>
#include <optional>

class Recordset;

// The kinds of occasion that are reminded of, in the order of their lines and clips.
enum class ReminderKind
{
  kBirthday,
  kAnniversary,
  kEvent,
};

inline constexpr std::array kAllKinds = {ReminderKind::kBirthday, ReminderKind::kAnniversary, ReminderKind::kEvent};

// When to remind of one kind, as the settings say.
struct ReminderRule
{
  bool on = false;
  bool once = false;
  bool many = false;
  std::optional<int> length;

  // The day that lies exactly `length` days before the occasion.
  [[nodiscard]] bool HoldsOnce(int daysToGo) const;
  // Every day from `length` days before up to the occasion's own.
  [[nodiscard]] bool HoldsMany(int daysToGo) const;
  [[nodiscard]] bool Holds(int daysToGo) const { return HoldsOnce(daysToGo) || HoldsMany(daysToGo); }
};

// The column of Options that holds a part of a kind's rule: "Audio" (which says that the
// kind is on), "Once", "Many" or "Length".
[[nodiscard]] QString RuleColumn(ReminderKind kind, const char* part);

// The rule of a kind, from the row of Options.
[[nodiscard]] ReminderRule ReadRule(Recordset& options, ReminderKind kind);

// False if all three kinds are switched off.
[[nodiscard]] bool RemindersActive(Recordset& options);
