// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <QSizeF>
#include <QStringList>

#include <vector>

// A printed word, and its upper left corner in twips from the corner of the printable area. The
// top is exact for the program's own font; letters taken from other fonts differ by a little.
struct PrintedWord
{
  QString text;
  int page;
  double x;
  double y;
  double right;
};

// What was printed to a PDF file, as paper shows it. Pages count from 1.
class PrintedPages
{
public:
  // The margins that a document has unless its printer or its user wants others.
  static constexpr double kMargin = 360;

  explicit PrintedPages(const QString& path, double margin = kMargin);

  [[nodiscard]] int Count() const { return static_cast<int>(sizes_.size()); }

  // The paper, in twips.
  [[nodiscard]] QSizeF Size(int page) const { return sizes_.at(static_cast<std::size_t>(page - 1)); }

  [[nodiscard]] const std::vector<PrintedWord>& Words() const { return words_; }

  // The first word of that text; the test fails without it.
  [[nodiscard]] PrintedWord Word(const QString& text) const;

  // The lines of a page from top to bottom, the words of each joined by one blank.
  [[nodiscard]] QStringList Lines(int page) const;

  // The whole paper as a picture.
  [[nodiscard]] QImage Picture(int page, int dotsPerInch = 144) const;

private:
  QString path_;
  std::vector<QSizeF> sizes_;
  std::vector<PrintedWord> words_;
};
