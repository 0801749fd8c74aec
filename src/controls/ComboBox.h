// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/EntryBox.h"

#include <QComboBox>

class LinesModel;

// A box with a drop-down list of lines. It holds 100,000 lines with ease. The mouse
// wheel leaves it alone, so that nothing is changed in passing.
class ComboBox : public QComboBox, public EntryBox
{
  Q_OBJECT
  Q_PROPERTY(TypingKind Typing READ Typing WRITE SetTyping)
  Q_PROPERTY(bool Locked READ Locked WRITE SetLocked)

public:
  // What keys do to the text of a box that can show other texts than its lines. The
  // list opens by a click, on the arrow where any text can be typed, and the arrow keys
  // step through it, whatever the kind.
  enum TypingKind
  {
    Listed,         // shows its lines only
    BackspaceOnly,  // the text can be shortened
    NoTyping,
    TypedLines,  // the text of a line can be typed, which does not choose the line
    AnyText,     // any text can be typed or pasted; none chooses a line
  };
  Q_ENUM(TypingKind)

  explicit ComboBox(QWidget* parent = nullptr);

  [[nodiscard]] int ListCount() const;
  [[nodiscard]] QString List(int index) const;  // empty for an index outside
  [[nodiscard]] int ListIndex() const { return currentIndex(); }
  void SetListIndex(int index);  // a new index is a click

  [[nodiscard]] QString Text() const override { return currentText(); }
  // Chooses the line of that text; if there is none, a box of another kind than Listed
  // shows the text all the same. Not a click.
  void SetText(const QString& text) override;

  [[nodiscard]] bool Locked() const override { return locked_; }
  void SetLocked(bool locked) override;
  [[nodiscard]] TypingKind Typing() const { return typing_; }
  void SetTyping(TypingKind typing);

  void AddItem(const QString& line);
  void AddItems(const QStringList& lines);
  void Clear();

  void showPopup() override;
Q_SIGNALS:
  // A line was chosen, by the user or by SetListIndex.
  void Click();
  // A key has gone down on a box that is not locked, and has not done anything yet.
  void KeyDown(int key);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
  void wheelEvent(QWheelEvent* event) override;

private:
  void MakeEditable();
  void StandOnText();
  [[nodiscard]] bool TakesTyping() const { return typing_ == TypedLines || typing_ == AnyText; }
  [[nodiscard]] bool Passes(const QKeyEvent& event) const;

  LinesModel* lines_;
  TypingKind typing_ = Listed;
  bool locked_ = false;
};
