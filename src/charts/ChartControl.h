// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QPointer>
#include <QWidget>

class BarChart;
class CircleChart;
class DataControl;
class QAbstractAxis;
class QScrollBar;

// A chart of the rows of a data control, on a card. What it shows follows each refresh. If
// there are more bars than fit, it scrolls sideways, by bar, wheel and keys.
class ChartControl : public QWidget
{
  Q_OBJECT
  Q_PROPERTY(Kind ChartType READ ChartType WRITE SetChartType)
  Q_PROPERTY(QColor PlotBackColor READ PlotBackColor WRITE SetPlotBackColor)
  Q_PROPERTY(QString XAxisTitle READ XAxisTitle WRITE SetXAxisTitle)
  Q_PROPERTY(QString YAxisTitle READ YAxisTitle WRITE SetYAxisTitle)

public:
  enum Kind
  {
    kBars = 1,
    kCircles = 14,
  };
  Q_ENUM(Kind)

  explicit ChartControl(QWidget* parent = nullptr);

  void SetDataSource(DataControl& source);

  // Bars, as long as nothing else is set.
  [[nodiscard]] Kind ChartType() const { return chartType_; }
  void SetChartType(Kind kind);

  [[nodiscard]] QColor PlotBackColor() const { return plotBackColor_; }
  void SetPlotBackColor(const QColor& color);

  // Circles have no axes, and do not show the titles.
  [[nodiscard]] QString XAxisTitle() const;
  void SetXAxisTitle(const QString& title);
  [[nodiscard]] QString YAxisTitle() const;
  void SetYAxisTitle(const QString& title);

  // All that the chart shows, in words: "Ayr: 3, Bonn: 1".
  [[nodiscard]] QString InWords() const;

  [[nodiscard]] BarChart& Bars() const { return *bars_; }
  [[nodiscard]] CircleChart& Circles() const { return *circles_; }
  [[nodiscard]] QScrollBar& ScrollBar() const { return *scrollBar_; }

protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

private:
  void Follow();
  void Draw();
  void DrawBars();
  void SetTitle(QAbstractAxis& axis, const QString& title);
  void SetShowsFocus(bool shows);
  [[nodiscard]] QRect Inside() const;

  BarChart* bars_;
  CircleChart* circles_;
  QScrollBar* scrollBar_;
  QPointer<DataControl> source_;
  Kind chartType_ = kBars;
  QColor plotBackColor_ = Qt::white;
  int wheel_ = 0;  // turned since the last whole bar
  bool showsFocus_ = false;
};
