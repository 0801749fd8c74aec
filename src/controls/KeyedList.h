// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

#include <algorithm>
#include <vector>

// The lines of a list or combo box with the key of the row that each stands for, since
// texts may repeat. Does not own the box.
template <typename Box>
class KeyedList
{
public:
  explicit KeyedList(Box& box) : box_(box) {}

  void Clear()
  {
    box_.Clear();
    keys_.clear();
  }

  // Takes these lines and their keys in place of the present ones.
  void Fill(const QStringList& lines, std::vector<int> keys)
  {
    Clear();
    keys_ = std::move(keys);
    box_.AddItems(lines);
  }

  // The key of the chosen line; 0 if none is chosen.
  [[nodiscard]] int ChosenKey() const
  {
    const int line = box_.ListIndex();
    return line < 0 ? 0 : keys_.at(static_cast<std::size_t>(line));
  }

  // Chooses the line of that key, if there is one.
  void Choose(int key)
  {
    const auto found = std::find(keys_.begin(), keys_.end(), key);
    if (found != keys_.end()) {
      box_.SetListIndex(static_cast<int>(found - keys_.begin()));
    }
  }

private:
  Box& box_;
  std::vector<int> keys_;
};
