// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "reminders/ReminderRule.h"

#include <QString>

// The two rules that a user can choose from, in the order of their options.
enum class DayRule
{
  kOneDay,
  kManyDays,
};

// What the settings page says of the settings as they are.
namespace StatusTexts {

// A kind as the settings page calls it: "birthday", "anniversary" or "calendar".
[[nodiscard]] QString KindName(ReminderKind kind);

// A kind with a rule and its number of days.
[[nodiscard]] QString Status(ReminderKind kind, DayRule rule, const QString& days);

// A kind without.
[[nodiscard]] QString NoStatus(ReminderKind kind);

// A kind by its rule as it is stored, whether it is on or off; the one-day rule goes before
// the other. A rule without a number, or with one below 0, counts as none.
[[nodiscard]] QString StatusOf(ReminderKind kind, const ReminderRule& rule);

// How reminders are given. Empty if they are given in neither way.
[[nodiscard]] QString Method(bool text, bool audio);

}
