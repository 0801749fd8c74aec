// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/TextBox.h"

#include "controls/Repolish.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>

#include <limits>

TextBox::TextBox(QWidget* parent) : QLineEdit(parent)
{
  setMaxLength(std::numeric_limits<int>::max());
}

void TextBox::SetText(const QString& text)
{
  setText(text);
  setCursorPosition(0);
}

// Where the toolkit would paint the text.
QRect TextBox::TextRoom() const
{
  constexpr int kBesideText = 2;
  QStyleOptionFrame box;
  initStyleOption(&box);
  return style()->subElementRect(QStyle::SE_LineEditContents, &box, this).adjusted(kBesideText, 0, -kBesideText, 0);
}

void TextBox::paintEvent(QPaintEvent* event)
{
  const QRect room = TextRoom();
  if (!Locked() || hasFocus() || fontMetrics().horizontalAdvance(text()) <= room.width()) {
    QLineEdit::paintEvent(event);
    return;
  }
  QPainter painter(this);
  QStyleOptionFrame box;
  initStyleOption(&box);
  style()->drawPrimitive(QStyle::PE_PanelLineEdit, &box, &painter, this);
  const Qt::Alignment side = text().isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
  style()->drawItemText(&painter, room, static_cast<int>(side | Qt::AlignVCenter), palette(), isEnabled(),
                        fontMetrics().elidedText(text(), Qt::ElideRight, room.width()), QPalette::Text);
}

void TextBox::SetLocked(bool locked)
{
  if (locked != Locked()) {
    setReadOnly(locked);
    Repolish(*this);
  }
}
