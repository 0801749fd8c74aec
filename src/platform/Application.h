// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QApplication>

#include <functional>

class RuntimeError;

// The Qt application of the program: every event it delivers is a command, and a
// failure that no handler caught ends here.
class Application : public QApplication
{
public:
  Application(int& argc, char** argv);

  bool notify(QObject* receiver, QEvent* event) override;

  // Runs `work` as a command; a failure that leaves it ends in StopOn.
  static void RunGuarded(const std::function<void()>& work);

  // Shows the failure and ends the program, with status 1.
  static void StopOn(const RuntimeError& error);

  // What ends the program after StopOn's message. Given an empty function, the
  // process ends at once.
  static void SetEnding(std::function<void(int status)> ending);
};
