// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFileDialog>
#include <QObject>

#include <optional>
#include <vector>

// Answers the file dialogs of a test, in the order they are expected; any other is a
// failure, and is closed. Dialogs that did not come are a failure at the end.
class FileDialogScript : public QObject
{
public:
  FileDialogScript();
  ~FileDialogScript() override;

  // The user types the path and presses the dialog's button.
  void ExpectChoice(const QString& path) { expected_.emplace_back(path); }
  void ExpectCancel() { expected_.emplace_back(std::nullopt); }

  // How many dialogs have come so far.
  [[nodiscard]] std::size_t Count() const { return came_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void Answer(QFileDialog& dialog);

  std::vector<std::optional<QString>> expected_;
  std::size_t came_ = 0;
};
