// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMessageBox>
#include <QObject>

#include <vector>

// Answers the message boxes of a test. The boxes are to come in the order they are
// expected, with these very titles, texts and buttons; any other is a failure, and is
// closed. Boxes that did not come are a failure at the end.
class MessageBoxScript : public QObject
{
public:
  MessageBoxScript();
  ~MessageBoxScript() override;

  void Expect(const QString& text, QMessageBox::StandardButtons buttons = QMessageBox::Ok,
              QMessageBox::StandardButton answer = QMessageBox::Ok, const QString& title = QStringLiteral("Quillmark"));

  // How many boxes have come so far.
  [[nodiscard]] std::size_t Count() const { return came_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  struct Box
  {
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton answer;
  };

  void Answer(QMessageBox& box);

  std::vector<Box> expected_;
  std::size_t came_ = 0;
};
