// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/OrderedKeys.h"

#include "platform/TextOrder.h"
#include "store/Statement.h"

#include <algorithm>
#include <array>
#include <deque>
#include <numeric>
#include <string>
#include <unordered_map>

namespace {

struct TextHash
{
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
};

// Keeps texts, without a block of memory for each.
class TextArena
{
public:
  std::string_view Keep(std::string_view text)
  {
    if (blocks_.empty() || blocks_.back().size() + text.size() > blocks_.back().capacity()) {
      blocks_.emplace_back().reserve(std::max(kBlock, text.size()));
    }
    std::string& block = blocks_.back();
    block.append(text);
    return std::string_view(block).substr(block.size() - text.size());
  }

private:
  static constexpr std::size_t kBlock = 1 << 16;
  std::deque<std::string> blocks_;
};

enum class Kind
{
  kNull,
  kNumber,
  kText,
};

// A value as it is compared: Null first, then numbers, then texts.
struct SortKey
{
  Kind kind = Kind::kNull;
  double number = 0;
  std::uint64_t start = 0;  // of the text, so that most comparisons need not look at it
  std::string_view text;

  SortKey() = default;
  explicit SortKey(double value) : kind(Kind::kNumber), number(value) {}
  SortKey(std::string_view value, TextArena& arena) : kind(Kind::kText), text(arena.Keep(TextOrder::Key(value)))
  {
    for (std::size_t i = 0; i < sizeof start; ++i) {
      start = start << 8 | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0U);
    }
  }

  bool operator<(const SortKey& other) const
  {
    if (kind != other.kind) {
      return kind < other.kind;
    }
    if (kind == Kind::kText) {
      return start != other.start ? start < other.start : text < other.text;
    }
    return number < other.number;
  }
};

SortKey KeyIn(const Statement& statement, int column, TextArena& arena)
{
  switch (statement.KindOf(column)) {
    case Statement::Kind::kNull:
      return {};
    case Statement::Kind::kNumber:
      return SortKey(statement.Number(column));
    case Statement::Kind::kText:
      break;
  }
  return {statement.Bytes(column), arena};
}

// The different values of one ordering column, each numbered as it first appears.
class Values
{
public:
  explicit Values(ColumnType type) : type_(type) { values_.push_back({}); }

  std::uint32_t NumberOf(const Statement& statement, int column)
  {
    switch (statement.KindOf(column)) {
      case Statement::Kind::kNull:
        return 0;
      case Statement::Kind::kNumber:
        return NumberOfNumber(statement, column);
      case Statement::Kind::kText:
        break;
    }
    return NumberOfText(statement.Bytes(column));
  }

  [[nodiscard]] std::size_t Size() const { return values_.size(); }

  // By number of value: its place in the order, the same for values that are equal.
  [[nodiscard]] std::vector<std::uint32_t> Ranks() const
  {
    std::vector<std::uint32_t> sorted(values_.size());
    std::iota(sorted.begin(), sorted.end(), 0U);
    std::sort(sorted.begin(), sorted.end(), [this](auto a, auto b) { return values_[a].key < values_[b].key; });
    std::vector<std::uint32_t> ranks(values_.size());
    for (std::size_t i = 1; i < sorted.size(); ++i) {
      const bool above = values_[sorted[i - 1]].key < values_[sorted[i]].key;
      ranks[sorted[i]] = ranks[sorted[i - 1]] + (above ? 1 : 0);
    }
    return ranks;
  }

  [[nodiscard]] std::vector<QVariant> Travelling() const
  {
    std::vector<QVariant> travelling(values_.size());
    for (const auto& [text, number] : texts_) {
      travelling[number] = ValueFromText(QString::fromStdString(text), type_);
    }
    for (const auto& [value, number] : numbers_) {
      travelling[number] = values_[number].travelling;
    }
    return travelling;
  }

private:
  struct Value
  {
    SortKey key;
    QVariant travelling;
  };

  std::uint32_t NumberOfText(std::string_view text)
  {
    Seen& seen = seen_[SlotFor(text)];
    if (seen.text != nullptr && *seen.text == text) {
      return seen.number;
    }
    auto known = texts_.find(text);
    if (known == texts_.end()) {
      known = texts_.emplace(std::string(text), static_cast<std::uint32_t>(values_.size())).first;
      values_.push_back({SortKey(text, arena_), {}});
    }
    seen = {&known->first, known->second};
    return known->second;
  }

  std::uint32_t NumberOfNumber(const Statement& statement, int column)
  {
    const auto [known, isNew] = numbers_.emplace(statement.Number(column), static_cast<std::uint32_t>(values_.size()));
    if (isNew) {
      values_.push_back({SortKey(known->first), statement.Value(column, type_)});
    }
    return known->second;
  }

  // A text that was met lately, found again without the map: most columns that rows
  // are ordered by hold few different ones.
  struct Seen
  {
    const std::string* text = nullptr;
    std::uint32_t number = 0;
  };

  static constexpr std::size_t kSlots = 256;

  static std::size_t SlotFor(std::string_view text)
  {
    if (text.empty()) {
      return 0;
    }
    const auto byte = [&](std::size_t at) { return static_cast<std::size_t>(static_cast<unsigned char>(text[at])); };
    return (text.size() * 61 + byte(0) * 7 + byte(text.size() / 2) * 29 + byte(text.size() - 1) * 3) % kSlots;
  }

  ColumnType type_;
  TextArena arena_;
  std::array<Seen, kSlots> seen_{};
  std::vector<Value> values_;
  std::unordered_map<std::string, std::uint32_t, TextHash, std::equal_to<>> texts_;
  std::unordered_map<double, std::uint32_t> numbers_;
};

// Stable, so that sorting by the last column first leaves rows in the order of all.
void SortBy(const std::vector<std::uint32_t>& rankOfRow, std::size_t rankCount, std::vector<std::uint32_t>& rows)
{
  std::vector<std::uint32_t> start(rankCount + 1);
  for (const std::uint32_t row : rows) {
    ++start[rankOfRow[row] + 1];
  }
  std::partial_sum(start.begin(), start.end(), start.begin());
  std::vector<std::uint32_t> sorted(rows.size());
  for (const std::uint32_t row : rows) {
    sorted[start[rankOfRow[row]]++] = row;
  }
  rows = std::move(sorted);
}

template <typename T>
std::vector<T> Arranged(const std::vector<T>& items, const std::vector<std::uint32_t>& rows)
{
  std::vector<T> arranged;
  arranged.reserve(items.size());
  for (const std::uint32_t row : rows) {
    arranged.push_back(items[row]);
  }
  return arranged;
}

}

namespace {

// For one column that need not be kept: its values are mostly different ones, such as names.
OrderedKeys ReadInOrderOfOne(Statement& statement)
{
  std::vector<qint64> keys;
  std::vector<SortKey> sortKeys;
  TextArena arena;
  while (statement.Step()) {
    keys.push_back(statement.Integer(0));
    sortKeys.push_back(KeyIn(statement, 1, arena));
  }
  std::vector<std::uint32_t> rows(keys.size());
  std::iota(rows.begin(), rows.end(), 0U);
  std::sort(rows.begin(), rows.end(), [&](std::uint32_t a, std::uint32_t b) {
    return sortKeys[a] < sortKeys[b] || (!(sortKeys[b] < sortKeys[a]) && a < b);
  });
  return {Arranged(keys, rows), std::vector<OrderedKeys::Kept>(1)};
}

}

OrderedKeys ReadInOrder(Connection& connection, const QString& sql, const std::vector<OrderingColumn>& columns,
                        const std::vector<QVariant>& parameters)
{
  Statement statement(connection, sql);
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    statement.Bind(static_cast<int>(i) + 1, parameters[i]);
  }
  if (columns.size() == 1 && !columns.front().kept) {
    return ReadInOrderOfOne(statement);
  }
  std::vector<qint64> keys;
  std::vector<Values> values;
  values.reserve(columns.size());
  for (const OrderingColumn& column : columns) {
    values.emplace_back(column.type);
  }
  std::vector<std::vector<std::uint32_t>> which(columns.size());
  while (statement.Step()) {
    keys.push_back(statement.Integer(0));
    for (std::size_t column = 0; column < columns.size(); ++column) {
      which[column].push_back(values[column].NumberOf(statement, static_cast<int>(column) + 1));
    }
  }

  std::vector<std::uint32_t> rows(keys.size());
  std::iota(rows.begin(), rows.end(), 0U);
  for (std::size_t column = columns.size(); column-- > 0;) {
    SortBy(Arranged(values[column].Ranks(), which[column]), values[column].Size(), rows);
  }

  OrderedKeys ordered;
  ordered.keys = Arranged(keys, rows);
  for (std::size_t column = 0; column < columns.size(); ++column) {
    ordered.kept.emplace_back();
    if (columns[column].kept) {
      ordered.kept.back() = {Arranged(which[column], rows), values[column].Travelling()};
    }
  }
  return ordered;
}
