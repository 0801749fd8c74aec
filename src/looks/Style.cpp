// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "looks/Style.h"

#include "looks/BaseStyle.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QPalette>

static void LoadResources()
{
  Q_INIT_RESOURCE(looks);
}

namespace Style {
namespace {

QPalette Palette()
{
  const QColor accent(0xD1, 0x8C, 0x41);
  QPalette palette(QColor(0xFF, 0xFA, 0xEE));
  palette.setColor(QPalette::WindowText, Qt::black);
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::ButtonText, Qt::black);
  palette.setColor(QPalette::Base, QColor(0xFF, 0xFD, 0xF7));
  palette.setColor(QPalette::Highlight, accent);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::PlaceholderText, QColor(0x7A, 0x68, 0x50));
  palette.setColor(QPalette::ToolTipBase, QColor(0xFF, 0xF7, 0xD3));
  palette.setColor(QPalette::ToolTipText, Qt::black);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, QColor(0x9C, 0x8D, 0x7A));
  }
  return palette;
}

}

void Apply(QApplication& application)
{
  LoadResources();
  QApplication::setStyle(new BaseStyle);
  QApplication::setPalette(Palette());
  QApplication::setFont(QFont(QStringLiteral("Arial"), 10));
  QFile sheet(QStringLiteral(":/looks/quillmark.qss"));
  if (sheet.open(QIODevice::ReadOnly)) {
    application.setStyleSheet(QString::fromUtf8(sheet.readAll()));
  }
}

}
