// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "charts/BarChart.h"

#include "charts/ChartFit.h"
#include "charts/ChartLook.h"
#include "charts/ChartRowsModel.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QGraphicsLayout>
#include <QVBarModelMapper>
#include <QValueAxis>

#include <algorithm>

namespace {

const QFont kTitleFont(QStringLiteral("Arial"), 10, QFont::Bold);

constexpr double kPixelsPerStep = 44;
constexpr double kWidestBar = 64;
constexpr double kShareOfBar = 0.7;   // of the room that it has
constexpr double kShareOfAxis = 0.4;  // of the height; a chart gives no more to its lower axis
constexpr double kTitleRoom = 36;     // of that, for the title and what is between
constexpr double kLongestUpright = 190;
constexpr int kUpright = -90;

void StyleAxis(QAbstractAxis& axis)
{
  axis.setTitleFont(kTitleFont);
  axis.setTitleBrush(ChartLook::kHeading);
  axis.setLabelsFont(ChartLook::LabelFont());
  axis.setLabelsColor(ChartLook::kText);
  axis.setGridLineColor(ChartLook::kGrid);
  axis.setLinePenColor(ChartLook::kLine);
}

double HighestOf(const ChartRows& rows)
{
  const auto below = [](const ChartRow& row, const ChartRow& other) { return row.total < other.total; };
  const auto highest = std::max_element(rows.begin(), rows.end(), below);
  return highest == rows.end() ? 0 : highest->total;
}

double WidestOf(const ChartRows& rows, const QFontMetricsF& metrics)
{
  double widest = 0;
  for (const ChartRow& row : rows) {
    widest = std::max(widest, metrics.horizontalAdvance(row.name));
  }
  return widest;
}

// An axis takes each name once, and reads it as mark-up.
QString Label(const QString& name, const QStringList& others)
{
  QString label = name.toHtmlEscaped();
  while (others.contains(label)) {
    label += QChar(0x200B);
  }
  return label;
}

}

BarChart::BarChart(QWidget* parent)
    : ChartView(parent),
      model_(new ChartRowsModel(this)),
      series_(new QBarSeries(this)),
      names_(new QBarCategoryAxis(this)),
      totals_(new QValueAxis(this))
{
  auto* mapper = new QVBarModelMapper(this);
  mapper->setFirstBarSetColumn(ChartRowsModel::kTotal);
  mapper->setLastBarSetColumn(ChartRowsModel::kTotal);
  mapper->setSeries(series_);
  mapper->setModel(model_);
  for (QAbstractAxis* axis : {static_cast<QAbstractAxis*>(names_), static_cast<QAbstractAxis*>(totals_)}) {
    StyleAxis(*axis);
    axis->setTruncateLabels(false);
  }
  names_->setGridLineVisible(false);
  totals_->setLabelFormat(QStringLiteral("%d"));
  series_->setLabelsPosition(QAbstractBarSeries::LabelsOutsideEnd);
  series_->setLabelsPrecision(15);
  chart()->addSeries(series_);
  chart()->addAxis(names_, Qt::AlignBottom);
  chart()->addAxis(totals_, Qt::AlignLeft);
  series_->attachAxis(names_);
  series_->attachAxis(totals_);
}

void BarChart::Draw(const ChartRows& rows)
{
  ScaleTo(rows);
  Write(rows);
}

void BarChart::ScaleTo(const ChartRows& rows)
{
  const int mostSteps = std::max(2, static_cast<int>(height() / kPixelsPerStep));
  const ChartFit::Scale scale = ChartFit::ScaleFor(HighestOf(rows), mostSteps);
  totals_->setRange(0, scale.top);
  totals_->setTickCount(qRound(scale.top / scale.step) + 1);
  chart()->layout()->activate();
}

void BarChart::Write(const ChartRows& rows)
{
  const QFontMetricsF metrics(ChartLook::LabelFont());
  const double room = chart()->plotArea().width();
  const auto count = static_cast<qsizetype>(rows.size());
  const bool tooMany = count > ChartFit::MostBars(room);
  const ChartFit::Bars bars = ChartFit::BarsFor(count, room, tooMany ? room : WidestOf(rows, metrics));
  shown_ = bars.shown;
  first_ = std::clamp(first_, qsizetype(0), count - shown_);
  ChartRows window(rows.begin() + first_, rows.begin() + first_ + shown_);
  const double upright = std::min(kLongestUpright, height() * kShareOfAxis - kTitleRoom);
  const double longest = bars.upright ? upright : room;
  QStringList names;
  for (const ChartRow& row : window) {
    names.append(Label(metrics.elidedText(row.name, Qt::ElideRight, longest), names));
  }
  names_->setLabelsAngle(bars.upright ? kUpright : 0);
  names_->setCategories(names.isEmpty() ? QStringList(QStringLiteral(" ")) : names);
  model_->SetRows(std::move(window));
  StyleBars(room / static_cast<double>(std::max(shown_, qsizetype(1))));
}

void BarChart::StyleBars(double widthOfOne)
{
  double widest = 0;
  for (const ChartRow& row : model_->Rows()) {
    widest =
        std::max(widest, QFontMetricsF(ChartLook::LabelFont()).horizontalAdvance(QString::number(row.total, 'f', 0)));
  }
  series_->setBarWidth(std::min(kShareOfBar, kWidestBar / widthOfOne));
  series_->setLabelsVisible(widest + 2 <= widthOfOne);
  for (QBarSet* bars : series_->barSets()) {
    bars->setColor(ChartLook::kAccent);
    bars->setBorderColor(ChartLook::kAccent);
    bars->setLabelColor(ChartLook::kText);
    bars->setLabelFont(ChartLook::LabelFont());
  }
}

QString BarChart::TipAt(const QPoint& place) const
{
  const QPointF point = ChartPoint(place);
  const int bar = qRound(chart()->mapToValue(point, series_).x());
  const bool isBar = chart()->plotArea().contains(point) && bar >= 0 && bar < model_->rowCount();
  return isBar ? Caption(model_->Rows()[static_cast<std::size_t>(bar)]) : QString();
}
