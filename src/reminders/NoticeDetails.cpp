// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/NoticeDetails.h"

#include "reminders/DaysToGo.h"
#include "reminders/NoticeTexts.h"
#include "store/Database.h"
#include "store/Queries.h"

namespace {

QString TextOf(Recordset& rows, const char* column)
{
  return rows.Fields(QLatin1String(column)).Value().toString();
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

NoticeDetails NoticeDetails::Read(Database& database, ReminderKind kind, const ReminderRule& rule, QDate today)
{
  NoticeDetails details;
  DaysToGo days(today);
  const auto rows = database.OpenRecordset(QueryFor(kind), Database::kDynaset);
  for (; !rows->Eof(); rows->MoveNext()) {
    const std::optional<int> daysToGo = DaysOf(*rows, kind, days);
    if (!daysToGo) {
      continue;
    }
    if (rule.HoldsOnce(*daysToGo)) {
      details.entries.append(NameOf(*rows, kind));
      details.sentence = NoticeTexts::OnceSentence(kind, *rule.length);
    } else if (rule.HoldsMany(*daysToGo)) {
      details.entries.append(NoticeTexts::Entry(*daysToGo, *rule.length, NameOf(*rows, kind)));
      details.sentence = NoticeTexts::ManySentence(kind, *rule.length);
    }
  }
  return details;
}
