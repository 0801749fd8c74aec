// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "charts/ChartView.h"
#include "charts/CircleLabels.h"

class ChartRowsModel;
class QPieSeries;

// A circle with a slice for each row, and names beside as many slices as there is room
// for. The smallest of very many rows share one slice.
class CircleChart : public ChartView
{
  Q_OBJECT

public:
  explicit CircleChart(QWidget* parent);

  void Draw(const ChartRows& rows) override;
  [[nodiscard]] QString TipAt(const QPoint& place) const override;

  [[nodiscard]] QPieSeries& Series() const { return *series_; }

  // The names beside the circle.
  [[nodiscard]] QStringList Labels() const;

private:
  void StyleSlices();
  void PlaceCircle();
  void WriteLabels();
  void WriteLabel(const CircleLabels::Place& place);
  [[nodiscard]] std::vector<CircleLabels::Slice> Slices() const;

  ChartRowsModel* model_;
  QPieSeries* series_;
  QGraphicsItem* labels_ = nullptr;
  CircleLabels::Circle circle_;
};
