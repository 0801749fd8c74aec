// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/PictureBox.h"

#include <QPainter>

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {}

void PictureBox::SetBackColor(const QColor& color)
{
  backColor_ = color;
  update();
}

void PictureBox::SetPicture(const QPixmap& picture)
{
  picture_ = picture;
  update();
}

void PictureBox::paintEvent(QPaintEvent*)
{
  QPainter painter(this);
  if (backColor_.isValid()) {
    painter.fillRect(rect(), backColor_);
  }
  if (picture_.isNull()) {
    return;
  }
  QRect place(QPoint(), picture_.size().scaled(size(), Qt::KeepAspectRatio));
  place.moveCenter(rect().center());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawPixmap(place, picture_);
}
