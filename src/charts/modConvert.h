// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// The tallies that the charts are drawn from, and the check of a day in its month.
namespace modConvert {

// The message that refuses a day its month does not have in any year, such as 31 April
// or 30 February; empty for all others, texts that are no month or day included.
[[nodiscard]] QString CheckMonthDay(const QString& month, const QString& day);

// Each counts anew: couples by the month of their wedding, people by the month of
// their birth, people by age, in years of the calendar, in classes of ten. A failure
// that stops the counting leaves what was counted before it, for good.
void TallyAnniversaries();
void TallyBirthdays();
void TallyAges();  // throws 13 for a year of birth that is no number

}
