// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/ListBox.h"

#include "controls/LinesModel.h"

#include <QMouseEvent>
#include <QScopedValueRollback>

ListBox::ListBox(QWidget* parent) : QListView(parent), lines_(new LinesModel(this))
{
  setModel(lines_);
  setUniformItemSizes(true);
  setLayoutMode(QListView::SinglePass);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

int ListBox::ListCount() const
{
  return lines_->Count();
}

QString ListBox::List(int index) const
{
  return lines_->Line(index);
}

void ListBox::SetList(int index, const QString& line)
{
  lines_->Replace(index, line);
}

int ListBox::ListIndex() const
{
  return selectionModel()->isSelected(currentIndex()) ? currentIndex().row() : -1;
}

void ListBox::SetListIndex(int index)
{
  if (index < 0) {
    const QScopedValueRollback<bool> quiet(choosing_, false);
    selectionModel()->clear();
    return;
  }
  setCurrentIndex(lines_->index(index));
}

QString ListBox::Text() const
{
  return List(ListIndex());
}

void ListBox::AddItem(const QString& line)
{
  lines_->Insert(sorted_ ? lines_->SortedPlace(line) : ListCount(), {line});
}

void ListBox::AddItems(const QStringList& lines)
{
  lines_->Insert(ListCount(), lines);
  if (sorted_) {
    lines_->Sort();
  }
}

void ListBox::RemoveItem(int index)
{
  const QScopedValueRollback<bool> quiet(choosing_, false);
  if (index == ListIndex()) {
    selectionModel()->clear();
  }
  lines_->Remove(index);
}

void ListBox::Clear()
{
  const QScopedValueRollback<bool> quiet(choosing_, false);
  lines_->Clear();
}

void ListBox::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
  QListView::currentChanged(current, previous);
  if (choosing_ && current.isValid()) {
    Q_EMIT Click();
  }
}

// The click comes after the line is selected, and also for the line that was selected before.
void ListBox::mousePressEvent(QMouseEvent* event)
{
  const QModelIndex under = indexAt(event->position().toPoint());
  {
    const QScopedValueRollback<bool> quiet(choosing_, false);
    QListView::mousePressEvent(event);
  }
  if (under.isValid() && event->button() == Qt::LeftButton) {
    Q_EMIT Click();
  }
}
