// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "occasions/Occasions.h"

#include <QDate>

// Birthdays and anniversaries as they are printed.
namespace OccasionLines {

// "May 9, 1962 - Ann Lee, 64 years old", the age only if `withAge`; without a year or a day
// "May 9 - Ann Lee". Throws 13 if year and day make no date, whether the age is wanted or not.
[[nodiscard]] QString Of(const Occasions::Birthday& birthday, bool withAge, QDate today);

// "May 9, 1990 - Ann and Bob, married 36 years", under the same rules.
[[nodiscard]] QString Of(const Occasions::Anniversary& anniversary, bool withYears, QDate today);

}
