// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPixmap>
#include <QWidget>

// A picture on a page. It takes the picture's own size, or stretches the picture to its own.
class Image : public QWidget
{
  Q_OBJECT
  Q_PROPERTY(bool Stretch READ Stretch WRITE SetStretch)

public:
  explicit Image(QWidget* parent = nullptr);

  [[nodiscard]] const QPixmap& Picture() const { return picture_; }
  void SetPicture(const QPixmap& picture);

  // Another number for another picture, 0 for the empty one.
  [[nodiscard]] qint64 Handle() const { return picture_.isNull() ? 0 : picture_.cacheKey(); }

  [[nodiscard]] bool Stretch() const { return stretch_; }
  void SetStretch(bool stretch);

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  void TakePicturesSize();

  QPixmap picture_;
  QPixmap shown_;  // the picture at the size of the control
  bool stretch_ = false;
};
