// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/DaysToGo.h"

#include "platform/RuntimeError.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<QLatin1StringView, 12> kMonths = {
    QLatin1StringView("January"), QLatin1StringView("February"), QLatin1StringView("March"),
    QLatin1StringView("April"),   QLatin1StringView("May"),      QLatin1StringView("June"),
    QLatin1StringView("July"),    QLatin1StringView("August"),   QLatin1StringView("September"),
    QLatin1StringView("October"), QLatin1StringView("November"), QLatin1StringView("December")};

bool IsUnknown(const QVariant& value)
{
  return value.isNull() || (value.typeId() == QMetaType::QString && value.toString().isEmpty());
}

int ToNumber(const QVariant& value)
{
  bool isNumber = false;
  const int number = value.toString().trimmed().toInt(&isNumber);
  if (!isNumber) {
    RaiseError(ErrorNumber::kTypeMismatch);
  }
  return number;
}

}

QDate DateSerial(int year, int month, int day)
{
  const QDate date = QDate(year, 1, 1).addMonths(month - 1).addDays(qint64{day} - 1);
  if (!date.isValid()) {
    RaiseError(ErrorNumber::kOverflow);
  }
  return date;
}

void DaysToGo::ReadMonth(const QString& name)
{
  const auto found = std::find(kMonths.begin(), kMonths.end(), name);
  if (found != kMonths.end()) {
    month_ = static_cast<int>(found - kMonths.begin()) + 1;
  }
}

int DaysToGo::DaysTo(QDate date) const
{
  return static_cast<int>(today_.daysTo(date));
}

std::optional<int> DaysToGo::ToYearly(const QVariant& month, const QVariant& day)
{
  if (IsUnknown(month) || IsUnknown(day)) {
    return std::nullopt;
  }
  ReadMonth(month.toString());
  const int dayNumber = ToNumber(day);
  const int year = today_.year();
  if (month_ == 2 && dayNumber == 29 && year % 4 != 0) {
    return DaysTo(QDate(year, 3, 1));
  }
  if (today_.month() == 12 && month_ == 1) {
    return DaysTo(DateSerial(year + 1, 1, dayNumber));
  }
  return DaysTo(DateSerial(year, month_, dayNumber));
}

std::optional<int> DaysToGo::ToEvent(const QVariant& month, const QVariant& date)
{
  if (IsUnknown(month) || IsUnknown(date)) {
    return std::nullopt;
  }
  ReadMonth(month.toString());
  const QDate day = date.toDate();
  if (!day.isValid()) {
    RaiseError(ErrorNumber::kTypeMismatch);
  }
  return DaysTo(DateSerial(day.year(), month_, day.day()));
}
