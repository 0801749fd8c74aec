// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/ReminderRule.h"

#include "store/Options.h"

namespace {

QString Prefix(ReminderKind kind)
{
  switch (kind) {
    case ReminderKind::kBirthday:
      return QStringLiteral("Birth");
    case ReminderKind::kAnniversary:
      return QStringLiteral("Ann");
    case ReminderKind::kEvent:
      break;
  }
  return QStringLiteral("Cal");
}

}

bool ReminderRule::HoldsOnce(int daysToGo) const
{
  return on && once && length == daysToGo;
}

bool ReminderRule::HoldsMany(int daysToGo) const
{
  return on && many && length && daysToGo >= 0 && daysToGo <= *length;
}

QString RuleColumn(ReminderKind kind, const char* part)
{
  return Prefix(kind) + QLatin1String(part);
}

ReminderRule ReadRule(Recordset& options, ReminderKind kind)
{
  const QVariant length = options.Fields(RuleColumn(kind, "Length")).Value();
  const auto isTrue = [&](const char* part) { return Options::IsTrue(options.Fields(RuleColumn(kind, part)).Value()); };
  return {isTrue("Audio"), isTrue("Once"), isTrue("Many"),
          length.isNull() ? std::nullopt : std::optional<int>(length.toInt())};
}

bool RemindersActive(Recordset& options)
{
  return !(Options::IsFalse(options.Fields(QStringLiteral("BirthAudio")).Value()) &&
           Options::IsFalse(options.Fields(QStringLiteral("AnnAudio")).Value()) &&
           Options::IsFalse(options.Fields(QStringLiteral("CalAudio")).Value()));
}
