// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QElapsedTimer>

#include <memory>

class QProgressDialog;

// Tells the user how far a long printing has come. What is done within a moment shows nothing;
// then a dialog comes that can be cancelled, and stays until this object goes. Meanwhile windows
// are repainted and timers run, but nothing behind the dialog takes a click or a key.
class PrintProgress
{
public:
  // How many steps there will be.
  explicit PrintProgress(int steps);
  ~PrintProgress();
  PrintProgress(const PrintProgress&) = delete;
  PrintProgress& operator=(const PrintProgress&) = delete;

  // One more step is done. Now and then a pause in the running command. Throws 32755 if the user
  // has cancelled.
  void Step();

private:
  void Show();

  int steps_;
  int done_ = 0;
  QElapsedTimer sinceLook_;
  std::unique_ptr<QProgressDialog> dialog_;
};
