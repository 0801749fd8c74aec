// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Apart.h"
#include "Damage.h"

// A day of the program on a folder of which something is damaged: the start with its check,
// pages in an order of chance, a look around on each, and the end. Tells "box: TEXT" of each
// message, "at: PAGE" of each page that has come up, and "written at: PAGE" if a page has
// changed the database while only looking was done.
namespace Visit {

// All pages there are to visit.
[[nodiscard]] int PageCount();

void Program(const Apart::Say& say, Damage& chance, int pages);

// The same with these pages, by the names that "at: PAGE" tells.
void Pages(const Apart::Say& say, const QStringList& pages);

}
