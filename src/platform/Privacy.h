// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// What the program writes is for its user's eyes alone.
namespace Privacy {

// From here on files and folders that this process makes can be used by their owner alone.
void KeepToOwner();

// While it lives, files and programs get the permissions that the user's other programs
// give them: for starting programs, which take theirs from this one.
class AsUsersOthers
{
public:
  AsUsersOthers();
  ~AsUsersOthers();
  AsUsersOthers(const AsUsersOthers&) = delete;
  AsUsersOthers& operator=(const AsUsersOthers&) = delete;

private:
  unsigned int before_;
};

// Takes a program's folder, its database, pictures and texts away from everybody but their
// owner. A folder without a database is none of ours and stays as it is; so do links, and
// what the system does not let us change.
void CloseToOthers(const QString& programFolder);

}
