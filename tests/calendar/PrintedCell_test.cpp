// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/PrintedCell.h"

#include <gtest/gtest.h>

namespace {

TEST(PrintedCell, HoldsUpToFourEventsAndOfMoreTheFirstThree)
{
  EXPECT_EQ(PrintedCell::Lines({}), QStringList());
  EXPECT_EQ(PrintedCell::Lines({"a"}), QStringList({"a"}));
  EXPECT_EQ(PrintedCell::Lines({"a", "b", "c", "d"}), QStringList({"a", "b", "c", "d"}));
  EXPECT_EQ(PrintedCell::Lines({"a", "b", "c", "d", "e"}), QStringList({"a", "b", "c", " more..."}));
  EXPECT_EQ(PrintedCell::Lines({"a", "b", "c", "d", "e", "f"}), QStringList({"a", "b", "c", " more..."}));
}

TEST(PrintedCell, LosesItsTimeInPortrait)
{
  const std::pair<const char*, const char*> cases[] = {
      {" Dentist 9:30pm", " Dentist"},
      {" Dentist 12:30pm", " Dentist "},
      {" Dentist ", " Dentist "},
      {" At 5:00 tea ", " At 5:00 tea "},
      {" A:B 9:30pm", " A:B 9:30pm"},
      {"", ""},
      {"ab", "ab"},
      {"abcd", "abcd"},
      {" :aaa ", ""},
      {" Tea: now", " T"},
  };
  for (const auto& [line, printed] : cases) {
    EXPECT_EQ(PrintedCell::WithoutTime(line).toStdString(), printed) << line;
  }
}

}
