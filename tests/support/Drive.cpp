// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/Drive.h"

#include <QTimer>

#include <gtest/gtest.h>
#include <stdexcept>

namespace Drive {
namespace {

QWidget* FindShown(const QString& formName)
{
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() == formName && widget->isVisible()) {
      return widget;
    }
  }
  return nullptr;
}

void Await(const QString& formName, const std::function<void(QWidget&)>& work, int triesLeft)
{
  constexpr int kMillisecondsBetween = 10;
  if (QWidget* form = FindShown(formName)) {
    work(*form);
  } else if (triesLeft == 0) {
    ADD_FAILURE() << formName.toStdString() << " was not shown";
  } else {
    QTimer::singleShot(kMillisecondsBetween, qApp, [=] { Await(formName, work, triesLeft - 1); });
  }
}

}

QWidget& Control(QWidget& form, const QString& name)
{
  auto* control = form.findChild<QWidget*>(name);
  if (control == nullptr) {
    throw std::runtime_error("no control " + name.toStdString());
  }
  return *control;
}

void Click(QWidget& form, const QString& name)
{
  QTest::mouseClick(&Control(form, name), Qt::LeftButton);
}

void MoveOver(QWidget& form, const QString& name)
{
  QWidget& target = name.isEmpty() ? form : Control(form, name);
  QTest::mouseMove(&target, QPoint(1, 1));
  QTest::mouseMove(&target, QPoint(2, 2));
}

void WhenShown(const QString& formName, std::function<void(QWidget&)> work)
{
  constexpr int kTries = 500;
  QTimer::singleShot(0, qApp, [=] { Await(formName, work, kTries); });
}

}
