// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Clock.h"

#include <gtest/gtest.h>

TEST(Clock, TellsTheDateOfToday)
{
  const QDate before = QDate::currentDate();
  const QDate today = Clock::Today();
  const QDate after = QDate::currentDate();
  EXPECT_GE(today, before);
  EXPECT_LE(today, after);
}

TEST(Clock, StandsOnTheDateItIsStoppedOn)
{
  for (const QDate date : {QDate(2004, 2, 29), QDate(1999, 12, 31), QDate(2000, 1, 1)}) {
    Clock::StopOn(date);
    EXPECT_EQ(Clock::Today(), date);
  }
  Clock::StopOn({});
}

TEST(Clock, RunsAgainWithAnInvalidDate)
{
  const QDate before = QDate::currentDate();
  Clock::StopOn(QDate(1931, 5, 7));
  Clock::StopOn(QDate(2003, 2, 29));
  EXPECT_GE(Clock::Today(), before);
}
