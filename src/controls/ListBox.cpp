// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/ListBox.h"

#include "controls/LinesModel.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>

namespace {

bool IsCell(const ListBox& list)
{
  return list.property("role") == QLatin1String("cell");
}

}

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
  const QModelIndexList selected = selectionModel()->selectedIndexes();
  return selected.isEmpty() ? -1 : selected.front().row();
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

// Sorting all lines at once is quick, but loses the place of the selected one.
void ListBox::AddItems(const QStringList& lines)
{
  if (sorted_ && ListIndex() >= 0) {
    for (const QString& line : lines) {
      AddItem(line);
    }
    return;
  }
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

void ListBox::SetBackColor(const QColor& color)
{
  backColor_ = color;
  viewport()->update();
}

void ListBox::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
  QListView::selectionChanged(selected, deselected);
  if (choosing_ && !selected.isEmpty()) {
    Q_EMIT Click();
  }
}

// A line once chosen stays so until another is: neither a key held down nor a click
// beside the lines takes it away.
QItemSelectionModel::SelectionFlags ListBox::selectionCommand(const QModelIndex& index, const QEvent*) const
{
  return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

// The click comes after the line is selected, and also for the line that was selected before.
void ListBox::mousePressEvent(QMouseEvent* event)
{
  if (event->button() != Qt::LeftButton) {
    return;
  }
  const QModelIndex under = indexAt(event->position().toPoint());
  {
    const QScopedValueRollback<bool> quiet(choosing_, false);
    QListView::mousePressEvent(event);
  }
  if (under.isValid()) {
    Q_EMIT Click();
  }
}

// The toolkit would make the first line the current one, so that the first press of a
// key would pass it by.
void ListBox::focusInEvent(QFocusEvent* event)
{
  QAbstractScrollArea::focusInEvent(event);
  viewport()->update();
}

void ListBox::updateGeometries()
{
  QListView::updateGeometries();
  LeaveOutPartOfALine();
}

// What is left of the height below the last whole line stays blank. A list that is lower
// than a line shows what it can, and a cell is lit up to its edge.
void ListBox::LeaveOutPartOfALine()
{
  const int line = sizeHintForRow(0);
  const int room = viewport()->height() + viewportMargins().bottom();
  const int rest = line > 0 && room > line && !IsCell(*this) ? room % line : 0;
  if (rest != viewportMargins().bottom()) {
    setViewportMargins(0, 0, 0, rest);
  }
}

void ListBox::paintEvent(QPaintEvent* event)
{
  const bool isPlainCell = backColor_ == Qt::white && IsCell(*this);
  if (backColor_.isValid() && !isPlainCell) {
    QPainter(viewport()).fillRect(viewport()->rect(), backColor_);
  }
  QListView::paintEvent(event);
}
