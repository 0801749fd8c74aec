// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Printer.h"

#include <array>

// Where a printed month stands on its page, in twips.
struct PageGeometry
{
  Printer::PageOrientation orientation;
  int columnWidth;
  std::array<int, 7> weekdays;  // left of the name of each
  bool listOnNewPage;
  int listHeader;              // top of the heads of the list
  std::array<int, 4> columns;  // left of "Date", "Event", "Time" and "Details"
  int firstListLine;
  int detailsWidth;  // at most

  static constexpr int kLeft = 650;
  static constexpr int kTop = 2450;
  static constexpr int kRowHeight = 1300;
  static constexpr int kRows = 6;
  static constexpr int kColumns = 7;
  static constexpr int kWeekdays = 2100;  // top of the names

  [[nodiscard]] constexpr int Right() const { return kLeft + kColumns * columnWidth; }
  [[nodiscard]] static constexpr int Bottom() { return kTop + kRows * kRowHeight; }
};

inline constexpr PageGeometry kLandscapePage = {Printer::PageOrientation::kLandscape,
                                                2000,
                                                {1200, 3300, 5150, 7000, 9200, 11300, 13100},
                                                true,
                                                1000,
                                                {1100, 2500, 4500, 6000},
                                                1300,
                                                9000};

inline constexpr PageGeometry kPortraitPage = {Printer::PageOrientation::kPortrait,
                                               1500,
                                               {970, 2450, 3870, 5280, 6850, 8550, 9850},
                                               false,
                                               10500,
                                               {700, 1400, 3400, 4400},
                                               10800,
                                               7000};
