// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/TimeText.h"

#include <QRegularExpression>

namespace {

constexpr int kHoursOfHalfDay = 12;

const QRegularExpression& Pattern()
{
  static const QRegularExpression pattern(
      QRegularExpression::anchoredPattern(
          QStringLiteral(R"(([0-9]{1,2})(?::([0-9]{2})(?::([0-9]{2}))?)?(?:\s*([ap]m))?)")),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
  return pattern;
}

// Of the whole day; nothing for an hour that no clock of half a day shows.
std::optional<int> HourOf(int hour, QStringView halfDay)
{
  if (hour < 1 || hour > kHoursOfHalfDay) {
    return std::nullopt;
  }
  const bool afternoon = halfDay.startsWith(u'p', Qt::CaseInsensitive);
  return hour % kHoursOfHalfDay + (afternoon ? kHoursOfHalfDay : 0);
}

}

std::optional<QTime> ReadTime(const QString& text)
{
  const QRegularExpressionMatch parts = Pattern().match(text.trimmed());
  const QStringView minute = parts.capturedView(2);
  const QStringView halfDay = parts.capturedView(4);
  if (!parts.hasMatch() || (minute.isEmpty() && halfDay.isEmpty())) {
    return std::nullopt;
  }
  const int number = parts.capturedView(1).toInt();
  const std::optional<int> hour = halfDay.isEmpty() ? number : HourOf(number, halfDay);
  const QTime time(hour.value_or(-1), minute.toInt(), parts.capturedView(3).toInt());
  return time.isValid() ? std::optional(time) : std::nullopt;
}
