// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/DaysToGo.h"

#include "platform/Months.h"
#include "platform/Numeric.h"
#include "platform/RuntimeError.h"

namespace {

// A value's text without a copy of it; empty for Null.
QStringView TextOf(const QVariant& value, QString& holder)
{
  if (value.typeId() == QMetaType::QString) {
    return *static_cast<const QString*>(value.constData());
  }
  holder = value.toString();
  return holder;
}

// A day as it is nearly always written; -1 for anything else.
int ToPlainDay(QStringView text)
{
  int number = 0;
  for (const QChar c : text) {
    if (text.size() > 2 || c < QLatin1Char('0') || c > QLatin1Char('9')) {
      return -1;
    }
    number = number * 10 + (c.unicode() - '0');
  }
  return number;
}

int ToNumber(QStringView text)
{
  if (const int day = ToPlainDay(text); day >= 0) {
    return day;
  }
  return ToInteger(text.toString());
}

}

DaysToGo::DaysToGo(QDate today) : today_(today)
{
  counted_.fill(kNotCounted);
}

void DaysToGo::ReadMonth(QStringView name)
{
  if (month_ > 0 && name == kMonthNames[static_cast<std::size_t>(month_ - 1)]) {
    return;
  }
  if (const int month = MonthNumber(name); month > 0) {
    month_ = month;
  }
}

int DaysToGo::DaysTo(QDate date) const
{
  return static_cast<int>(today_.daysTo(date));
}

int DaysToGo::DaysToDayOfYear(int day) const
{
  const int year = today_.year();
  if (month_ == 2 && day == 29 && year % 4 != 0) {
    return DaysTo(QDate(year, 3, 1));
  }
  if (today_.month() == 12 && month_ == 1) {
    return DaysTo(DateSerial(year + 1, 1, day));
  }
  return DaysTo(DateSerial(year, month_, day));
}

std::optional<int> DaysToGo::ToYearly(const QVariant& month, const QVariant& day)
{
  QString monthHolder;
  QString dayHolder;
  const QStringView monthText = TextOf(month, monthHolder);
  const QStringView dayText = TextOf(day, dayHolder);
  if (monthText.isEmpty() || dayText.isEmpty()) {
    return std::nullopt;
  }
  ReadMonth(monthText);
  const int dayNumber = ToNumber(dayText);
  if (dayNumber < 0 || dayNumber >= kKnownDays) {
    return DaysToDayOfYear(dayNumber);
  }
  int& days = counted_[static_cast<std::size_t>(month_ * kKnownDays + dayNumber)];
  if (days == kNotCounted) {
    days = DaysToDayOfYear(dayNumber);
  }
  return days;
}

std::optional<int> DaysToGo::ToEvent(const QVariant& month, const QVariant& date)
{
  QString monthHolder;
  QString dateHolder;
  const QStringView monthText = TextOf(month, monthHolder);
  if (monthText.isEmpty() || TextOf(date, dateHolder).isEmpty()) {
    return std::nullopt;
  }
  ReadMonth(monthText);
  const QDate day = date.toDate();
  if (!day.isValid()) {
    RaiseError(ErrorNumber::kTypeMismatch);
  }
  return DaysTo(DateSerial(day.year(), month_, day.day()));
}
