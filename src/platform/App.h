// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// The running program and its folder.
namespace App {

inline constexpr auto kTitle = "Quillmark";

// The program's folder, without a slash at its end.
[[nodiscard]] QString Path();

// A file of the program's folder; `relative` begins with a slash.
[[nodiscard]] QString File(const QString& relative);

// Takes another folder for the program's own. Lets go of the claim below.
void SetPath(const QString& folder);

// Claims the program's folder for this copy, for as long as the process lives or
// until SetPath. True if another running copy holds it already. Where the file
// system knows no locks, no other copy is ever seen.
[[nodiscard]] bool PrevInstance();

}
