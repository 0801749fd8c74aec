// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/HelpOnScreen.h"

#include <QApplication>
#include <QFile>
#include <QTextBrowser>

#include <gtest/gtest.h>

namespace HelpOnScreen {
namespace {

QWidgetList Windows()
{
  QWidgetList windows = QApplication::topLevelWidgets();
  windows.removeIf([](const QWidget* each) { return each->objectName() != "HelpViewer" || !each->isVisible(); });
  return windows;
}

}

void Lay(const QString& folder)
{
  ASSERT_TRUE(QFile::copy(QStringLiteral(QUILLMARK_LAID_FOLDER "/Help.hlp"), folder + QStringLiteral("/Help.hlp")));
}

QWidget* Window()
{
  return Windows().value(0);
}

int WindowCount()
{
  return static_cast<int>(Windows().size());
}

std::string Page()
{
  const QWidget* window = Window();
  return window == nullptr
             ? std::string()
             : window->findChild<QTextBrowser*>(QStringLiteral("txtPage"))->source().fileName().toStdString();
}

}
