// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QApplication>
#include <QTest>
#include <QWidget>

#include <functional>

// Driving forms as a user does, by the names of their controls.
namespace Drive {

// The control of that name; the test fails at once if there is none.
QWidget& Control(QWidget& form, const QString& name);

// Clicks into the middle of a control.
void Click(QWidget& form, const QString& name);

// Moves the mouse over a control, or over the form itself.
void MoveOver(QWidget& form, const QString& name = {});

// Does `work` as soon as a form of that name stands on the screen and events are being
// delivered, so that modal forms can be driven. Fails if it does not come in time.
void WhenShown(const QString& formName, std::function<void(QWidget& form)> work);

}
