// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Months.h"

#include "platform/RuntimeError.h"

#include <algorithm>

int MonthNumber(QStringView name)
{
  const auto found = std::find(kMonthNames.begin(), kMonthNames.end(), name);
  return found == kMonthNames.end() ? 0 : static_cast<int>(found - kMonthNames.begin()) + 1;
}

QDate DateSerial(int year, int month, int day)
{
  constexpr qint64 kFirstYear = 100;
  constexpr qint64 kLastYear = 9999;
  const qint64 months = qint64{year} * 12 + month - 1;
  const qint64 fullYear = months >= 0 ? months / 12 : -1;
  if (fullYear < kFirstYear || fullYear > kLastYear) {
    RaiseError(ErrorNumber::kOverflow);
  }
  const QDate date = QDate(static_cast<int>(fullYear), static_cast<int>(months % 12) + 1, 1).addDays(qint64{day} - 1);
  if (!date.isValid() || date.year() < kFirstYear || date.year() > kLastYear) {
    RaiseError(ErrorNumber::kOverflow);
  }
  return date;
}
