// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "charts/ChartRow.h"

// The rows in their order, at most so many (2 and up): of more, the smallest are counted
// together in a last row, "Others".
[[nodiscard]] ChartRows Gather(const ChartRows& rows, std::size_t most);
