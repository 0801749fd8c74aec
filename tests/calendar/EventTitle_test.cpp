// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/EventTitle.h"

#include <gtest/gtest.h>

namespace {

std::string Refusal(const QString& title)
{
  return EventTitle::Refusal(title, QStringLiteral("nothing")).toStdString();
}

const char* const kTooLong = "For proper display, you cannot enter more than 12 letters and spaces";

}

TEST(EventTitle, ThatHoldsNothingButBlanksIsRefused)
{
  for (const char* title : {"", " ", "            ", "             "}) {
    EXPECT_EQ(Refusal(title), "nothing") << '"' << title << '"';
  }
  EXPECT_EQ(EventTitle::Refusal("", "The event field cannot be blank"), "The event field cannot be blank");
}

TEST(EventTitle, OfOneToTwelveCharactersIsTaken)
{
  for (const char* title : {"a", ".", "Dentist", "Twelve chars", "  Dentist   ", " a          ", "\t"}) {
    EXPECT_EQ(Refusal(title), "") << '"' << title << '"';
  }
}

TEST(EventTitle, OfThirteenCharactersIsRefused)
{
  for (const char* title : {"Thirteen char", "            a", "a            ", "A text that is far too long"}) {
    EXPECT_EQ(Refusal(title), kTooLong) << '"' << title << '"';
  }
}

TEST(EventTitle, IsCountedInCharactersOfTheUser)
{
  EXPECT_EQ(Refusal(QString("🎂").repeated(12)), "");
  EXPECT_EQ(Refusal(QString("é").repeated(12)), "");
  EXPECT_EQ(Refusal(QString("🎂").repeated(13)), kTooLong);
}
