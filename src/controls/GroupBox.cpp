// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/GroupBox.h"

#include "controls/Label.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace {

constexpr int kShadow = 4;  // pixels that the shadow takes at the right and below
constexpr int kCornerRadius = 6;
const QColor kLine(0xE9, 0xD9, 0xBC);
const QColor kShade(0x5A, 0x33, 0x10, 0x0C);

}

void GroupBox::SetBackColor(const QColor& color)
{
  backColor_ = color;
  update();
}

void GroupBox::SetRole(const QString& role)
{
  role_ = role;
}

bool GroupBox::IsPanel() const
{
  return role_ == QLatin1String("panel");
}

void GroupBox::PaintCard(QPainter& painter) const
{
  const QRectF card = QRectF(rect()).adjusted(0.5, 0.5, -kShadow - 0.5, -kShadow - 0.5);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(kShade);
  for (int step = kShadow; step > 0; --step) {
    painter.drawRoundedRect(card.adjusted(step - 1, step - 1, step - 1, step - 1), kCornerRadius, kCornerRadius);
  }
  painter.setPen(kLine);
  painter.setBrush(backColor_.isValid() ? backColor_ : QColor(Qt::white));
  painter.drawRoundedRect(card, kCornerRadius, kCornerRadius);
}

// Above the controls, or as high as those that stand at the upper edge.
QRect GroupBox::TitleRoom() const
{
  QRect room = rect();
  int beside = height();
  room.setLeft(width());
  for (const QWidget* control : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    const auto* label = qobject_cast<const Label*>(control);
    room.setLeft(std::min(room.left(), control->x() + (label == nullptr ? 0 : label->TextInset())));
    if (control->y() > 0) {
      room.setBottom(std::min(room.bottom(), control->y()));
    } else {
      beside = std::min(beside, control->height());
    }
  }
  room.setBottom(std::min(room.bottom(), beside));
  return room;
}

void GroupBox::paintEvent(QPaintEvent*)
{
  QPainter painter(this);
  if (IsPanel()) {
    PaintCard(painter);
  } else if (backColor_.isValid()) {
    painter.fillRect(rect(), backColor_);
  }
  style()->drawItemText(&painter, TitleRoom(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                        title().trimmed(), QPalette::WindowText);
}
