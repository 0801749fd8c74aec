// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QListView>

class LinesModel;

// A list of lines, of which one may be selected. It holds 100,000 lines with ease.
class ListBox : public QListView
{
  Q_OBJECT
  Q_PROPERTY(bool Sorted READ Sorted WRITE SetSorted)
  Q_PROPERTY(QColor BackColor READ BackColor WRITE SetBackColor)

public:
  explicit ListBox(QWidget* parent = nullptr);

  [[nodiscard]] int ListCount() const;
  [[nodiscard]] QString List(int index) const;  // empty for an index outside
  void SetList(int index, const QString& line);

  // -1 while no line is selected. A new index is a click.
  [[nodiscard]] int ListIndex() const;
  void SetListIndex(int index);

  // The selected line, or the empty text.
  [[nodiscard]] QString Text() const;

  void AddItem(const QString& line);
  void AddItems(const QStringList& lines);
  void RemoveItem(int index);
  void Clear();

  // A sorted list keeps its lines in text order, without regard to case.
  [[nodiscard]] bool Sorted() const { return sorted_; }
  void SetSorted(bool sorted) { sorted_ = sorted; }

  // Invalid, for the page's own look of lists, unless one was set. With the role
  // "cell", white is that look, too, so that a picture behind the list stays to be seen.
  [[nodiscard]] QColor BackColor() const { return backColor_; }
  void SetBackColor(const QColor& color);

Q_SIGNALS:
  // A line was chosen, by mouse, by keyboard or by SetListIndex; also the same again by mouse.
  void Click();

protected:
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                                     const QEvent* event) const override;
  void mousePressEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void updateGeometries() override;

private:
  void LeaveOutPartOfALine();

  LinesModel* lines_;
  QColor backColor_;
  bool sorted_ = false;
  bool choosing_ = true;
};
