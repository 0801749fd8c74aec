// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "store/Schema.h"

class Connection;

// Reads what the file says of a table. Throws 3078 if it has no such table.
[[nodiscard]] TableSchema ReadTableSchema(Connection& connection, const QString& name);
