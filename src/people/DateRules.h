// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDate>
#include <QString>

// The years that a date may have.
inline constexpr int kFirstYear = 1900;
inline constexpr int kLastYear = 2050;

// A date whose parts may each be left open: the full English name of its month, its
// day and its year as digits, or empty texts.
struct PartialDate
{
  QString month;
  QString day;
  QString year;
};

// The message that refuses the date, or the empty text. Its month must be one, its day
// one that its month has, 29 February in every fourth year, its year 1900 to 2050, and
// it must not lie after today, as far as its parts tell.
[[nodiscard]] QString RefuseDate(const PartialDate& date, QDate today);
