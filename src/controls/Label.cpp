// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/Label.h"

#include "controls/LabelAccess.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <array>

namespace {

constexpr int kCornerRadius = 4;
const QColor kFocusLine(0x80, 0x40, 0x00);

bool CameByKeyboard(Qt::FocusReason reason)
{
  return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

}

Label::Label(QWidget* parent) : QLabel(parent)
{
  LabelAccess::Install();
  setTextFormat(Qt::PlainText);
}

void Label::SetBackStyle(int style)
{
  if (backStyle_ != style) {
    backStyle_ = style;
    update();
  }
}

void Label::SetBackColor(const QColor& color)
{
  backColor_ = color;
  update();
}

QColor Label::ForeColor() const
{
  return foreColor_.isValid() ? foreColor_ : palette().color(QPalette::Active, QPalette::WindowText);
}

void Label::SetForeColor(const QColor& color)
{
  foreColor_ = color;
  update();
}

void Label::SetFontUnderline(bool underline)
{
  QFont changed = font();
  changed.setUnderline(underline);
  setFont(changed);
}

void Label::SetRole(const QString& role)
{
  role_ = role;
  setFocusPolicy(IsCommand() ? Qt::TabFocus : Qt::NoFocus);
}

bool Label::IsCommand() const
{
  static constexpr std::array kRoles = {"command", "month", "choice", "day"};
  return std::any_of(kRoles.begin(), kRoles.end(), [this](const char* role) { return role_ == QLatin1String(role); });
}

void Label::mousePressEvent(QMouseEvent* event)
{
  pressed_ = event->button() == Qt::LeftButton;
}

void Label::mouseReleaseEvent(QMouseEvent* event)
{
  const bool clicked = pressed_ && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint());
  pressed_ = false;
  if (clicked) {
    Q_EMIT Click();
  }
}

void Label::keyPressEvent(QKeyEvent* event)
{
  const int key = event->key();
  if (IsCommand() && !event->isAutoRepeat() &&
      (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter)) {
    Q_EMIT Click();
    return;
  }
  QLabel::keyPressEvent(event);
}

void Label::focusInEvent(QFocusEvent* event)
{
  showsFocus_ = CameByKeyboard(event->reason());
  update();
}

void Label::focusOutEvent(QFocusEvent*)
{
  showsFocus_ = false;
  update();
}

void Label::paintEvent(QPaintEvent*)
{
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (backStyle_ == kOpaque) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(backColor_);
    painter.drawRoundedRect(rect(), kCornerRadius, kCornerRadius);
  }
  PaintText(painter);
  if (showsFocus_) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(kFocusLine, 1, Qt::DotLine));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCornerRadius, kCornerRadius);
  }
}

// Grows with a label that grows with its page.
int Label::TextInset() const
{
  constexpr int kInset = 8;
  constexpr int kUsualHeight = 28;
  return role_ == QLatin1String("command") ? std::max(kInset, height() * kInset / kUsualHeight) : 0;
}

void Label::PaintText(QPainter& painter) const
{
  const int inset = TextInset();
  const int flags = static_cast<int>(alignment()) | (wordWrap() ? Qt::TextWordWrap : Qt::TextSingleLine);
  QPalette colors = palette();
  colors.setColor(QPalette::Active, QPalette::WindowText, ForeColor());
  colors.setColor(QPalette::Inactive, QPalette::WindowText, ForeColor());
  const QRect room = rect().adjusted(inset, 0, -inset, 0);
  const QString caption = role_ == QLatin1String("details") ? text() : text().trimmed();
  const QString shown = wordWrap() ? caption : fontMetrics().elidedText(caption, Qt::ElideRight, room.width());
  style()->drawItemText(&painter, room, flags, colors, isEnabled(), shown, QPalette::WindowText);
}
