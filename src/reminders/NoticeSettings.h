// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "reminders/ReminderRule.h"
#include "reminders/StatusTexts.h"

#include <QString>

#include <optional>

// The reminder settings as their page changes them, each change at once, and what may not
// be left unsaid when the page is closed.
namespace NoticeSettings {

// How reminders are given.
struct Methods
{
  bool text = false;
  bool audio = false;

  [[nodiscard]] bool Any() const { return text || audio; }
};

[[nodiscard]] Methods ReadMethods(Recordset& options);
[[nodiscard]] Methods ReadMethods();

// True if reminders of the kind are switched on.
[[nodiscard]] bool IsOn(ReminderKind kind);

// Switches the kind on with this rule. Throws 13 if `days` is no number, 6 if it needs
// more than 32 bits.
void SetRule(ReminderKind kind, DayRule rule, const QString& days);

// Takes the number away, and with it the kind is off; the rule stays.
void DropDays(ReminderKind kind);

// Takes the number of a kind that is off away; the kind's switch stays, also where it was
// never set.
void DropUnusedDays(ReminderKind kind);

// Switches the kind off and forgets its rule.
void Cancel(ReminderKind kind);

// What stands on the page for a kind, and in the settings.
struct PanelState
{
  bool on = false;
  bool hasMethod = false;
  bool daysShown = false;
  bool optionChosen = false;
};

// What keeps the page from being closed; nothing if the kind is in order.
[[nodiscard]] std::optional<QString> ClosingMessage(ReminderKind kind, const PanelState& state);

}
