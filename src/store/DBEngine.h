// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "store/Database.h"

// A session. There is one, the default.
class Workspace
{
public:
  // Opens the file shared and for reading and writing; it must exist.
  // Throws 3024 if it does not, 3343 if it is no database, 3260 if another program
  // locks it, 3027 if it cannot be written.
  [[nodiscard]] Database OpenDatabase(const QString& path);
};

namespace DBEngine {

// The session of that number; 0 is the default and the only one.
[[nodiscard]] Workspace& Workspaces(int number);

// Writes a compacted copy of the database at `source` to a new file, for its owner alone.
// Throws 3204 if `target` exists, 3356 if `source` is in use.
void CompactDatabase(const QString& source, const QString& target);

// The program's own database, "quillmark2002.mdb" in its folder.
[[nodiscard]] QString DatabasePath();
[[nodiscard]] Database OpenDatabase();

}
