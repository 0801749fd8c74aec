// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "charts/CircleChart.h"

#include "charts/ChartLook.h"
#include "charts/ChartRowsModel.h"
#include "charts/Gather.h"

#include <QChart>
#include <QGraphicsPathItem>
#include <QGraphicsSimpleTextItem>
#include <QPieSeries>
#include <QPieSlice>
#include <QVPieModelMapper>

#include <algorithm>

namespace {

constexpr std::size_t kMostSlices = 300;
constexpr std::size_t kMostParted = 60;  // slices with a line between
constexpr double kLeastCircle = 0.52;    // of the smaller side, however long the names are
constexpr double kArm = 8;               // pixels that a line leaves the circle by
constexpr double kGap = 16;              // between the circle and the names
constexpr double kMargin = 6;

double WidestOf(const ChartRows& rows)
{
  const QFontMetricsF metrics(ChartLook::LabelFont());
  double widest = 0;
  for (const ChartRow& row : rows) {
    widest = std::max(widest, metrics.horizontalAdvance(ChartView::Caption(row)));
  }
  return widest;
}

// The total stays when the name is cut.
QString Fitted(const ChartRow& row, double room)
{
  const QFontMetricsF metrics(ChartLook::LabelFont());
  QString caption = ChartView::Caption(row);
  const double tooLong = metrics.horizontalAdvance(caption) - room;
  if (tooLong <= 0) {
    return caption;
  }
  const double name = metrics.horizontalAdvance(row.name) - tooLong;
  return ChartView::Caption({metrics.elidedText(row.name, Qt::ElideRight, name), row.total});
}

}

CircleChart::CircleChart(QWidget* parent)
    : ChartView(parent), model_(new ChartRowsModel(this)), series_(new QPieSeries(this))
{
  auto* mapper = new QVPieModelMapper(this);
  mapper->setLabelsColumn(ChartRowsModel::kName);
  mapper->setValuesColumn(ChartRowsModel::kTotal);
  mapper->setSeries(series_);
  mapper->setModel(model_);
  chart()->addSeries(series_);
}

void CircleChart::Draw(const ChartRows& rows)
{
  ChartRows gathered = Gather(rows, kMostSlices);
  if (gathered != model_->Rows()) {
    // On the chart, each slice that comes would move all others.
    chart()->removeSeries(series_);
    model_->SetRows(std::move(gathered));
    StyleSlices();
    chart()->addSeries(series_);
  }
  PlaceCircle();
  WriteLabels();
}

void CircleChart::StyleSlices()
{
  const QList<QPieSlice*> slices = series_->slices();
  const auto count = static_cast<std::size_t>(slices.size());
  for (std::size_t i = 0; i < count; ++i) {
    QPieSlice& slice = *slices[static_cast<qsizetype>(i)];
    slice.setColor(ChartLook::SliceColour(i, count));
    const bool parted = count > 1 && count <= kMostParted && slice.value() > 0;
    slice.setPen(parted ? QPen(Qt::white) : QPen(Qt::NoPen));
  }
}

void CircleChart::PlaceCircle()
{
  const QRectF room(QPointF(0, 0), QSizeF(size()));
  const double smallerSide = std::min(room.width(), room.height());
  const double across = room.width() - 2 * (WidestOf(model_->Rows()) + 1 + kGap + kMargin);
  const double down = room.height() - 2 * (kArm + kMargin);
  circle_ = {room.center(), std::max(smallerSide * kLeastCircle, std::min(across, down)) / 2};
  chart()->setPlotArea(room);
  series_->setPieSize(2 * circle_.radius / smallerSide);
}

std::vector<CircleLabels::Slice> CircleChart::Slices() const
{
  std::vector<CircleLabels::Slice> slices;
  for (const QPieSlice* slice : series_->slices()) {
    slices.push_back({slice->startAngle(), slice->angleSpan()});
  }
  return slices;
}

void CircleChart::WriteLabels()
{
  delete labels_;
  labels_ = new QGraphicsItemGroup(chart());
  const double line = QFontMetricsF(ChartLook::LabelFont()).height() + 1;
  for (const CircleLabels::Place& place :
       CircleLabels::PlacesOf(Slices(), circle_, kMargin, height() - kMargin, line)) {
    WriteLabel(place);
  }
}

void CircleChart::WriteLabel(const CircleLabels::Place& place)
{
  const double side = place.onTheRight ? 1 : -1;
  const QPointF end(circle_.centre.x() + side * (circle_.radius + kGap - 4), place.height);
  const QPointF outward = (place.edge - circle_.centre) / circle_.radius * kArm;
  QPainterPath path(place.edge);
  path.lineTo(place.edge + outward);
  path.lineTo(end);
  auto* line = new QGraphicsPathItem(path, labels_);
  line->setPen(QPen(ChartLook::kLine, 1));

  const double room = width() - kMargin - (circle_.centre.x() + circle_.radius + kGap);
  auto* text = new QGraphicsSimpleTextItem(Fitted(model_->Rows()[place.slice], room), labels_);
  text->setFont(ChartLook::LabelFont());
  text->setBrush(ChartLook::kText);
  const QRectF extent = text->boundingRect();
  text->setPos(end.x() + (place.onTheRight ? 4 : -4 - extent.width()), place.height - extent.height() / 2);
}

QStringList CircleChart::Labels() const
{
  QStringList texts;
  for (const QGraphicsItem* item : labels_ == nullptr ? QList<QGraphicsItem*>() : labels_->childItems()) {
    if (const auto* text = qgraphicsitem_cast<const QGraphicsSimpleTextItem*>(item)) {
      texts.append(text->text());
    }
  }
  return texts;
}

QString CircleChart::TipAt(const QPoint& place) const
{
  const int slice = CircleLabels::SliceAt(ChartPoint(place), Slices(), circle_);
  return slice < 0 ? QString() : Caption(model_->Rows()[static_cast<std::size_t>(slice)]);
}
