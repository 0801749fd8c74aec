// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/EntryBox.h"

#include <QLineEdit>

// A box for one line of text, of any length. While it is locked and has not the focus, a
// text that is too long for it ends in an ellipsis.
class TextBox : public QLineEdit, public EntryBox
{
  Q_OBJECT
  Q_PROPERTY(int TabIndex READ TabIndex WRITE SetTabIndex)
  Q_PROPERTY(bool Locked READ Locked WRITE SetLocked)

public:
  explicit TextBox(QWidget* parent = nullptr);

  [[nodiscard]] QString Text() const override { return text(); }
  void SetText(const QString& text) override;
  [[nodiscard]] bool Locked() const override { return isReadOnly(); }
  void SetLocked(bool locked) override;

  // Place in the walk over the boxes of a page; -1 for none.
  [[nodiscard]] int TabIndex() const { return tabIndex_; }
  void SetTabIndex(int index) { tabIndex_ = index; }

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  [[nodiscard]] QRect TextRoom() const;

  int tabIndex_ = -1;
};
