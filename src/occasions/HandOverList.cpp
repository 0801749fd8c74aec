// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "occasions/HandOverList.h"

#include "controls/ListBox.h"
#include "looks/modToolTips.h"
#include "platform/App.h"
#include "platform/Attempt.h"
#include "platform/LoadCursor.h"

#include <QEvent>

HandOverList::HandOverList(ListBox& list, QString nothing, QString tip)
    : QObject(&list), list_(list), nothing_(std::move(nothing)), tip_(std::move(tip))
{
  Attempt([this] { hand_ = LoadCursor(App::File(QStringLiteral("/hand.cur"))); });
  list.viewport()->installEventFilter(this);
}

bool HandOverList::eventFilter(QObject* /*watched*/, QEvent* event)
{
  if (event->type() != QEvent::MouseMove && event->type() != QEvent::Enter) {
    return false;
  }
  const bool empty = list_.List(0) == nothing_;
  list_.setToolTip(empty || modToolTips::TipsOff() ? QString() : tip_);
  list_.viewport()->setCursor(empty ? QCursor() : hand_);
  return false;
}
