// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "store/Dialect.h"
#include "store/ListCursor.h"

// The rows of a grouped query, read once. It cannot be changed.
class Snapshot : public ListCursor
{
public:
  Snapshot(const std::shared_ptr<Connection>& connection, const Dialect::Select& select, const TableSchema& table);

protected:
  [[nodiscard]] bool IsThere(qsizetype position) override;
  [[nodiscard]] const QVariant& ReadValue(int column) override;
  [[nodiscard]] bool IsUpdatable() const override;

private:
  std::vector<std::vector<QVariant>> rows_;
};
