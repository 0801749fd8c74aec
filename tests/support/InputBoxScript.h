// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QInputDialog>
#include <QObject>

#include <optional>
#include <vector>

// Answers the boxes of a test that ask for a line of text. They are to come in the order
// they are expected, with these very titles and prompts; any other is a failure, and is
// closed. Boxes that did not come are a failure at the end.
class InputBoxScript : public QObject
{
public:
  InputBoxScript();
  ~InputBoxScript() override;

  // The user enters the answer and presses OK; without an answer, Cancel.
  void Expect(const QString& prompt, const QString& title, const std::optional<QString>& answer);

  // How many boxes have come so far.
  [[nodiscard]] std::size_t Count() const { return came_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  struct Box
  {
    QString prompt;
    QString title;
    std::optional<QString> answer;
  };

  void Answer(QInputDialog& box);

  std::vector<Box> expected_;
  std::size_t came_ = 0;
};
