// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/MultiLineTextBox.h"

#include "controls/Repolish.h"

#include <QMimeData>

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
