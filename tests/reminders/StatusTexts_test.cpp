// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/StatusTexts.h"

#include <gtest/gtest.h>

namespace {

constexpr auto kBirthday = ReminderKind::kBirthday;
constexpr auto kAnniversary = ReminderKind::kAnniversary;
constexpr auto kEvent = ReminderKind::kEvent;

}

TEST(StatusTexts, SaysTheRuleAndItsDays)
{
  struct Case
  {
    ReminderKind kind;
    DayRule rule;
    const char* days;
    const char* status;
  };
  const Case cases[] = {
      {kBirthday, DayRule::kOneDay, "0", "Reminder on the day of a birthday."},
      {kAnniversary, DayRule::kOneDay, "0", "Reminder on the day of an anniversary."},
      {kEvent, DayRule::kOneDay, "0", "Reminder on the day of a calendar event."},
      {kBirthday, DayRule::kOneDay, "1", "Reminder 1 day before a birthday."},
      {kAnniversary, DayRule::kOneDay, "1", "Reminder 1 day before an anniversary."},
      {kEvent, DayRule::kOneDay, "1", "Reminder 1 day before a calendar event."},
      {kBirthday, DayRule::kOneDay, "2", "Reminder 2 days before a birthday."},
      {kAnniversary, DayRule::kOneDay, "10", "Reminder 10 days before an anniversary."},
      {kEvent, DayRule::kOneDay, "30", "Reminder 30 days before a calendar event."},
      {kBirthday, DayRule::kManyDays, "0", "Reminder on the day of a birthday."},
      {kAnniversary, DayRule::kManyDays, "0", "Reminder on the day of an anniversary."},
      {kEvent, DayRule::kManyDays, "0", "Reminder on the day of a calendar event."},
      {kBirthday, DayRule::kManyDays, "1", "Reminder on the day of, and the day before, a birthday."},
      {kAnniversary, DayRule::kManyDays, "1", "Reminder on the day of, and the day before, an anniversary."},
      {kEvent, DayRule::kManyDays, "1", "Reminder on the day of, and the day before, a calendar event."},
      {kBirthday, DayRule::kManyDays, "2", "Reminder for all birthdays occurring over the next 2 days."},
      {kAnniversary, DayRule::kManyDays, "11", "Reminder for all anniversaries occurring over the next 11 days."},
      {kEvent, DayRule::kManyDays, "30", "Reminder for all calendar events occurring over the next 30 days."},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(StatusTexts::Status(c.kind, c.rule, QString::fromLatin1(c.days)).toStdString(), c.status);
  }
}

TEST(StatusTexts, SaysThatThereAreNone)
{
  EXPECT_EQ(StatusTexts::NoStatus(kBirthday).toStdString(), "No birthday notifications");
  EXPECT_EQ(StatusTexts::NoStatus(kAnniversary).toStdString(), "No anniversary notifications");
  EXPECT_EQ(StatusTexts::NoStatus(kEvent).toStdString(), "No calendar notifications");
}

TEST(StatusTexts, ReadsWhatIsStored)
{
  struct Case
  {
    ReminderRule rule;
    const char* status;
  };
  const Case cases[] = {
      {{true, true, false, 3}, "Reminder 3 days before a birthday."},
      {{true, true, false, 1}, "Reminder 1 day before a birthday."},
      {{true, true, false, 0}, "Reminder on the day of a birthday."},
      {{true, false, true, 3}, "Reminder for all birthdays occurring over the next 3 days."},
      {{true, false, true, 1}, "Reminder on the day of, and the day before, a birthday."},
      {{true, false, true, 0}, "Reminder on the day of a birthday."},
      {{false, false, false, {}}, "No birthday notifications"},
      {{false, true, false, {}}, "No birthday notifications"},
      {{false, false, true, {}}, "No birthday notifications"},
      {{true, false, false, 3}, "No birthday notifications"},
      {{true, true, false, -1}, "No birthday notifications"},
      {{true, true, true, 3}, "Reminder 3 days before a birthday."},
      {{false, true, false, 3}, "Reminder 3 days before a birthday."},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(StatusTexts::StatusOf(kBirthday, c.rule).toStdString(), c.status)
        << c.rule.on << c.rule.once << c.rule.many << c.rule.length.value_or(-9);
  }
}

TEST(StatusTexts, SaysHowRemindersAreGiven)
{
  EXPECT_EQ(StatusTexts::Method(true, false).toStdString(), "Text notification.");
  EXPECT_EQ(StatusTexts::Method(false, true).toStdString(), "Audio notification.");
  EXPECT_EQ(StatusTexts::Method(true, true).toStdString(), "Text and audio notification.");
  EXPECT_EQ(StatusTexts::Method(false, false).toStdString(), "");
}
