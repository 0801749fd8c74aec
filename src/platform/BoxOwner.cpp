// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/BoxOwner.h"

#include "platform/HelpWindow.h"

#include <QApplication>

#include <algorithm>

namespace {

bool IsHelp(const QWidget* window)
{
  return qobject_cast<const HelpWindow*>(window) != nullptr;
}

// Lists of boxes, menus and tips come and go by themselves.
bool CanOwn(const QWidget* window)
{
  const bool isPassing = window->windowType() == Qt::Popup || window->windowType() == Qt::ToolTip;
  return window->isVisible() && !isPassing && !IsHelp(window);
}

}

QWidget* BoxOwner()
{
  QWidget* active = QApplication::activeWindow();
  if (!IsHelp(active)) {
    return active;
  }
  if (QWidget* waiting = QApplication::activeModalWidget()) {
    return waiting;
  }
  const QWidgetList windows = QApplication::topLevelWidgets();
  const auto owner = std::find_if(windows.begin(), windows.end(), CanOwn);
  return owner == windows.end() ? nullptr : *owner;
}
