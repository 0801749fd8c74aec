// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/EventTexts.h"

#include "calendar/CalendarEvents.h"

#include <gtest/gtest.h>

namespace {

CalendarEvent Event(const QString& title, QTime time = {}, const QString& notes = {})
{
  return {1, QDate(2026, 5, 12), title, time, notes};
}

std::string Line(const CalendarEvent& event)
{
  return EventTexts::Line(event).toStdString();
}

std::string Details(const CalendarEvent& event)
{
  return EventTexts::Details(event).toStdString();
}

struct TimeCase
{
  QTime time;
  const char* brief;
  const char* full;
};

const TimeCase kTimes[] = {
    {QTime(0, 0), "12:00am", "12:00 am"},       {QTime(0, 5), "12:05am", "12:05 am"},
    {QTime(1, 0), "1:00am", "1:00 am"},         {QTime(9, 30), "9:30am", "9:30 am"},
    {QTime(11, 59, 59), "11:59am", "11:59 am"}, {QTime(12, 0), "12:00pm", "12:00 pm"},
    {QTime(12, 30), "12:30pm", "12:30 pm"},     {QTime(13, 0), "1:00pm", "1:00 pm"},
    {QTime(21, 30), "9:30pm", "9:30 pm"},       {QTime(23, 59), "11:59pm", "11:59 pm"},
    {QTime(22, 5, 30), "10:05pm", "10:05 pm"},  {QTime(), "", ""},
};

}

TEST(EventTexts, TimesAreWrittenByTheTwelveHourClock)
{
  for (const TimeCase& c : kTimes) {
    EXPECT_EQ(EventTexts::ShortTime(c.time).toStdString(), c.brief);
    EXPECT_EQ(EventTexts::LongTime(c.time).toStdString(), c.full);
  }
}

TEST(EventTexts, ALineBeginsWithABlankAndEndsWithTheTimeOrABlank)
{
  EXPECT_EQ(Line(Event("Dentist", QTime(9, 30))), " Dentist 9:30am");
  EXPECT_EQ(Line(Event("Dentist", QTime(0, 0))), " Dentist 12:00am");
  EXPECT_EQ(Line(Event("Dentist")), " Dentist ");
  EXPECT_EQ(Line(Event("Dentist", {}, "Bring the card")), " Dentist ");
  EXPECT_EQ(Line(Event({}, QTime(9, 30))), "  9:30am");
  EXPECT_EQ(Line(Event({})), "  ");
  EXPECT_EQ(Line(Event(" two  blanks ", QTime(9, 30))), "  two  blanks  9:30am");
}

TEST(EventTexts, TheFourTextsOfTheDetails)
{
  EXPECT_EQ(Details(Event("Dentist")), "Dentist -  No further information available.");
  EXPECT_EQ(Details(Event("Dentist", QTime(21, 30))), "Dentist - 9:30 pm. No further information available.");
  EXPECT_EQ(Details(Event("Dentist", {}, "Bring the card")), "Dentist - Bring the card");
  EXPECT_EQ(Details(Event("Dentist", QTime(21, 30), "Bring the card")), "Dentist - 9:30 pm. Bring the card");
}

TEST(EventTexts, WhatIsWrittenInAnEventStaysAsItIs)
{
  EXPECT_EQ(Details(Event("%1 %2", QTime(9, 0), "%3 %1")), "%1 %2 - 9:00 am. %3 %1");
  EXPECT_EQ(Line(Event("%1 & <b>", QTime(9, 0))), " %1 & <b> 9:00am");
  EXPECT_EQ(Details(Event("A", {}, "one\r\ntwo\n")), "A - one\r\ntwo\n");
  EXPECT_EQ(Details(Event({}, {}, {})), " -  No further information available.");
}
