// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// The commands that look after the database file. Each tells or hides its failures
// itself, and neither is for a time when a page holds the database open.
namespace DatabaseCare {

// Asks first, then rebuilds the file by way of a copy beside it. All rows are in one of
// the two files at any moment.
void Compact();

// Copies the file to where the user likes. What stands there is whole until the copy is.
void Backup();

}
