// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QGroupBox>

// A frame around controls that belong together, under a caption, which begins where they
// begin and stands halfway between them and the upper edge, or beside them if they reach up
// to it. With the role "panel" it
// is a card that lies on top of the page: lined, rounded and with a soft shadow.
class GroupBox : public QGroupBox
{
  Q_OBJECT
  Q_PROPERTY(QColor BackColor READ BackColor WRITE SetBackColor)
  Q_PROPERTY(QString role READ Role WRITE SetRole)

public:
  using QGroupBox::QGroupBox;

  // Invalid unless one was set: then a card is white, and other boxes are not painted.
  [[nodiscard]] QColor BackColor() const { return backColor_; }
  void SetBackColor(const QColor& color);
  [[nodiscard]] QString Role() const { return role_; }
  void SetRole(const QString& role);

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  [[nodiscard]] bool IsPanel() const;
  void PaintCard(QPainter& painter) const;
  [[nodiscard]] QRect TitleRoom() const;

  QColor backColor_;
  QString role_;
};
