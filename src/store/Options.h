// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "store/Database.h"

// The one row of settings.
namespace Options {

// A cursor on the row. Throws 3078 without the table.
[[nodiscard]] std::unique_ptr<Recordset> Open(Database& database);

// A setting that must be there. Throws 94 for Null.
[[nodiscard]] QVariant Required(Recordset& options, const QString& column);

// Writes settings of the program's database at once, those of one call together.
void Write(const QVariantMap& valuesByColumn);
void Write(const QString& column, const QVariant& value);

// A YesNo compared with True or False; Null is neither.
[[nodiscard]] bool IsTrue(const QVariant& value);
[[nodiscard]] bool IsFalse(const QVariant& value);

}
