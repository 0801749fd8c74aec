// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/HelpViewer.h"

#include "platform/App.h"
#include "platform/HelpBook.h"
#include "platform/HelpWindow.h"
#include "platform/MsgBox.h"

#include <QPointer>

namespace HelpViewer {
namespace {

QPointer<HelpWindow> window;

// A window that its user has closed a moment ago is still there, and of no more use.
bool Open()
{
  if (window && window->isVisible()) {
    return true;
  }
  Quit();
  std::unique_ptr<HelpBook> book = HelpBook::Open(App::File(QStringLiteral("/Help.hlp")));
  if (!book) {
    MsgBox(QStringLiteral("Sorry, the help cannot be shown, because its file is missing or damaged."));
    return false;
  }
  window = new HelpWindow(std::move(book));
  return true;
}

}

void ShowContents()
{
  ShowContext(kFirstPage);
}

void ShowContext(int number)
{
  if (!Open()) {
    return;
  }
  const QUrl page = window->Book().PageOf(number);
  window->GoTo(page.isEmpty() ? window->Book().PageOf(kFirstPage) : page);
  window->Present();
}

void Quit()
{
  delete window.data();
}

}
