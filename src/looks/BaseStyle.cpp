// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "looks/BaseStyle.h"

#include <QPainter>

namespace {

// Two arrow heads to the right: more stands there than fits.
QIcon MoreIcon()
{
  constexpr int kSide = 16;
  constexpr double kStroke = 1.5;
  QPixmap picture(kSide, kSide);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(0x80, 0x40, 0x00), kStroke));
  for (const double x : {4.0, 8.0}) {
    painter.drawPolyline(QPolygonF({{x, 4}, {x + 4, 8}, {x, 12}}));
  }
  return {picture};
}

}

BaseStyle::BaseStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

QIcon BaseStyle::standardIcon(StandardPixmap standardIcon, const QStyleOption* option, const QWidget* widget) const
{
  return standardIcon == SP_ToolBarHorizontalExtensionButton ? MoreIcon()
                                                             : QProxyStyle::standardIcon(standardIcon, option, widget);
}

int BaseStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returned) const
{
  return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
}
