// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "occasions/Occasions.h"

#include <QDate>

// What the occasions page tells about one birthday or one anniversary.
namespace OccasionSentences {

struct Details
{
  QDate occasion;        // in the shown year
  bool shifted = false;  // a 29 February in a shown year not divisible by 4, kept on 1 March
  QString caption;
  QString text;  // two sentences with a carriage return and a line feed between; the second may be empty
};

// For rows with a day only. Every fourth year is taken for a leap year, 1900 and 2100
// too. Throws 13 for a date that is none, 29 February of those two years included.
// Someone born on 29 February is a year older from 1 March on in every year.
[[nodiscard]] Details Of(const Occasions::Birthday& birthday, int shownYear, QDate today);

// The same, but a wedding on 29 February counts as one on 1 March only while the
// occasion is shifted. One of today's year counts as less than a year ago, reached or not.
[[nodiscard]] Details Of(const Occasions::Anniversary& anniversary, int shownYear, QDate today);

// The years between two dates, a day of the year that is reached included. Negative if
// the event lies ahead. 29 February is reached on 1 March in a common year.
[[nodiscard]] int WholeYears(QDate event, QDate to);

// The whole years since a day of a year, in a year that is past or to come. One that was 29
// February is reached on 1 March in every year. Throws 13 for a date that is none.
[[nodiscard]] int YearsSince(const QString& month, const QString& day, const QString& year, QDate today);

}
