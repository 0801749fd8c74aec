// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QWidget>

// A plain figure on a page. The mouse goes through it.
class Shape : public QWidget
{
  Q_OBJECT
  Q_PROPERTY(Figure figure READ GetFigure WRITE SetFigure)
  Q_PROPERTY(int FillStyle READ FillStyle WRITE SetFillStyle)
  Q_PROPERTY(QColor FillColor READ FillColor WRITE SetFillColor)
  Q_PROPERTY(QColor LineColor READ LineColor WRITE SetLineColor)

public:
  enum Figure
  {
    Rectangle,
    Circle,
    RoundedRectangle,
    Hairline,  // one pixel thick along the longer side, however thick its place is
  };
  Q_ENUM(Figure)

  static constexpr int kSolid = 0;
  static constexpr int kHollow = 1;

  explicit Shape(QWidget* parent = nullptr);

  [[nodiscard]] Figure GetFigure() const { return figure_; }
  void SetFigure(Figure figure);
  // kHollow leaves out the fill.
  [[nodiscard]] int FillStyle() const { return fillStyle_; }
  void SetFillStyle(int style);
  [[nodiscard]] QColor FillColor() const { return fillColor_; }
  void SetFillColor(const QColor& color);
  // Invalid for no line.
  [[nodiscard]] QColor LineColor() const { return lineColor_; }
  void SetLineColor(const QColor& color);

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  Figure figure_ = Rectangle;
  int fillStyle_ = kSolid;
  QColor fillColor_ = Qt::black;
  QColor lineColor_;
};
