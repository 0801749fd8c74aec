// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/StatusTexts.h"

namespace StatusTexts {
namespace {

struct Words
{
  QString name;
  QString one;
  QString many;
};

Words WordsFor(ReminderKind kind)
{
  switch (kind) {
    case ReminderKind::kBirthday:
      return {QStringLiteral("birthday"), QStringLiteral("a birthday"), QStringLiteral("birthdays")};
    case ReminderKind::kAnniversary:
      return {QStringLiteral("anniversary"), QStringLiteral("an anniversary"), QStringLiteral("anniversaries")};
    case ReminderKind::kEvent:
      break;
  }
  return {QStringLiteral("calendar"), QStringLiteral("a calendar event"), QStringLiteral("calendar events")};
}

}

QString KindName(ReminderKind kind)
{
  return WordsFor(kind).name;
}

QString Status(ReminderKind kind, DayRule rule, const QString& days)
{
  const Words words = WordsFor(kind);
  const bool oneDay = rule == DayRule::kOneDay;
  if (days == QLatin1String("0")) {
    return QStringLiteral("Reminder on the day of %1.").arg(words.one);
  }
  if (days == QLatin1String("1")) {
    return (oneDay ? QStringLiteral("Reminder 1 day before %1.")
                   : QStringLiteral("Reminder on the day of, and the day before, %1."))
        .arg(words.one);
  }
  return oneDay ? QStringLiteral("Reminder %1 days before %2.").arg(days, words.one)
                : QStringLiteral("Reminder for all %1 occurring over the next %2 days.").arg(words.many, days);
}

QString NoStatus(ReminderKind kind)
{
  return QStringLiteral("No %1 notifications").arg(KindName(kind));
}

QString StatusOf(ReminderKind kind, const ReminderRule& rule)
{
  const bool hasNumber = rule.length && *rule.length >= 0;
  if (!hasNumber || (!rule.once && !rule.many)) {
    return NoStatus(kind);
  }
  return Status(kind, rule.once ? DayRule::kOneDay : DayRule::kManyDays, QString::number(*rule.length));
}

QString Method(bool text, bool audio)
{
  if (text && audio) {
    return QStringLiteral("Text and audio notification.");
  }
  if (text) {
    return QStringLiteral("Text notification.");
  }
  return audio ? QStringLiteral("Audio notification.") : QString();
}

}
