// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QHash>
#include <QObject>

class ComboBox;
class EntryBox;
class TextBox;

// Ends typing in boxes at the longest text that they may hold. A text that is pasted may be
// longer, and is left to who takes it.
class TypingLimit : public QObject
{
public:
  // In characters.
  explicit TypingLimit(int longest, QObject* parent = nullptr);

  // From now on a full box takes no character more.
  void Join(TextBox& box);
  void Join(ComboBox& box);  // which must show a text of its own

  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void Watch(QObject& receiver, const EntryBox& box);

  int longest_;
  QHash<const QObject*, const EntryBox*> boxes_;
};
