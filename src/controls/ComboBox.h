// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QComboBox>

class LinesModel;

// A box with a drop-down list of lines. It holds 100,000 lines with ease.
class ComboBox : public QComboBox
{
  Q_OBJECT

public:
  explicit ComboBox(QWidget* parent = nullptr);

  [[nodiscard]] int ListCount() const;
  [[nodiscard]] QString List(int index) const;  // empty for an index outside
  [[nodiscard]] int ListIndex() const { return currentIndex(); }
  void SetListIndex(int index);  // a new index is a click
  [[nodiscard]] QString Text() const { return currentText(); }

  void AddItem(const QString& line);
  void AddItems(const QStringList& lines);
  void Clear();

Q_SIGNALS:
  // A line was chosen, by the user or by SetListIndex.
  void Click();

private:
  LinesModel* lines_;
};
