// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/ListCursor.h"

#include "store/StoreError.h"

#include <algorithm>

void ListCursor::Begin(std::vector<qint64> keys)
{
  keys_ = std::move(keys);
  position_ = 0;
  visited_ = std::min<qsizetype>(1, Size());
}

bool ListCursor::HasCurrent() const
{
  return !deletedHere_ && position_ >= 0 && position_ < Size();
}

bool ListCursor::Eof() const
{
  return !deletedHere_ && (keys_.empty() || position_ >= Size());
}

bool ListCursor::Bof() const
{
  return !deletedHere_ && (keys_.empty() || position_ < 0);
}

int ListCursor::RecordCount()
{
  return static_cast<int>(visited_);
}

int ListCursor::AbsolutePosition() const
{
  return HasCurrent() ? static_cast<int>(position_) : -1;
}

void ListCursor::Visit(qsizetype position)
{
  ForgetEdit();
  deletedHere_ = false;
  position_ = position;
  visited_ = std::max(visited_, std::min(position_ + 1, Size()));
}

void ListCursor::Erase(qsizetype position)
{
  keys_.erase(keys_.begin() + position);
  if (position < visited_) {
    --visited_;
  }
  // While there are rows, their count is never told as none.
  visited_ = std::max(visited_, std::min<qsizetype>(1, Size()));
}

void ListCursor::LandForward()
{
  while (HasCurrent() && !IsThere(position_)) {
    Erase(position_);
    Visit(position_);
  }
}

void ListCursor::LandBackward()
{
  while (HasCurrent() && !IsThere(position_)) {
    Erase(position_);
    Visit(position_ - 1);
  }
}

void ListCursor::MoveFirst()
{
  Visit(0);
  LandForward();
  if (keys_.empty()) {
    StoreError::Raise(StoreError::kNoCurrentRecord);
  }
}

void ListCursor::MoveLast()
{
  Visit(Size() - 1);
  LandBackward();
  if (keys_.empty()) {
    StoreError::Raise(StoreError::kNoCurrentRecord);
  }
}

void ListCursor::MoveNext()
{
  if (Eof()) {
    StoreError::Raise(StoreError::kNoCurrentRecord);
  }
  Visit(deletedHere_ ? position_ : position_ + 1);
  LandForward();
}

void ListCursor::MovePrevious()
{
  if (Bof()) {
    StoreError::Raise(StoreError::kNoCurrentRecord);
  }
  Visit(position_ - 1);
  LandBackward();
}

Recordset::Bookmark ListCursor::GetBookmark()
{
  return {CurrentKey(), position_};
}

qsizetype ListCursor::Locate(const Bookmark& bookmark) const
{
  const bool hintHolds =
      bookmark.hint >= 0 && bookmark.hint < Size() && keys_[static_cast<std::size_t>(bookmark.hint)] == bookmark.key;
  return hintHolds ? bookmark.hint : std::find(keys_.begin(), keys_.end(), bookmark.key) - keys_.begin();
}

void ListCursor::SetBookmark(const Bookmark& bookmark)
{
  const qsizetype position = Locate(bookmark);
  if (position >= Size() || !IsThere(position)) {
    StoreError::Raise(StoreError::kBadBookmark);
  }
  Visit(position);
}

std::span<const qint64> ListCursor::Ahead() const
{
  if (deletedHere_) {
    StoreError::Raise(StoreError::kRecordDeleted);
  }
  if (!HasCurrent()) {
    StoreError::Raise(StoreError::kNoCurrentRecord);
  }
  return std::span(keys_).subspan(static_cast<std::size_t>(position_));
}

qint64 ListCursor::CurrentKey()
{
  return Ahead().front();
}

void ListCursor::RowAdded(qint64 key)
{
  const bool pastTheEnd = !deletedHere_ && position_ >= Size();
  if (!keys_.empty() && keys_.back() == key) {
    keys_.pop_back();  // an addition that was taken back had this key before
  }
  keys_.push_back(key);
  if (pastTheEnd) {
    position_ = Size();
  }
}

void ListCursor::RowDeleted()
{
  Erase(position_);
  deletedHere_ = true;
}
