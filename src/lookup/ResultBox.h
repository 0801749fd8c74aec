// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class EntryBox;
class QCheckBox;
class QWidget;
class Shape;

// An item of a person on the look-up page: the check box that asks for it, the box that
// shows it, and the shape behind. Owns none of them.
class ResultBox
{
public:
  // `box` and `entry` are the same control.
  ResultBox(QCheckBox& check, QWidget& box, EntryBox& entry, Shape& shape);

  [[nodiscard]] bool IsWanted() const;
  void SetWanted(bool wanted);

  void Show(const QString& text);
  void Hide();
  [[nodiscard]] QString Text() const;

  // The caption of the check box.
  [[nodiscard]] QString Caption() const;

private:
  QCheckBox& check_;
  QWidget& box_;
  EntryBox& entry_;
  Shape& shape_;
};
