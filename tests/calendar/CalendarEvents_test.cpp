// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/CalendarEvents.h"

#include "store/DBEngine.h"
#include "store/StatementCounter.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

namespace {

class EventsOfReminders : public testing::Test
{
protected:
  int Add(const QVariant& month, const QVariant& date, const QVariant& event, const QVariant& time = {},
          const QVariant& notes = {}) const
  {
    folder.Execute("INSERT INTO Reminders (Month, Date, Event, Time, Notes) VALUES (?,?,?,?,?)",
                   {month, date, event, time, notes});
    return folder.Value("SELECT max(ID) FROM Reminders").toInt();
  }

  std::string Titles(const QString& month, QDate first, QDate last)
  {
    QStringList titles;
    for (const CalendarEvent& event : CalendarEvents::Between(database, month, first, last)) {
      titles.append(event.title);
    }
    return titles.join(' ').toStdString();
  }
  std::string TitlesOfMay() { return Titles("May", QDate(2026, 5, 1), QDate(2026, 5, 31)); }

  ProgramFolder folder;
  Database database = DBEngine::OpenDatabase();
};

}

TEST_F(EventsOfReminders, AnEventIsReadWhole)
{
  const int id = Add("May", "2026-05-12", "Dentist", "21:30:00", "Bring the card");
  const std::vector<CalendarEvent> events = CalendarEvents::On(database, "May", QDate(2026, 5, 12));
  ASSERT_EQ(events.size(), 1U);
  EXPECT_EQ(events[0].id, id);
  EXPECT_EQ(events[0].date, QDate(2026, 5, 12));
  EXPECT_EQ(events[0].title, "Dentist");
  EXPECT_EQ(events[0].time, QTime(21, 30));
  EXPECT_EQ(events[0].notes, "Bring the card");
}

TEST_F(EventsOfReminders, WhatIsNullIsEmpty)
{
  Add("May", "2026-05-12", {});
  const std::vector<CalendarEvent> events = CalendarEvents::On(database, "May", QDate(2026, 5, 12));
  ASSERT_EQ(events.size(), 1U);
  EXPECT_TRUE(events[0].title.isEmpty());
  EXPECT_FALSE(events[0].time.isValid());
  EXPECT_TRUE(events[0].notes.isEmpty());
}

TEST_F(EventsOfReminders, MidnightIsATime)
{
  Add("May", "2026-05-12", "Dark", "00:00:00");
  EXPECT_EQ(CalendarEvents::On(database, "May", QDate(2026, 5, 12)).at(0).time, QTime(0, 0));
}

TEST_F(EventsOfReminders, NoneWithoutRows)
{
  EXPECT_TRUE(CalendarEvents::Between(database, "May", QDate(2026, 5, 1), QDate(2026, 5, 31)).empty());
  EXPECT_TRUE(CalendarEvents::On(database, "May", QDate(2026, 5, 12)).empty());
}

TEST_F(EventsOfReminders, ThoseWithoutATimeComeFirstThenByTimeThenAsEntered)
{
  Add("May", "2026-05-20", "E9", "21:00:00");
  Add("May", "2026-05-12", "C", "09:30:00");
  Add("May", "2026-05-12", "A");
  Add("May", "2026-05-12", "D", "09:30:00");
  Add("May", "2026-05-01", "B");
  Add("May", "2026-05-12", "M", "00:00:00");
  EXPECT_EQ(TitlesOfMay(), "A B M C D E9");
}

TEST_F(EventsOfReminders, BothEndsAreIncluded)
{
  Add("May", "2026-04-30", "before");
  Add("May", "2026-05-01", "first");
  Add("May", "2026-05-31", "last");
  Add("May", "2026-06-01", "after");
  EXPECT_EQ(TitlesOfMay(), "first last");
}

TEST_F(EventsOfReminders, AnotherMonthsNameOrYearIsLeftOut)
{
  Add("April", "2026-05-12", "wrongname");
  Add("June", "2026-05-12", "wrongname");
  Add({}, "2026-05-12", "nameless");
  Add("", "2026-05-12", "nameless");
  Add("May", "2025-05-12", "yearbefore");
  Add("May", "2027-05-12", "yearafter");
  Add("May", {}, "dateless");
  Add("May", "2026-05-12", "right");
  EXPECT_EQ(TitlesOfMay(), "right");
}

TEST_F(EventsOfReminders, OfOneDateAlone)
{
  Add("May", "2026-05-11", "before");
  const int late = Add("May", "2026-05-12", "late", "20:00:00");
  const int untimed = Add("May", "2026-05-12", "untimed");
  Add("May", "2026-05-13", "after");
  const std::vector<CalendarEvent> events = CalendarEvents::On(database, "May", QDate(2026, 5, 12));
  EXPECT_EQ(CalendarEvents::IdsOf(events), (std::vector<int>{untimed, late}));
  EXPECT_TRUE(CalendarEvents::IdsOf({}).empty());
}

TEST_F(EventsOfReminders, DamagedDatesAndTimesDoNotHideTheOthers)
{
  Add("May", "no date", "baddate");
  Add("May", "2026-05-40", "badday");
  Add("May", 17, "number");
  Add("May", "2026-05-12", "good", "10:00:00");
  EXPECT_EQ(TitlesOfMay(), "good");
}

TEST_F(EventsOfReminders, RowsOfOtherDatesAreNotRead)
{
  const auto readMay = [&] {
    const StatementCounter counter(folder.DatabasePath());
    EXPECT_EQ(CalendarEvents::Between(database, "May", QDate(2026, 5, 1), QDate(2026, 5, 31)).size(), 31U);
    EXPECT_EQ(counter.Scanned, 0);
    return counter.Rows;
  };
  folder.Execute(
      "INSERT INTO Reminders (Month, Date, Event) WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n "
      "WHERE i < 19999) SELECT 'May', date('1990-01-01', '+' || i || ' days'), 'Event ' || i FROM n");
  static_cast<void>(readMay());  // the first reads what the tables are like
  const int among = readMay();
  folder.Execute("DELETE FROM Reminders WHERE Date NOT BETWEEN '2026-05-01' AND '2026-05-31'");
  const int alone = readMay();
  EXPECT_EQ(among, alone);
  EXPECT_GE(alone, 31);
}
