// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The program, driven by a hand of its own:
//   TakePictures FOLDER DAY PICTURES
// starts it in a program's folder on a day (2026-05-12), goes the way of Tour, and saves the
// picture of each stop, or failed.png, of the display, where it can go no further. Needs a display with a window
// manager, and xdotool.

#include "looks/Style.h"
#include "pictures/Hand.h"
#include "pictures/Tour.h"
#include "platform/App.h"
#include "platform/Application.h"
#include "platform/Clock.h"
#include "shell/StartUp.h"
#include "shell/mdiQuillmark.h"

#include <QThread>

#include <cstdio>
#include <stdexcept>
#include <unistd.h>

// The toolkit's font and theme libraries keep memory to the end on purpose.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options()
{
  return "detect_leaks=0";
}

namespace {

void Save(const QImage& image, const QString& folder, const QString& name)
{
  const QString path = folder + QLatin1Char('/') + name + QStringLiteral(".png");
  if (!image.save(path)) {
    throw std::runtime_error(("cannot write " + path).toStdString());
  }
}

// The process ends with the last picture, wherever the program is then.
void TakeAll(const QString& folder)
{
  for (const Stop& stop : Tour()) {
    try {
      stop.reach();
      Save(Hand::Picture(stop.form), folder, stop.picture);
    } catch (const std::exception& error) {
      std::fprintf(stderr, "TakePictures: %s: %s\n", qPrintable(stop.picture), error.what());
      Save(Hand::PictureOfDisplay(), folder, QStringLiteral("failed"));
      _exit(EXIT_FAILURE);
    }
  }
  _exit(EXIT_SUCCESS);
}

}

int main(int argc, char** argv)
{
  Application application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 4) {
    std::fprintf(stderr, "usage: TakePictures FOLDER DAY PICTURES\n");
    return 2;
  }
  App::SetPath(arguments[1]);
  Clock::StopOn(QDate::fromString(arguments[2], Qt::ISODate));
  QApplication::setCursorFlashTime(0);
  Style::Apply(application);
  RegisterForms();
  mdiQuillmark frame;
  Application::RunGuarded([&] { StartUp(frame); });
  QThread* hand = QThread::create([folder = arguments[3]] { TakeAll(folder); });
  hand->start();
  return Application::exec();
}
