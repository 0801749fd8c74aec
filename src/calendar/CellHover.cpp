// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/CellHover.h"

#include "looks/modMouseMove.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

namespace {

constexpr int kNone = -1;
constexpr int kMarkWidth = 3;
constexpr int kTextMargin = 4;

// The list whose viewport it is, or null.
ListBox* ListOf(const QObject* viewport)
{
  return qobject_cast<ListBox*>(viewport->parent());
}

QString CutOffLine(const ListBox& list, const QPoint& point)
{
  const QModelIndex index = list.indexAt(point);
  const QString line = list.List(index.row());
  const int room = list.viewport()->width() - kTextMargin;
  return list.fontMetrics().horizontalAdvance(line) > room ? line.trimmed() : QString();
}

}

CellHover::CellHover(Form& form, const ControlArray<ListBox>& lists, const ControlArray<Label>& days, QWidget& mark)
    : QObject(&mark), form_(form), mark_(mark)
{
  mark.setAttribute(Qt::WA_TransparentForMouseEvents);
  for (const auto& [index, list] : lists.All()) {
    list->viewport()->setMouseTracking(true);
    list->viewport()->installEventFilter(this);
  }
  for (const auto& [index, day] : days.All()) {
    day->installEventFilter(this);
  }
}

bool CellHover::eventFilter(QObject* watched, QEvent* event)
{
  ListBox* list = ListOf(watched);
  const bool moves = event->type() == QEvent::MouseMove || event->type() == QEvent::Enter;
  if (list == nullptr && moves) {
    mark_.hide();
  } else if (list != nullptr && moves) {
    MoveOver(*list, static_cast<QSinglePointEvent*>(event)->position().toPoint());
  } else if (list != nullptr && event->type() == QEvent::Leave) {
    Leave();
  } else if (list != nullptr && event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    return ShowTip(*list, help->pos(), help->globalPos());
  }
  return false;
}

void CellHover::MoveOver(ListBox& list, const QPoint& point)
{
  if (list.BackColor() != modMouseMove::kLitList) {
    modMouseMove::ResetAll(form_);
    modMouseMove::Highlight(form_, modMouseMove::Row::kReminders, kNone);
    list.SetBackColor(modMouseMove::kLitList);
  }
  const QRect line = list.visualRect(list.indexAt(point));
  mark_.setVisible(line.isValid());
  const QPoint corner = list.viewport()->mapTo(mark_.parentWidget(), line.topLeft());
  mark_.setGeometry(list.x(), corner.y(), kMarkWidth, line.height());
  mark_.raise();
}

void CellHover::Leave()
{
  mark_.hide();
  modMouseMove::Reset(form_, modMouseMove::Row::kReminders);
}

bool CellHover::ShowTip(const ListBox& list, const QPoint& point, const QPoint& onScreen)
{
  const QString line = CutOffLine(list, point);
  if (line.isEmpty() || list.toolTip().isEmpty()) {
    return false;
  }
  const QString tip = line.toHtmlEscaped() + QStringLiteral("<br>") + list.toolTip().toHtmlEscaped();
  QToolTip::showText(onScreen, tip, list.viewport());
  return true;
}
