// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// Desktop entries: the files by which desktops start programs. Paths are taken as they
// are, whatever characters stand in them; nothing in them is expanded.
namespace DesktopEntry {

struct Program
{
  QString name;
  QString comment;
  QString binary;            // absolute
  QString workingDirectory;  // absolute
  QString icon;              // absolute
};

// An argument of a command line, quoted so that it stays one argument and stays as it is.
[[nodiscard]] QString Argument(const QString& text);

// The command line that starts a program.
[[nodiscard]] QString CommandLine(const QString& binary);

// A value as it is written behind its key.
[[nodiscard]] QString Value(const QString& text);

// The whole entry of a program that is started with the user's session, in UTF-8.
[[nodiscard]] QByteArray Text(const Program& program);

}
