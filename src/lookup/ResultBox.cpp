// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/ResultBox.h"

#include "controls/EntryBox.h"
#include "controls/Shape.h"

#include <QCheckBox>

namespace {

constexpr int kEmptyShape = 0;
constexpr int kFilledShape = 1;

}

ResultBox::ResultBox(QCheckBox& check, QWidget& box, EntryBox& entry, Shape& shape)
    : check_(check), box_(box), entry_(entry), shape_(shape)
{
  entry_.SetLocked(true);
}

bool ResultBox::IsWanted() const
{
  return check_.isChecked();
}

void ResultBox::SetWanted(bool wanted)
{
  check_.setChecked(wanted);
}

void ResultBox::Show(const QString& text)
{
  entry_.SetText(text);
  box_.show();
  shape_.SetFillStyle(kFilledShape);
}

void ResultBox::Hide()
{
  box_.hide();
  shape_.SetFillStyle(kEmptyShape);
}

QString ResultBox::Text() const
{
  return entry_.Text();
}

QString ResultBox::Caption() const
{
  return check_.text();
}
