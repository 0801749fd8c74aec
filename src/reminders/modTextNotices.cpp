// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/modTextNotices.h"

#include "looks/modToolTips.h"
#include "platform/Attempt.h"
#include "platform/Clock.h"
#include "reminders/Clips.h"
#include "reminders/DaysToGo.h"
#include "reminders/NoticesWindow.h"
#include "reminders/ReminderOutcome.h"
#include "reminders/ReminderRule.h"
#include "store/DBEngine.h"
#include "store/Options.h"
#include "store/Queries.h"

#include <array>

namespace modTextNotices {
namespace {

struct Scan
{
  ReminderKind kind;
  std::unique_ptr<Recordset> rows;
  const char* month;
  const char* day;
  bool& hit;
};

bool FindHit(const Scan& scan, const ReminderRule& rule)
{
  Recordset& rows = *scan.rows;
  DaysToGo days(Clock::Today());
  const Field& month = rows.Fields(QLatin1String(scan.month));
  const Field& day = rows.Fields(QLatin1String(scan.day));
  for (; !rows.Eof(); rows.MoveNext()) {
    const std::optional<int> daysToGo = scan.kind == ReminderKind::kEvent ? days.ToEvent(month.Peek(), day.Peek())
                                                                          : days.ToYearly(month.Peek(), day.Peek());
    if (daysToGo && rule.Holds(*daysToGo)) {
      return true;
    }
  }
  return false;
}

void QueueClip(int place, ReminderKind kind)
{
  ClipFiles.resize(place + 1);
  ClipFiles[place] = Clips::FileFor(kind);
}

std::array<Scan, 3> OpenScans(Database& database)
{
  const auto open = [&](const QString& query) { return database.OpenRecordset(query, Database::kDynaset); };
  return {{{ReminderKind::kBirthday, open(Queries::kCheckBirthdays), "BirthMonth", "BirthDate", BirthdayHit},
           {ReminderKind::kAnniversary, open(Queries::kCheckAnniversaries), "AnnMonth", "AnnDate", AnniversaryHit},
           {ReminderKind::kEvent, open(Queries::kCheckEvents), "Month", "Date", CalendarHit}}};
}

void LookForHits(const std::array<Scan, 3>& scans, Recordset& options)
{
  BirthdayHit = AnniversaryHit = CalendarHit = false;
  int clipCount = 0;
  for (const Scan& scan : scans) {
    if (FindHit(scan, ReadRule(options, scan.kind))) {
      QueueClip(clipCount++, scan.kind);
      scan.hit = true;
    }
  }
}

ReminderFacts ReadFacts(Recordset& options, bool manual)
{
  const auto setting = [&](const char* column) {
    return Options::IsTrue(options.Fields(QLatin1String(column)).Value());
  };
  ReminderFacts facts;
  facts.active = RemindersActive(options);
  facts.manual = manual;
  facts.hit = BirthdayHit || AnniversaryHit || CalendarHit;
  facts.textMessage = setting("TextMessage");
  facts.audioMessage = setting("AudioMessage");
  facts.reminderOnStart = setting("ReminderOnStart");
  return facts;
}

// The store is let go of before a window waits for its user.
ReminderFacts LookUp(bool manual)
{
  Database database = DBEngine::OpenDatabase();
  const auto options = Options::Open(database);
  modToolTips::SetTipsOff(Options::Required(*options, QStringLiteral("ToolTips")).toBool());
  const std::array<Scan, 3> scans = OpenScans(database);
  if (RemindersActive(*options)) {
    LookForHits(scans, *options);
  }
  return ReadFacts(*options, manual);
}

void Tell(const ReminderFacts& facts)
{
  switch (DecideOutcome(facts)) {
    case ReminderOutcome::kNothing:
      break;
    case ReminderOutcome::kNotActive:
      NoticesWindow::TellNotActive();
      break;
    case ReminderOutcome::kNothingComingUp:
      NoticesWindow::TellNothingComingUp();
      break;
    case ReminderOutcome::kManualNotices:
      NoticesWindow::ShowManualNotices(facts.audioMessage);
      break;
    case ReminderOutcome::kStartUpNotices:
      NoticesWindow::ShowStartUpNotices(facts.audioMessage);
      break;
    case ReminderOutcome::kClipsOnly:
      Clips::PlayNextClip();
      break;
  }
}

}

void CheckReminders(bool manual)
{
  Attempt([&] { Tell(LookUp(manual)); });
}

}
