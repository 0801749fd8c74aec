// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Apart.h"

#include <QTimer>

class QWidget;

// Answers and tells what the program asks or says while nobody sits before it, and leaves
// the windows that wait for somebody.
class Caretaker
{
public:
  explicit Caretaker(Apart::Say say);

private:
  void LookAround();
  void Leave(QWidget& window);

  Apart::Say say_;
  QTimer timer_;
};
