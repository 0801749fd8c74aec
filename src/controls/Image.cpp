// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/Image.h"

#include <QPainter>

Image::Image(QWidget* parent) : QWidget(parent) {}

void Image::SetPicture(const QPixmap& picture)
{
  picture_ = picture;
  shown_ = QPixmap();
  TakePicturesSize();
  update();
}

void Image::SetStretch(bool stretch)
{
  stretch_ = stretch;
  TakePicturesSize();
}

void Image::TakePicturesSize()
{
  if (!stretch_ && !picture_.isNull()) {
    resize(picture_.size());
  }
}

void Image::paintEvent(QPaintEvent*)
{
  if (picture_.isNull()) {
    return;
  }
  const QSize wanted = size() * devicePixelRatio();
  if (shown_.size() != wanted) {
    shown_ = picture_.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }
  QPainter painter(this);
  painter.drawPixmap(rect(), shown_);
}
