// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "store/Recordset.h"

#include <span>

// A cursor over a list of keys that was made when it was opened.
class ListCursor : public Recordset
{
public:
  void MoveFirst() override;
  void MoveLast() override;
  void MoveNext() override;
  void MovePrevious() override;
  [[nodiscard]] bool Eof() const override;
  [[nodiscard]] bool Bof() const override;
  [[nodiscard]] int RecordCount() override;
  [[nodiscard]] int AbsolutePosition() const override;
  [[nodiscard]] Bookmark GetBookmark() override;
  void SetBookmark(const Bookmark& bookmark) override;

protected:
  using Recordset::Recordset;

  // Puts the cursor on the first of `keys`.
  void Begin(std::vector<qint64> keys);

  [[nodiscard]] const std::vector<qint64>& Keys() const { return keys_; }
  [[nodiscard]] qsizetype Position() const { return position_; }
  // The current key and those that follow it. Throws without a current row.
  [[nodiscard]] std::span<const qint64> Ahead() const;
  void Visit(qsizetype position);

  // False if the row at the position is gone from the file.
  [[nodiscard]] virtual bool IsThere(qsizetype position) = 0;

  [[nodiscard]] qint64 CurrentKey() override;
  void RowAdded(qint64 key) override;
  void RowDeleted() override;

private:
  [[nodiscard]] qsizetype Size() const { return static_cast<qsizetype>(keys_.size()); }
  [[nodiscard]] bool HasCurrent() const;
  [[nodiscard]] qsizetype Locate(const Bookmark& bookmark) const;
  void Erase(qsizetype position);
  void LandForward();
  void LandBackward();

  std::vector<qint64> keys_;
  qsizetype position_ = 0;  // -1 before the first row, the size past the last
  qsizetype visited_ = 0;
  bool deletedHere_ = false;  // the row before position_ was current and has been deleted
};
