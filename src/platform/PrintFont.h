// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFont>

#include <optional>

// A font on paper, with its measures in twips. They are those of the font's design, whatever the
// device and the screen.
class PrintFont
{
public:
  PrintFont(const QString& name, double points, bool bold);

  // To be painted with one unit a twip.
  [[nodiscard]] const QFont& Font() const { return font_; }

  [[nodiscard]] double LineHeight() const { return lineHeight_; }
  // From the top of a line to its base line.
  [[nodiscard]] double Ascent() const { return ascent_; }
  [[nodiscard]] double Width(const QString& text) const;

  // The next tab stop to the right of `x`. Stops stand eight average characters apart.
  [[nodiscard]] double NextTabStop(double x) const;

private:
  QFont font_;
  double lineHeight_;
  double ascent_;
  mutable std::optional<double> tabWidth_;
};
