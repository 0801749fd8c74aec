// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractListModel>

#include <vector>

// The lines of a list or combo box.
class LinesModel : public QAbstractListModel
{
  Q_OBJECT

public:
  using QAbstractListModel::QAbstractListModel;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

  [[nodiscard]] int Count() const { return static_cast<int>(lines_.size()); }
  [[nodiscard]] QString Line(int index) const;  // empty for an index outside
  void Insert(int index, const QStringList& lines);
  void Replace(int index, const QString& line);  // throws 9 for an index outside
  void Remove(int index);                        // throws 9 for an index outside
  void Clear();
  void Sort();  // by TextOrder, equal ones in the order they came

  // Where a sorted list takes a further line.
  [[nodiscard]] int SortedPlace(const QString& line) const;

private:
  void MustHave(int index) const;

  std::vector<QString> lines_;
};
