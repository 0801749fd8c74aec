// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "charts/ChartControl.h"

#include "charts/BarChart.h"
#include "charts/ChartAccess.h"
#include "charts/ChartLook.h"
#include "charts/CircleChart.h"
#include "charts/DataControl.h"

#include <QAbstractAxis>
#include <QAccessible>
#include <QBarCategoryAxis>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QValueAxis>
#include <QWheelEvent>

namespace {

constexpr int kMargin = 8;
constexpr int kScrollBarHeight = 12;
constexpr double kCornerRadius = 6;
constexpr int kWheelPerBar = QWheelEvent::DefaultDeltasPerStep / 3;

QAbstractSlider::SliderAction ActionOf(int key)
{
  switch (key) {
    case Qt::Key_Left:
      return QAbstractSlider::SliderSingleStepSub;
    case Qt::Key_Right:
      return QAbstractSlider::SliderSingleStepAdd;
    case Qt::Key_PageUp:
      return QAbstractSlider::SliderPageStepSub;
    case Qt::Key_PageDown:
      return QAbstractSlider::SliderPageStepAdd;
    case Qt::Key_Home:
      return QAbstractSlider::SliderToMinimum;
    case Qt::Key_End:
      return QAbstractSlider::SliderToMaximum;
    default:
      return QAbstractSlider::SliderNoAction;
  }
}

}

ChartControl::ChartControl(QWidget* parent)
    : QWidget(parent),
      bars_(new BarChart(this)),
      circles_(new CircleChart(this)),
      scrollBar_(new QScrollBar(Qt::Horizontal, this))
{
  ChartAccess::Install();
  setFocusPolicy(Qt::TabFocus);
  circles_->hide();
  scrollBar_->setFocusPolicy(Qt::NoFocus);
  scrollBar_->setRange(0, 0);
  scrollBar_->hide();
  connect(scrollBar_, &QScrollBar::valueChanged, this, &ChartControl::Draw);
}

void ChartControl::SetDataSource(DataControl& source)
{
  source_ = &source;
  connect(&source, &DataControl::Refreshed, this, &ChartControl::Follow);
}

void ChartControl::SetChartType(Kind kind)
{
  chartType_ = kind;
  bars_->setVisible(kind == kBars);
  circles_->setVisible(kind == kCircles);
  Draw();
}

void ChartControl::SetPlotBackColor(const QColor& color)
{
  plotBackColor_ = color;
  bars_->SetPlotBackColor(color);
  circles_->SetPlotBackColor(color);
  update();
}

QString ChartControl::XAxisTitle() const
{
  return bars_->Names().titleText();
}

void ChartControl::SetXAxisTitle(const QString& title)
{
  SetTitle(bars_->Names(), title);
}

QString ChartControl::YAxisTitle() const
{
  return bars_->Totals().titleText();
}

void ChartControl::SetYAxisTitle(const QString& title)
{
  SetTitle(bars_->Totals(), title);
}

// A title that comes or goes changes the room of the bars.
void ChartControl::SetTitle(QAbstractAxis& axis, const QString& title)
{
  const bool hadOne = !axis.titleText().isEmpty();
  axis.setTitleText(title);
  if (hadOne == title.isEmpty()) {
    Draw();
  }
}

QString ChartControl::InWords() const
{
  QStringList captions;
  if (source_) {
    for (const ChartRow& row : source_->Rows()) {
      captions.append(ChartView::Caption(row));
    }
  }
  return captions.join(QLatin1String(", "));
}

void ChartControl::Follow()
{
  const QSignalBlocker quiet(scrollBar_);
  scrollBar_->setValue(0);
  Draw();
  QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&changed);
}

// What nobody sees is drawn when it comes to be seen.
void ChartControl::Draw()
{
  if (!isVisible() || !source_ || Inside().isEmpty()) {
    return;
  }
  if (chartType_ == kBars) {
    DrawBars();
  } else {
    scrollBar_->hide();
    circles_->Draw(source_->Rows());
  }
}

void ChartControl::DrawBars()
{
  bars_->SetFirst(scrollBar_->value());
  bars_->Draw(source_->Rows());
  const auto hidden = static_cast<int>(static_cast<qsizetype>(source_->Rows().size()) - bars_->Shown());
  const QSignalBlocker quiet(scrollBar_);
  scrollBar_->setRange(0, hidden);
  scrollBar_->setPageStep(static_cast<int>(bars_->Shown()));
  scrollBar_->setVisible(hidden > 0);
}

QRect ChartControl::Inside() const
{
  return rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
}

void ChartControl::resizeEvent(QResizeEvent* event)
{
  QWidget::resizeEvent(event);
  const QRect inside = Inside();
  if (inside.isEmpty()) {
    return;
  }
  circles_->setGeometry(inside);
  bars_->setGeometry(inside.adjusted(0, 0, 0, -kScrollBarHeight));
  scrollBar_->setGeometry(inside.left(), inside.bottom() + 1 - kScrollBarHeight, inside.width(), kScrollBarHeight);
  Draw();
}

void ChartControl::showEvent(QShowEvent* event)
{
  QWidget::showEvent(event);
  Draw();
}

void ChartControl::paintEvent(QPaintEvent*)
{
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(showsFocus_ ? QPen(ChartLook::kHeading, 1, Qt::DotLine) : QPen(ChartLook::kCardLine));
  painter.setBrush(plotBackColor_);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCornerRadius, kCornerRadius);
}

void ChartControl::keyPressEvent(QKeyEvent* event)
{
  const QAbstractSlider::SliderAction action = ActionOf(event->key());
  if (action == QAbstractSlider::SliderNoAction || scrollBar_->isHidden()) {
    QWidget::keyPressEvent(event);
    return;
  }
  scrollBar_->triggerAction(action);
}

// A wheel may come in many small turns.
void ChartControl::wheelEvent(QWheelEvent* event)
{
  if (scrollBar_->isHidden()) {
    QWidget::wheelEvent(event);
    return;
  }
  wheel_ += event->angleDelta().x() + event->angleDelta().y();
  const int bars = wheel_ / kWheelPerBar;
  wheel_ -= bars * kWheelPerBar;
  scrollBar_->setValue(scrollBar_->value() - bars);
}

void ChartControl::focusInEvent(QFocusEvent*)
{
  SetShowsFocus(true);
}

void ChartControl::focusOutEvent(QFocusEvent*)
{
  SetShowsFocus(false);
}

void ChartControl::SetShowsFocus(bool shows)
{
  showsFocus_ = shows;
  update();
}
