// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "charts/ChartView.h"

class ChartRowsModel;
class QBarCategoryAxis;
class QBarSeries;
class QValueAxis;

// A row of bars over their names, with titles on both axes. If there are more bars than
// fit, it shows some of them, from the first wanted on.
class BarChart : public ChartView
{
  Q_OBJECT

public:
  explicit BarChart(QWidget* parent);

  void Draw(const ChartRows& rows) override;
  [[nodiscard]] QString TipAt(const QPoint& place) const override;

  // The row that the bars begin with, and how many of the rows they show.
  void SetFirst(qsizetype first) { first_ = first; }
  [[nodiscard]] qsizetype Shown() const { return shown_; }

  [[nodiscard]] QBarSeries& Series() const { return *series_; }
  [[nodiscard]] QBarCategoryAxis& Names() const { return *names_; }
  [[nodiscard]] QValueAxis& Totals() const { return *totals_; }

private:
  void ScaleTo(const ChartRows& rows);
  void Write(const ChartRows& rows);
  void StyleBars(double widthOfOne);

  ChartRowsModel* model_;
  QBarSeries* series_;
  QBarCategoryAxis* names_;
  QValueAxis* totals_;
  qsizetype first_ = 0;
  qsizetype shown_ = 0;
};
