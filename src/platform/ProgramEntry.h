// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

// A program as the desktop describes it in a file of its own.
struct ProgramEntry
{
  QString path;  // of the description; may be empty
  QString name;
  QString icon;
  QString command;  // with codes for what the program is to open
  QString probe;    // a program that is there if this one is; may be empty
  QStringList categories;
  bool runsInTerminal = false;

  // An entry without a command if the file cannot be read, is no program's or is hidden.
  [[nodiscard]] static ProgramEntry Read(const QString& path);

  // True if its program is installed and has windows of its own.
  [[nodiscard]] bool CanStart() const;

  // The program and its arguments that open `file`, with `options` right before it. A
  // command without a code for files takes them last. Empty if the command is broken.
  [[nodiscard]] QStringList CommandToOpen(const QString& file, const QStringList& options = {}) const;
};
