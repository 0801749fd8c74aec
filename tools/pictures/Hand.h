// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <QPoint>
#include <QStringList>

#include <functional>

class QWidget;

// A hand on the mouse and the keyboard of the display that the program stands on, and an
// eye on its windows. It works from a thread of its own, as a user does, so that it goes on
// while the program waits in a modal window. What does not come in time is thrown as a
// std::runtime_error.
class Hand
{
public:
  // Clicks into the middle of a control of a form.
  static void Click(const QString& form, const QString& control);

  // Clicks on the first line of a list that begins so.
  static void ClickLine(const QString& form, const QString& list, const QString& beginning);

  // Goes through the menu from its bar on, by the names of its actions.
  static void ClickMenu(const QStringList& actions);

  // Types a text, or presses a key by the name that the display has for it.
  static void Type(const QString& text);
  static void Press(const QString& key);

  // Waits for a box that asks for a text, and answers it.
  static void Answer(const QString& text);

  static void AwaitShown(const QString& form, const QString& control = {});

  // The window that the form stands in, as the display shows it once nothing moves in it
  // any more, with the mouse out of the way.
  static QImage Picture(const QString& form);
  static QImage PictureOfDisplay();
};
