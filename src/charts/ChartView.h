// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "charts/ChartRow.h"

#include <QChartView>

// One kind of chart on the screen, bound to rows of its own.
class ChartView : public QChartView
{
public:
  explicit ChartView(QWidget* parent);

  // Draws the rows anew, in its present size.
  virtual void Draw(const ChartRows& rows) = 0;

  // What the chart says of a place: the name there with its total, or nothing.
  [[nodiscard]] virtual QString TipAt(const QPoint& place) const = 0;

  void SetPlotBackColor(const QColor& color);

  // "Ayr: 3"
  [[nodiscard]] static QString Caption(const ChartRow& row);

protected:
  bool viewportEvent(QEvent* event) override;
  [[nodiscard]] QPointF ChartPoint(const QPoint& place) const;
};
