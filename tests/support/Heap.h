// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

// What the program holds in its heap.
namespace Heap {

[[nodiscard]] qint64 BytesInUse();

}
