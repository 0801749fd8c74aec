// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/LinesModel.h"

#include "platform/RuntimeError.h"
#include "platform/TextOrder.h"

#include <algorithm>

int LinesModel::rowCount(const QModelIndex& parent) const
{
  return parent.isValid() ? 0 : Count();
}

QVariant LinesModel::data(const QModelIndex& index, int role) const
{
  const bool wanted = role == Qt::DisplayRole || role == Qt::EditRole;
  return wanted && checkIndex(index, CheckIndexOption::IndexIsValid) ? Line(index.row()) : QVariant();
}

QString LinesModel::Line(int index) const
{
  return index >= 0 && index < Count() ? lines_[static_cast<std::size_t>(index)] : QString();
}

void LinesModel::Insert(int index, const QStringList& lines)
{
  if (lines.isEmpty()) {
    return;
  }
  beginInsertRows({}, index, index + static_cast<int>(lines.size()) - 1);
  lines_.insert(lines_.begin() + index, lines.begin(), lines.end());
  endInsertRows();
}

void LinesModel::MustHave(int index) const
{
  if (index < 0 || index >= Count()) {
    RaiseError(ErrorNumber::kSubscriptOutOfRange);
  }
}

void LinesModel::Replace(int index, const QString& line)
{
  MustHave(index);
  lines_[static_cast<std::size_t>(index)] = line;
  Q_EMIT dataChanged(createIndex(index, 0), createIndex(index, 0));
}

void LinesModel::Remove(int index)
{
  MustHave(index);
  beginRemoveRows({}, index, index);
  lines_.erase(lines_.begin() + index);
  endRemoveRows();
}

void LinesModel::Clear()
{
  beginResetModel();
  lines_.clear();
  endResetModel();
}

void LinesModel::Sort()
{
  std::vector<std::pair<std::string, QString>> keyed;
  keyed.reserve(lines_.size());
  for (const QString& line : lines_) {
    keyed.emplace_back(TextOrder::Key(line), line);
  }
  std::stable_sort(keyed.begin(), keyed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  beginResetModel();
  std::transform(keyed.begin(), keyed.end(), lines_.begin(), [](const auto& pair) { return pair.second; });
  endResetModel();
}

int LinesModel::SortedPlace(const QString& line) const
{
  const auto place = std::upper_bound(lines_.begin(), lines_.end(), line, TextOrder::Less);
  return static_cast<int>(place - lines_.begin());
}
