// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// An empty window with a menu bar, which ends when it has been painted.

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>

namespace {

class Window : public QMainWindow
{
protected:
  void paintEvent(QPaintEvent* event) override
  {
    QMainWindow::paintEvent(event);
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
  }
};

}

int main(int argc, char** argv)
{
  const QApplication application(argc, argv);
  Window window;
  window.menuBar()->addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("&Open"));
  window.resize(768, 606);
  window.show();
  return QApplication::exec();
}
