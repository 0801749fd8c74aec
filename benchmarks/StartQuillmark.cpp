// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The program, started as ever, which ends when its main page has been painted.
// The first argument is the program's folder.

#include "looks/Style.h"
#include "platform/App.h"
#include "platform/Application.h"
#include "platform/Command.h"
#include "platform/Privacy.h"
#include "shell/StartUp.h"
#include "shell/mdiQuillmark.h"

#include <QEvent>

namespace {

class PaintWatcher : public QObject
{
public:
  bool eventFilter(QObject* watched, QEvent* event) override
  {
    if (event->type() == QEvent::Paint && watched->objectName() == QLatin1String("frmIntro")) {
      QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    }
    return false;
  }
};

}

int main(int argc, char** argv)
{
  Privacy::KeepToOwner();
  Application application(argc, argv);
  App::SetPath(QApplication::arguments().value(1));
  Privacy::CloseToOthers(App::Path());
  PaintWatcher watcher;
  application.installEventFilter(&watcher);
  Style::Apply(application);
  RegisterForms();
  mdiQuillmark frame;
  Command::Run([&] { StartUp(frame); });
  return Application::exec();
}
