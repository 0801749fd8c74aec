// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/ComboBox.h"

#include "controls/LinesModel.h"

#include <QListView>

ComboBox::ComboBox(QWidget* parent) : QComboBox(parent), lines_(new LinesModel(this))
{
  auto* list = new QListView(this);
  list->setUniformItemSizes(true);
  list->setLayoutMode(QListView::SinglePass);
  setView(list);
  setModel(lines_);
  // As a pop-up the toolkit would measure every line before it opens.
  setStyleSheet(QStringLiteral("combobox-popup: 0"));
  setCurrentIndex(-1);
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  connect(this, &QComboBox::activated, this, &ComboBox::Click);
}

int ComboBox::ListCount() const
{
  return lines_->Count();
}

QString ComboBox::List(int index) const
{
  return lines_->Line(index);
}

void ComboBox::SetListIndex(int index)
{
  if (index != currentIndex()) {
    setCurrentIndex(index);
    Q_EMIT Click();
  }
}

void ComboBox::AddItem(const QString& line)
{
  AddItems({line});
}

// A combo box of the toolkit would choose the first line that comes.
void ComboBox::AddItems(const QStringList& lines)
{
  const int chosen = currentIndex();
  const QSignalBlocker quiet(this);
  lines_->Insert(ListCount(), lines);
  setCurrentIndex(chosen);
}

void ComboBox::Clear()
{
  const QSignalBlocker quiet(this);
  lines_->Clear();
  setCurrentIndex(-1);
}
