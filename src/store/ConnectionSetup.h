// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

struct sqlite3;

// Gives a connection to a database file what every one has: the program's order of texts, by
// the name TEXTORDER, patience with other programs, and no trust in the file's schema.
void SetUpConnection(sqlite3* connection);
