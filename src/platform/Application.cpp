// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Application.h"

#include "platform/App.h"
#include "platform/Command.h"
#include "platform/MsgBox.h"
#include "platform/RuntimeError.h"

#include <unistd.h>

namespace {

std::function<void(int)> chosenEnding;

}

Application::Application(int& argc, char** argv) : QApplication(argc, argv)
{
  setApplicationName(QLatin1String(App::kTitle));
  setDesktopFileName(QLatin1String(App::kTitle));
  setQuitOnLastWindowClosed(false);
}

bool Application::notify(QObject* receiver, QEvent* event)
{
  if (Command::IsRunning()) {
    return QApplication::notify(receiver, event);
  }
  bool handled = false;
  try {
    Command::Run([&] { handled = QApplication::notify(receiver, event); });
  } catch (const RuntimeError& error) {
    StopOn(error);
  }
  return handled;
}

// The process ends without unwinding: the failure has been thrown through the
// toolkit, which may not be used any more, and nothing is left to write.
void Application::StopOn(const RuntimeError& error)
{
  MsgBox(error.Message());
  if (chosenEnding) {
    chosenEnding(EXIT_FAILURE);
  } else {
    _exit(EXIT_FAILURE);
  }
}

void Application::SetEnding(std::function<void(int)> ending)
{
  chosenEnding = std::move(ending);
}
