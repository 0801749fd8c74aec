// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <random>

// Where a user's choices come from: the same seed, the same choices.
class Chance
{
public:
  explicit Chance(unsigned seed) : engine_(seed) {}

  // 0 up to `count` - 1; 0 if there is nothing to choose from.
  [[nodiscard]] int Below(int count)
  {
    return count <= 0 ? 0 : static_cast<int>(engine_() % static_cast<unsigned>(count));
  }
  [[nodiscard]] int Between(int first, int last) { return first + Below(last - first + 1); }
  [[nodiscard]] bool OneIn(int count) { return Below(count) == 0; }

  // One of a list that is not empty.
  template <typename List>
  [[nodiscard]] decltype(auto) Of(const List& list)
  {
    return list[static_cast<typename List::size_type>(Below(static_cast<int>(list.size())))];
  }

private:
  std::mt19937 engine_;
};
