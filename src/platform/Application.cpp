// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Application.h"

#include "platform/App.h"
#include "platform/Command.h"
#include "platform/MsgBox.h"
#include "platform/RuntimeError.h"

#include <QThread>

#include <new>
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

// The toolkit's own threads, such as the one that loads sounds, deliver events too.
bool Application::notify(QObject* receiver, QEvent* event)
{
  if (QThread::currentThread() != thread() || Command::IsRunning()) {
    return QApplication::notify(receiver, event);
  }
  bool handled = false;
  RunGuarded([&] { handled = QApplication::notify(receiver, event); });
  return handled;
}

void Application::RunGuarded(const std::function<void()>& work)
{
  try {
    Command::Run(work);
  } catch (const RuntimeError& error) {
    StopOn(error);
  } catch (const std::bad_alloc&) {
    StopOn(RuntimeError(ErrorNumber::kOutOfMemory, QStringLiteral("Out of memory")));
  }
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
