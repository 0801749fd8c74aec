// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/TypingLimit.h"

class Form;
class QKeyEvent;

// The keyboard on the boxes of the record editor: Enter and the arrow keys walk from box
// to box, and typing ends at the longest text that a box may hold.
class EntryKeys : public QObject
{
  Q_OBJECT

public:
  // Watches the boxes of `form`, and goes with it.
  explicit EntryKeys(Form& form);

  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  bool Walk(const QKeyEvent& key);
  bool WalkFromPostal(const QKeyEvent& key) const;
  void Text(int key);
  void FocusBoxAt(int tabIndex) const;

  Form& form_;
  TypingLimit limit_;
  int currentTabIndex_ = 0;
};
