// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "reminders/ReminderRule.h"

#include <QString>

// The words of the notices window.
namespace NoticeTexts {

// The line that says that something of the kind is coming up.
[[nodiscard]] QString Line(ReminderKind kind);

// The entry of one occasion under the many-days rule. The count of days takes two
// places, so that sorting entries as texts sorts them by days.
[[nodiscard]] QString Entry(int daysToGo, int length, const QString& name);

// What the user has chosen, above the entries.
[[nodiscard]] QString OnceSentence(ReminderKind kind, int length);
[[nodiscard]] QString ManySentence(ReminderKind kind, int length);

}
