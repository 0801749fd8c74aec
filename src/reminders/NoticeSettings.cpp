// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/NoticeSettings.h"

#include "platform/Numeric.h"
#include "store/DBEngine.h"
#include "store/Options.h"

namespace NoticeSettings {

Methods ReadMethods(Recordset& options)
{
  const auto isTrue = [&](const QString& column) { return Options::IsTrue(options.Fields(column).Value()); };
  return {isTrue(QStringLiteral("TextMessage")), isTrue(QStringLiteral("AudioMessage"))};
}

Methods ReadMethods()
{
  Database database = DBEngine::OpenDatabase();
  return ReadMethods(*Options::Open(database));
}

bool IsOn(ReminderKind kind)
{
  Database database = DBEngine::OpenDatabase();
  return ReadRule(*Options::Open(database), kind).on;
}

void SetRule(ReminderKind kind, DayRule rule, const QString& days)
{
  Options::Write({{RuleColumn(kind, "Audio"), true},
                  {RuleColumn(kind, "Once"), rule == DayRule::kOneDay},
                  {RuleColumn(kind, "Many"), rule == DayRule::kManyDays},
                  {RuleColumn(kind, "Length"), ToInteger(days)}});
}

void DropDays(ReminderKind kind)
{
  Options::Write({{RuleColumn(kind, "Audio"), false}, {RuleColumn(kind, "Length"), QVariant()}});
}

void DropUnusedDays(ReminderKind kind)
{
  Options::Write(RuleColumn(kind, "Length"), QVariant());
}

void Cancel(ReminderKind kind)
{
  Options::Write({{RuleColumn(kind, "Audio"), false},
                  {RuleColumn(kind, "Once"), false},
                  {RuleColumn(kind, "Many"), false},
                  {RuleColumn(kind, "Length"), QVariant()}});
}

std::optional<QString> ClosingMessage(ReminderKind kind, const PanelState& state)
{
  if (state.daysShown && !state.on) {
    return QStringLiteral("Please select type of %1 notification (one day only or repeated over several days)")
        .arg(StatusTexts::KindName(kind));
  }
  if (state.on && !state.hasMethod) {
    return QStringLiteral("Please select notification method (text/audio)");
  }
  if (!state.on && state.optionChosen) {
    return QStringLiteral("Please select duration of %1 notification").arg(StatusTexts::KindName(kind));
  }
  return std::nullopt;
}

}
