// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/NoticeTexts.h"

namespace NoticeTexts {
namespace {

QString Occasions(ReminderKind kind)
{
  switch (kind) {
    case ReminderKind::kBirthday:
      return QStringLiteral("birthdays");
    case ReminderKind::kAnniversary:
      return QStringLiteral("anniversaries");
    case ReminderKind::kEvent:
      break;
  }
  return QStringLiteral("calendar events");
}

QString ChosenToBeNotifiedOf(const QString& what)
{
  return QStringLiteral("You've chosen to be notified of ") + what;
}

}

QString Line(ReminderKind kind)
{
  switch (kind) {
    case ReminderKind::kBirthday:
      return QStringLiteral(" Birthday coming up");
    case ReminderKind::kAnniversary:
      return QStringLiteral(" Wedding anniversary coming up");
    case ReminderKind::kEvent:
      break;
  }
  return QStringLiteral(" Calendar event coming up");
}

QString Entry(int daysToGo, int length, const QString& name)
{
  if (daysToGo >= 10) {
    return QStringLiteral("In %1 days - ").arg(daysToGo) + name;
  }
  if (daysToGo == 0) {
    return length == 0 ? name : QStringLiteral("In  0 days (today) - ") + name;
  }
  return (daysToGo == 1 ? QStringLiteral("In  1 day - ") : QStringLiteral("In  %1 days - ").arg(daysToGo)) + name;
}

QString OnceSentence(ReminderKind kind, int length)
{
  const QString occasions = Occasions(kind);
  if (length == 0 && kind == ReminderKind::kAnniversary) {
    return ChosenToBeNotifiedOf(QStringLiteral("anniversaries ccuring today:"));
  }
  if (length == 0) {
    return ChosenToBeNotifiedOf(occasions + QLatin1String(" occurring today:"));
  }
  if (length == 1) {
    return ChosenToBeNotifiedOf(occasions + QLatin1String(" occurring tomorrow:"));
  }
  return ChosenToBeNotifiedOf(QStringLiteral("%1 occurring %2 days from now:").arg(occasions).arg(length));
}

QString ManySentence(ReminderKind kind, int length)
{
  const QString occasions = Occasions(kind);
  if (length == 0) {
    return ChosenToBeNotifiedOf(occasions + QLatin1String(" occurring today:"));
  }
  if (length == 1) {
    return ChosenToBeNotifiedOf(QStringLiteral("all %1 occurring today and tomorrow:").arg(occasions));
  }
  return ChosenToBeNotifiedOf(QStringLiteral("all %1 occurring within the next %2 days:").arg(occasions).arg(length));
}

}
