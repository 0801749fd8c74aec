// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Apart.h"

// The program's database, read through every table, index and query that the program has.
namespace StoreWalk {

// Tells "refused: N" for each cursor that failed with N, "endless: NAME" for one that does not
// come to an end, and "written at: the store" if the file is not as before.
void Everything(const Apart::Say& say);

}
