// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDate>
#include <QVariant>

#include <array>
#include <climits>
#include <optional>

// Counts the days from today to the occasions of one query, row by row. A month name
// that is none leaves the month of the row before; at the first row that is month 0,
// the December before.
class DaysToGo
{
public:
  explicit DaysToGo(QDate today);

  // For a birthday or an anniversary, by the full English name of its month and its day
  // as text. Negative once it is over this year; only January is seen ahead, from
  // December. Nothing if either is unknown. Throws 13 for a day that is no number.
  [[nodiscard]] std::optional<int> ToYearly(const QVariant& month, const QVariant& day);

  // For an event, by the name of its month and its full date. Nothing if either is
  // unknown. Throws 13 for a date that is none.
  [[nodiscard]] std::optional<int> ToEvent(const QVariant& month, const QVariant& date);

private:
  void ReadMonth(QStringView name);
  [[nodiscard]] int DaysTo(QDate date) const;
  [[nodiscard]] int DaysToDayOfYear(int day) const;

  // The days to a month and day that were counted before; there are few, and many rows.
  static constexpr int kKnownDays = 32;
  static constexpr int kNotCounted = INT_MIN;

  QDate today_;
  int month_ = 0;
  std::array<int, 13 * kKnownDays> counted_{};
};
