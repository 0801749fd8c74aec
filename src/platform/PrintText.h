// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <vector>

class PrintFont;

// A piece of a text between tabs and line breaks, and where it stands.
struct PrintPiece
{
  QString text;
  double x;
  int line;
};

// A text to print, cut into its pieces. `lines` counts its line breaks and one, `endX` is where
// its last line ends, `width` how far its widest line reaches.
struct PrintText
{
  std::vector<PrintPiece> pieces;
  int lines = 1;
  double endX = 0;
  double width = 0;
};

// Cuts a text whose first line begins at `x`; the others begin at 0. Of carriage return and line
// feed, both together or either alone break the line. Other control characters are left out.
[[nodiscard]] PrintText CutForPrinting(const QString& text, const PrintFont& font, double x);
