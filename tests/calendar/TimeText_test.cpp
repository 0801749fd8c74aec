// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/EventTexts.h"
#include "calendar/TimeText.h"

#include <QRandomGenerator>

#include <gtest/gtest.h>

namespace {

std::string Read(const QString& text)
{
  const std::optional<QTime> time = ReadTime(text);
  return time ? time->toString(QStringLiteral("HH:mm:ss.zzz")).toStdString() : "none";
}

}

TEST(TimeText, ReadsWhatPeopleType)
{
  const std::pair<const char*, const char*> cases[] = {
      {"9:30 pm", "21:30:00.000"},     {"9:30pm", "21:30:00.000"},       {"9:30PM", "21:30:00.000"},
      {"9:30 PM", "21:30:00.000"},     {"9:30 Pm", "21:30:00.000"},      {"9:30 am", "09:30:00.000"},
      {"9:30AM", "09:30:00.000"},      {"09:30 am", "09:30:00.000"},     {"09:30pm", "21:30:00.000"},
      {"21:30", "21:30:00.000"},       {"09:30", "09:30:00.000"},        {"9:30", "09:30:00.000"},
      {"0:00", "00:00:00.000"},        {"00:00", "00:00:00.000"},        {"0:05", "00:05:00.000"},
      {"12:00", "12:00:00.000"},       {"23:59", "23:59:00.000"},        {"23:59:59", "23:59:59.000"},
      {"21:30:15", "21:30:15.000"},    {"9 pm", "21:00:00.000"},         {"9pm", "21:00:00.000"},
      {"9 AM", "09:00:00.000"},        {"12 am", "00:00:00.000"},        {"12 pm", "12:00:00.000"},
      {"12:00 am", "00:00:00.000"},    {"12:30 am", "00:30:00.000"},     {"12:00 pm", "12:00:00.000"},
      {"12:59:59 pm", "12:59:59.000"}, {"1:00 am", "01:00:00.000"},      {"11:59 pm", "23:59:00.000"},
      {"9:30:15 am", "09:30:15.000"},  {"9:30:15PM", "21:30:15.000"},    {"  9:30 pm  ", "21:30:00.000"},
      {" 21:30", "21:30:00.000"},      {"9:30   pm", "21:30:00.000"},    {"9 pm ", "21:00:00.000"},
      {"\t9:30 pm\n", "21:30:00.000"}, {"9:30\u00a0pm", "21:30:00.000"}, {"9:30\u202fPM", "21:30:00.000"},
      {"01:00", "01:00:00.000"},
  };
  for (const auto& [text, time] : cases) {
    EXPECT_EQ(Read(QString::fromUtf8(text)), time) << '"' << text << '"';
  }
}

TEST(TimeText, RefusesEverythingElse)
{
  const char* const cases[] = {
      "",
      " ",
      "25:00",
      "24:00",
      "9:60 pm",
      "9:60",
      "noonish",
      "noon",
      "9:30 pm tomorrow",
      "tomorrow 9:30 pm",
      "at 9:30",
      "9:30 pm.",
      "9",
      "21",
      "930",
      "0930",
      "930 pm",
      "13 pm",
      "13:00 pm",
      "13:30 am",
      "0:30 am",
      "0:30 pm",
      "0 pm",
      "00 am",
      "9:5",
      "9:5 pm",
      "9:",
      ":30",
      ":",
      "9:30:",
      "9:30:5",
      "9:30:60",
      "9:30:15:00",
      "9:30:15.5",
      "009:30",
      "9:030",
      "-9:30",
      "+9:30",
      "9 :30",
      "9: 30",
      "9:30 p m",
      "9:30 p",
      "9:30 p.m.",
      "9:30 pmm",
      "pm",
      "pm 9:30",
      "am",
      "9:30 xm",
      "9.30 pm",
      "9,30",
      "9;30",
      "9h30",
      "9:30 pm 9:30 pm",
      "9:30 am pm",
      "9:30am/pm",
      "9-30",
      "2026-05-12",
      "12/05/2026 9:30",
      "2026-05-12T09:30",
      "99:99",
      "9:3O",
      "l2:00",
      "٩:٣٠",
      "９:30",
      "9:30 ｐｍ",
      "9:30 вечера",
      "1e1:00",
      "0x9:30",
      "\"9:30 pm\"",
      "9:30 pm\n9:31 pm",
      "null",
  };
  for (const char* text : cases) {
    EXPECT_EQ(Read(QString::fromUtf8(text)), "none") << '"' << text << '"';
  }
  EXPECT_EQ(Read(QString::fromLatin1("9:30\0pm", 7)), "none");
}

TEST(TimeText, ReadsEveryTimeThatTheCalendarWrites)
{
  for (int minute = 0; minute < 24 * 60; ++minute) {
    const QTime time(minute / 60, minute % 60);
    for (const QString& text : {EventTexts::LongTime(time), EventTexts::ShortTime(time)}) {
      ASSERT_EQ(ReadTime(text), time) << text.toStdString();
    }
  }
}

TEST(TimeText, TakesNothingButTimes)
{
  const QString alphabet = QStringLiteral("0123456789::  apmAPM.x");
  QRandomGenerator random(20260512);
  for (int i = 0; i < 20'000; ++i) {
    QString text;
    for (int length = random.bounded(12); length > 0; --length) {
      text += alphabet[random.bounded(static_cast<int>(alphabet.size()))];
    }
    if (const std::optional<QTime> time = ReadTime(text)) {
      ASSERT_TRUE(time->isValid()) << text.toStdString();
      ASSERT_EQ(ReadTime(time->toString(QStringLiteral("HH:mm:ss"))), time) << text.toStdString();
      ASSERT_TRUE(text.contains(u':') || text.contains(u'm', Qt::CaseInsensitive)) << text.toStdString();
    }
  }
}

TEST(TimeText, AnEnormousTextIsRefused)
{
  constexpr int kSize = 10'000'000;
  for (const QString& text : {QString(kSize, u'9'), QString(kSize, u' '), QString(kSize, u':'),
                              QStringLiteral("9:30") + QString(kSize, u' ') + QStringLiteral("x")}) {
    EXPECT_EQ(Read(text), "none");
  }
  EXPECT_EQ(Read(QString(kSize, u' ') + QStringLiteral("9:30 pm") + QString(kSize, u' ')), "21:30:00.000");
}
