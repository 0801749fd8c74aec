// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QFont>

#include <array>

// The colours and the small print of charts.
namespace ChartLook {

inline constexpr QColor kAccent(0xD1, 0x8C, 0x41);
inline constexpr QColor kHeading(0x80, 0x40, 0x00);
inline constexpr QColor kText(0x3C, 0x2A, 0x14);
inline constexpr QColor kGrid(0xF0, 0xE6, 0xD2);
inline constexpr QColor kLine(0xD9, 0xC4, 0xA0);
inline constexpr QColor kCardLine(0xE9, 0xD9, 0xBC);

// As wide on end as across.
[[nodiscard]] inline QFont LabelFont()
{
  QFont font(QStringLiteral("Arial"), 9);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

// The accent, the brown and four tints between, light and dark by turns.
inline constexpr std::array<QColor, 6> kSlices = {
    QColor(0xD1, 0x8C, 0x41), QColor(0xA0, 0x5E, 0x1A), QColor(0xC1, 0x7D, 0x34),
    QColor(0x90, 0x4F, 0x0D), QColor(0xB1, 0x6E, 0x27), QColor(0x80, 0x40, 0x00),
};

// The colour of a slice; no two neighbours of the circle share one.
[[nodiscard]] inline QColor SliceColour(std::size_t slice, std::size_t count)
{
  const bool meetsTheFirst = slice > 0 && slice + 1 == count && slice % kSlices.size() == 0;
  return kSlices[meetsTheFirst ? 2 : slice % kSlices.size()];
}

}
