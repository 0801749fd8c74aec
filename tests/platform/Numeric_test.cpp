// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Numeric.h"
#include "platform/RuntimeError.h"
#include "support/ErrorOf.h"

#include <gtest/gtest.h>

TEST(Numeric, NumbersAreKnown)
{
  for (const char* text : {"0",     "5",  "31",  "007",     "-3",     "+3",         "5.5",
                           ".5",    "5.", "-.5", "1e1",     "1E1",    "1e+2",       "1e-2",
                           "2.5E3", " 7", "7 ",  "   7   ", " -7.5 ", "2147483648", "99999999999999999999",
                           "1e300"}) {
    EXPECT_TRUE(IsNumeric(text)) << '"' << text << '"';
  }
}

TEST(Numeric, OtherTextsAreNone)
{
  for (const char* text :
       {"",    " ",     "abc",   "5a",  "a5",   "5 5", "1e",  "e1",       "1e1.5", ".",    "-",     "+", "--1",
        "+-1", "1.2.3", "1e1e1", "inf", "-inf", "nan", "NaN", "infinity", "1,5",   "0x1F", "1_000", "½", "May"}) {
    EXPECT_FALSE(IsNumeric(text)) << '"' << text << '"';
  }
}

TEST(Numeric, TheNearestWholeNumberIsTaken)
{
  const struct
  {
    const char* text;
    int number;
  } kCases[] = {
      {"5", 5},         {" 7 ", 7},     {"-3", -3}, {"+3", 3},  {"007", 7},   {"1e1", 10},
      {"1.95e3", 1950}, {"19e2", 1900}, {"5.4", 5}, {"5.6", 6}, {"-5.6", -6}, {"0.4", 0},
      {"31.49", 31},    {"99e-1", 10},  {"0", 0},   {"-0", 0},  {"5.", 5},    {"1e-300", 0},
  };
  for (const auto& [text, number] : kCases) {
    EXPECT_EQ(ToInteger(text), number) << '"' << text << '"';
  }
}

TEST(Numeric, AHalfGoesToTheEvenNumber)
{
  const struct
  {
    const char* text;
    int number;
  } kCases[] = {{"0.5", 0}, {"1.5", 2},   {"2.5", 2},   {"3.5", 4},       {".5", 0},
                {"-.5", 0}, {"-1.5", -2}, {"-2.5", -2}, {"1899.5", 1900}, {"2050.5", 2050}};
  for (const auto& [text, number] : kCases) {
    EXPECT_EQ(ToInteger(text), number) << '"' << text << '"';
  }
}

TEST(Numeric, TheRangeIsThatOf32Bits)
{
  EXPECT_EQ(ToInteger("2147483647"), 2147483647);
  EXPECT_EQ(ToInteger("2147483647.4"), 2147483647);
  EXPECT_EQ(ToInteger("-2147483648"), -2147483647 - 1);
  EXPECT_EQ(ToInteger("-2147483648.5"), -2147483647 - 1);
  for (const char* text : {"2147483648", "2147483647.5", "-2147483649", "4294967296", "4294967300", "1e10", "-1e10",
                           "99999999999999999999", "1e300"}) {
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(ToInteger(text)); }), ErrorNumber::kOverflow) << text;
  }
}

TEST(Numeric, WhatIsNoNumberIsRefused)
{
  for (const char* text : {"", " ", "abc", "5a", "1e", ".", "-", "inf", "nan", "1,5", "0x1F"}) {
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(ToInteger(text)); }), ErrorNumber::kTypeMismatch) << '"' << text << '"';
  }
}

TEST(Numeric, ANumberBeyondAllMeasureIsNone)
{
  for (const char* text : {"1e400", "-1e400"}) {
    EXPECT_FALSE(IsNumeric(text)) << text;
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(ToInteger(text)); }), ErrorNumber::kTypeMismatch) << text;
  }
}
