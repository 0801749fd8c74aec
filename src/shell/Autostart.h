// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// The entry that has the desktop start the program with its user's session.
namespace Autostart {

// The entry in the user's autostart folder. Throws 75 if no such folder can be told.
[[nodiscard]] QString EntryPath();

// Makes the entry for the program in its present folder, in the place of an older one,
// whole or not at all. Throws 75 if it cannot.
void Create();

// Takes the entry away. Throws 53 if there is none, 75 if it cannot be removed.
void Remove();

}
