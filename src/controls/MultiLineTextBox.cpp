// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/MultiLineTextBox.h"

#include "controls/Repolish.h"

MultiLineTextBox::MultiLineTextBox(QWidget* parent) : QPlainTextEdit(parent)
{
  setTabChangesFocus(true);
}

void MultiLineTextBox::SetText(const QString& text)
{
  set_ = text;
  setPlainText(text);
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
