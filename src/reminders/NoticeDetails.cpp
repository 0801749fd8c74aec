// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/NoticeDetails.h"

#include "reminders/DaysToGo.h"
#include "reminders/NoticeTexts.h"
#include "store/Database.h"
#include "store/Queries.h"

namespace NoticeDetails {
namespace {

QString TextOf(Recordset& rows, const char* column)
{
  return rows.Fields(QLatin1String(column)).Value().toString();
}

std::optional<int> DaysOf(Recordset& rows, ReminderKind kind, DaysToGo& days)
{
  const auto value = [&](const char* column) { return rows.Fields(QLatin1String(column)).Value(); };
  switch (kind) {
    case ReminderKind::kBirthday:
      return days.ToYearly(value("BirthMonth"), value("BirthDate"));
    case ReminderKind::kAnniversary:
      return days.ToYearly(value("AnnMonth"), value("AnnDate"));
    case ReminderKind::kEvent:
      break;
  }
  return days.ToEvent(value("Month"), value("Date"));
}

QString NameOf(Recordset& rows, ReminderKind kind)
{
  switch (kind) {
    case ReminderKind::kBirthday:
      return TextOf(rows, "FirstName") + QLatin1Char(' ') + TextOf(rows, "LastName");
    case ReminderKind::kAnniversary:
      return TextOf(rows, "Spouse1First") + QLatin1String(" and ") + TextOf(rows, "Spouse2First");
    case ReminderKind::kEvent:
      break;
  }
  return TextOf(rows, "Event");
}

}

const QString& QueryFor(ReminderKind kind)
{
  switch (kind) {
    case ReminderKind::kBirthday:
      return Queries::kNoticeBirthdays;
    case ReminderKind::kAnniversary:
      return Queries::kNoticeAnniversaries;
    case ReminderKind::kEvent:
      break;
  }
  return Queries::kNoticeEvents;
}

QStringList ReadEntries(Recordset& rows, ReminderKind kind, const ReminderRule& rule, QDate today,
                        const std::function<void(const QString&)>& onSentence)
{
  QStringList entries;
  DaysToGo days(today);
  for (; !rows.Eof(); rows.MoveNext()) {
    const std::optional<int> daysToGo = DaysOf(rows, kind, days);
    if (!daysToGo || !rule.Holds(*daysToGo)) {
      continue;
    }
    const bool once = rule.HoldsOnce(*daysToGo);
    const QString name = NameOf(rows, kind);
    entries.append(once ? name : NoticeTexts::Entry(*daysToGo, *rule.length, name));
    onSentence(once ? NoticeTexts::OnceSentence(kind, *rule.length) : NoticeTexts::ManySentence(kind, *rule.length));
  }
  return entries;
}

}
