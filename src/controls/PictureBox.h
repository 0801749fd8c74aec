// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QPixmap>
#include <QWidget>

// A box that shows a picture as large as it fits, centred, on its own back colour or
// on what is behind it.
class PictureBox : public QWidget
{
  Q_OBJECT
  Q_PROPERTY(QColor BackColor READ BackColor WRITE SetBackColor)
  Q_PROPERTY(QPixmap Picture READ Picture WRITE SetPicture)

public:
  explicit PictureBox(QWidget* parent = nullptr);

  // Invalid, and not painted, unless one was set.
  [[nodiscard]] QColor BackColor() const { return backColor_; }
  void SetBackColor(const QColor& color);

  // A null picture empties the box.
  [[nodiscard]] const QPixmap& Picture() const { return picture_; }
  void SetPicture(const QPixmap& picture);

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  QColor backColor_;
  QPixmap picture_;
};
