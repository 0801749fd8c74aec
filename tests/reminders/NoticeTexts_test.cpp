// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/NoticeTexts.h"

#include <gtest/gtest.h>

using NoticeTexts::Entry;
using NoticeTexts::Line;
using NoticeTexts::ManySentence;
using NoticeTexts::OnceSentence;

namespace {

constexpr ReminderKind kKinds[] = {ReminderKind::kBirthday, ReminderKind::kAnniversary, ReminderKind::kEvent};

struct Sentences
{
  bool once;
  int length;
  const char* ofKind[3];
};

constexpr Sentences kSentences[] = {
    {true,
     0,
     {"You've chosen to be notified of birthdays occurring today:",
      "You've chosen to be notified of anniversaries ccuring today:",
      "You've chosen to be notified of calendar events occurring today:"}},
    {true,
     1,
     {"You've chosen to be notified of birthdays occurring tomorrow:",
      "You've chosen to be notified of anniversaries occurring tomorrow:",
      "You've chosen to be notified of calendar events occurring tomorrow:"}},
    {true,
     2,
     {"You've chosen to be notified of birthdays occurring 2 days from now:",
      "You've chosen to be notified of anniversaries occurring 2 days from now:",
      "You've chosen to be notified of calendar events occurring 2 days from now:"}},
    {true,
     30,
     {"You've chosen to be notified of birthdays occurring 30 days from now:",
      "You've chosen to be notified of anniversaries occurring 30 days from now:",
      "You've chosen to be notified of calendar events occurring 30 days from now:"}},
    {false,
     0,
     {"You've chosen to be notified of birthdays occurring today:",
      "You've chosen to be notified of anniversaries occurring today:",
      "You've chosen to be notified of calendar events occurring today:"}},
    {false,
     1,
     {"You've chosen to be notified of all birthdays occurring today and tomorrow:",
      "You've chosen to be notified of all anniversaries occurring today and tomorrow:",
      "You've chosen to be notified of all calendar events occurring today and tomorrow:"}},
    {false,
     14,
     {"You've chosen to be notified of all birthdays occurring within the next 14 days:",
      "You've chosen to be notified of all anniversaries occurring within the next 14 days:",
      "You've chosen to be notified of all calendar events occurring within the next 14 days:"}},
};

}

TEST(NoticeTexts, SentencesOfBothRulesForEveryKind)
{
  for (const Sentences& row : kSentences) {
    for (int kind = 0; kind < 3; ++kind) {
      const QString sentence =
          row.once ? OnceSentence(kKinds[kind], row.length) : ManySentence(kKinds[kind], row.length);
      EXPECT_EQ(sentence.toStdString(), row.ofKind[kind]);
    }
  }
}

TEST(NoticeTexts, LinesBeginWithABlank)
{
  EXPECT_EQ(Line(ReminderKind::kBirthday), QStringLiteral(" Birthday coming up"));
  EXPECT_EQ(Line(ReminderKind::kAnniversary), QStringLiteral(" Wedding anniversary coming up"));
  EXPECT_EQ(Line(ReminderKind::kEvent), QStringLiteral(" Calendar event coming up"));
}

TEST(NoticeTexts, EntriesTellTheDaysInTwoPlaces)
{
  const QString name = QStringLiteral("Ann %1 Lee");
  EXPECT_EQ(Entry(0, 7, name), QStringLiteral("In  0 days (today) - Ann %1 Lee"));
  EXPECT_EQ(Entry(0, 0, name), name);
  EXPECT_EQ(Entry(1, 7, name), QStringLiteral("In  1 day - Ann %1 Lee"));
  EXPECT_EQ(Entry(2, 7, name), QStringLiteral("In  2 days - Ann %1 Lee"));
  EXPECT_EQ(Entry(9, 9, name), QStringLiteral("In  9 days - Ann %1 Lee"));
  EXPECT_EQ(Entry(10, 30, name), QStringLiteral("In 10 days - Ann %1 Lee"));
  EXPECT_EQ(Entry(30, 30, name), QStringLiteral("In 30 days - Ann %1 Lee"));
}
