// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/Shape.h"

#include <QPainter>

#include <algorithm>

Shape::Shape(QWidget* parent) : QWidget(parent)
{
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Shape::SetFigure(Figure figure)
{
  figure_ = figure;
  update();
}

void Shape::SetFillStyle(int style)
{
  fillStyle_ = style;
  update();
}

void Shape::SetFillColor(const QColor& color)
{
  fillColor_ = color;
  update();
}

void Shape::SetLineColor(const QColor& color)
{
  lineColor_ = color;
  update();
}

void Shape::paintEvent(QPaintEvent*)
{
  constexpr qreal kRadius = 6;
  QPainter painter(this);
  if (figure_ == Hairline) {
    painter.fillRect(width() > height() ? QRect(0, 0, width(), 1) : QRect(0, 0, 1, height()), fillColor_);
    return;
  }
  painter.setRenderHint(QPainter::Antialiasing, figure_ != Rectangle);
  painter.setPen(lineColor_.isValid() ? QPen(lineColor_) : QPen(Qt::NoPen));
  painter.setBrush(fillStyle_ == kSolid ? QBrush(fillColor_) : QBrush(Qt::NoBrush));
  const qreal inset = lineColor_.isValid() ? 0.5 : 0;
  const QRectF area = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
  if (figure_ == Circle) {
    const qreal radius = std::min(area.width(), area.height()) / 2;
    painter.drawEllipse(area.center(), radius, radius);
  } else if (figure_ == RoundedRectangle) {
    painter.drawRoundedRect(area, kRadius, kRadius);
  } else {
    painter.drawRect(area);
  }
}
