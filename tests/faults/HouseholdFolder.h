// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/ProgramFolder.h"

#include <QByteArray>
#include <QMap>

// A program's folder with a household in it: couples, singles, events, pictures, and many
// rows beside them.
class HouseholdFolder
{
public:
  HouseholdFolder();

  [[nodiscard]] const ProgramFolder& Folder() const { return folder_; }
  [[nodiscard]] bool HasDatabase() const;
  // Where a compaction leaves its copy when it is broken off.
  [[nodiscard]] bool HasCopy() const;
  void PutCopyInPlace() const;

  // Everything that lasts: the rows of all tables, and the other files by their names.
  struct State
  {
    QByteArray rows;
    QMap<QString, QByteArray> files;
  };
  // The rows as any other program reads them; what SQLite finds wrong stands in them too.
  [[nodiscard]] State Read() const;

  // As the next command that writes does. What was left behind of a transaction goes with it.
  void WriteAnything() const;

  // All files byte by byte, to be put back where and as they were.
  using Image = QMap<QString, QByteArray>;
  [[nodiscard]] Image Take() const;
  void PutBack(const Image& image) const;

  // From what a user without rights is kept; 0 and up.
  enum class Locked
  {
    kFolder,
    kPictures,
    kEverything
  };
  void TakeRights(Locked locked) const;
  void GiveRights() const;

private:
  void AddPeople() const;
  void AddCouplesAndEvents() const;
  void AddFiles() const;
  void SetModes(const QString& path, int folders, int files) const;

  ProgramFolder folder_;
};
