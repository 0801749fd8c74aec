// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/EntryBox.h"

#include <QPlainTextEdit>

// A box for text of several lines, wrapped, with a scroll bar where it is needed. Tab leaves
// it. With the role "caption" the text stands at the lower edge, over what it names. A text with a line of enormous
// length is not wrapped, which would take minutes.
class MultiLineTextBox : public QPlainTextEdit, public EntryBox
{
  Q_OBJECT
  Q_PROPERTY(int TabIndex READ TabIndex WRITE SetTabIndex)
  Q_PROPERTY(bool Locked READ Locked WRITE SetLocked)

public:
  explicit MultiLineTextBox(QWidget* parent = nullptr);

  // The text as it was set, until the user changes it; then its lines end with a line
  // feed, and every other character is as it was entered.
  [[nodiscard]] QString Text() const override;
  void SetText(const QString& text) override;
  [[nodiscard]] bool Locked() const override { return isReadOnly(); }
  void SetLocked(bool locked) override;

  // Place in the walk over the boxes of a page; -1 for none.
  [[nodiscard]] int TabIndex() const { return tabIndex_; }
  void SetTabIndex(int index) { tabIndex_ = index; }

protected:
  void insertFromMimeData(const QMimeData* source) override;
  void resizeEvent(QResizeEvent* event) override;

private:
  void StandAtLowerEdge();

  QString set_;
  int tabIndex_ = -1;
};
