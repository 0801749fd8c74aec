// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QIcon>

// The program's icon, "animp.ico" in its folder, for windows that can do without: none if
// the file is missing or damaged.
[[nodiscard]] QIcon WindowIcon();
