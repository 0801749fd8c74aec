// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/TextBox.h"

#include "controls/Repolish.h"

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

void TextBox::SetLocked(bool locked)
{
  if (locked != Locked()) {
    setReadOnly(locked);
    Repolish(*this);
  }
}
