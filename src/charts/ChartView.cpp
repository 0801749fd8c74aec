// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "charts/ChartView.h"

#include "looks/modToolTips.h"

#include <QChart>
#include <QCoreApplication>
#include <QGraphicsLayout>
#include <QHelpEvent>
#include <QToolTip>

namespace {

// A name may look like mark-up, which a tip would read.
QString AsItStands(const QString& text)
{
  return QStringLiteral("<p style='white-space:pre'>%1</p>").arg(text.toHtmlEscaped());
}

}

ChartView::ChartView(QWidget* parent) : QChartView(parent)
{
  setFrameShape(QFrame::NoFrame);
  setBackgroundBrush(Qt::NoBrush);
  viewport()->setAutoFillBackground(false);
  setRenderHint(QPainter::Antialiasing);
  setFocusPolicy(Qt::NoFocus);
  chart()->setBackgroundVisible(false);
  chart()->setBackgroundRoundness(0);
  chart()->setPlotAreaBackgroundVisible(true);
  chart()->setPlotAreaBackgroundPen(Qt::NoPen);
  chart()->setMargins({});
  chart()->layout()->setContentsMargins(0, 0, 0, 0);
  chart()->legend()->hide();
}

void ChartView::SetPlotBackColor(const QColor& color)
{
  chart()->setPlotAreaBackgroundBrush(color);
}

QString ChartView::Caption(const ChartRow& row)
{
  const QString total = QString::number(row.total, 'f', 0);
  return row.name.isEmpty() ? total : row.name + QLatin1String(": ") + total;
}

QPointF ChartView::ChartPoint(const QPoint& place) const
{
  return chart()->mapFromScene(mapToScene(place));
}

bool ChartView::viewportEvent(QEvent* event)
{
  if (event->type() == QEvent::Wheel) {
    return QCoreApplication::sendEvent(parentWidget(), event);
  }
  if (event->type() != QEvent::ToolTip) {
    return QChartView::viewportEvent(event);
  }
  const auto* help = static_cast<QHelpEvent*>(event);
  const QString tip = modToolTips::TipsOff() ? QString() : TipAt(help->pos());
  QToolTip::showText(help->globalPos(), tip.isEmpty() ? tip : AsItStands(tip), viewport());
  return true;
}
