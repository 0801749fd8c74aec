// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/MultiLineTextBox.h"

#include "controls/Repolish.h"

#include <QAbstractTextDocumentLayout>
#include <QMimeData>

#include <algorithm>

namespace {

constexpr qsizetype kLongestWrapped = 50'000;

bool HasEnormousLine(const QString& text)
{
  qsizetype begin = 0;
  while (text.size() - begin > kLongestWrapped) {
    const qsizetype end = text.lastIndexOf(QLatin1Char('\n'), begin + kLongestWrapped);
    if (end < begin) {
      return true;
    }
    begin = end + 1;
  }
  return false;
}

}

MultiLineTextBox::MultiLineTextBox(QWidget* parent) : QPlainTextEdit(parent)
{
  setTabChangesFocus(true);
}

void MultiLineTextBox::SetText(const QString& text)
{
  set_ = text;
  const bool wraps = !HasEnormousLine(text);
  if (!wraps) {
    setLineWrapMode(NoWrap);
  }
  setPlainText(text);
  if (wraps) {
    setLineWrapMode(WidgetWidth);
  }
  StandAtLowerEdge();
}

void MultiLineTextBox::resizeEvent(QResizeEvent* event)
{
  QPlainTextEdit::resizeEvent(event);
  StandAtLowerEdge();
}

void MultiLineTextBox::StandAtLowerEdge()
{
  if (property("role") != QLatin1String("caption")) {
    return;
  }
  document()->setDocumentMargin(0);
  const int lines = qRound(document()->documentLayout()->documentSize().height());
  const int room = viewport()->height() + viewportMargins().top();
  const int above = std::max(0, room - lines * fontMetrics().lineSpacing());
  setVerticalScrollBarPolicy(above > 0 ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
  if (above != viewportMargins().top()) {
    setViewportMargins(0, above, 0, 0);
  }
}

void MultiLineTextBox::insertFromMimeData(const QMimeData* source)
{
  if (HasEnormousLine(source->text())) {
    setLineWrapMode(NoWrap);
  }
  QPlainTextEdit::insertFromMimeData(source);
}

// The plain text of the toolkit would turn unbreakable blanks into plain ones.
QString MultiLineTextBox::Text() const
{
  if (!document()->isModified()) {
    return set_;
  }
  QString text = document()->toRawText();
  text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
  text.replace(QChar::LineSeparator, QLatin1Char('\n'));
  return text;
}

void MultiLineTextBox::SetLocked(bool locked)
{
  if (locked != Locked()) {
    setReadOnly(locked);
    Repolish(*this);
  }
}
