// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Characters.h"

#include <gtest/gtest.h>

using Characters::IsBlank;
using Characters::LengthOf;

TEST(Characters, AreThoseOfTheUser)
{
  EXPECT_EQ(LengthOf(""), 0);
  EXPECT_EQ(LengthOf("Ann"), 3);
  EXPECT_EQ(LengthOf(" a "), 3);
  EXPECT_EQ(LengthOf("é"), 1);
  EXPECT_EQ(LengthOf("茶茶"), 2);
  EXPECT_EQ(LengthOf("🎂🎂"), 2);
  EXPECT_EQ(LengthOf(QString(100'000, u'n')), 100'000);
}

TEST(Characters, AnAccentOfItsOwnIsOne)
{
  EXPECT_EQ(LengthOf("e\u0301"), 2);
  EXPECT_EQ(LengthOf("\u00e9"), 1);
}

TEST(Characters, BlankIsNothingButBlanks)
{
  for (const char* text : {"", " ", "            "}) {
    EXPECT_TRUE(IsBlank(text)) << '"' << text << '"';
  }
  for (const char* text : {"a", " a ", "\t", " \n", "\u00a0", "0"}) {
    EXPECT_FALSE(IsBlank(QString::fromUtf8(text))) << '"' << text << '"';
  }
}
