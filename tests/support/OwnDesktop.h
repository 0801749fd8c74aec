// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QHash>
#include <QStringList>
#include <QTemporaryDir>

#include <vector>

// A user's folders, a PATH and lists of associations of a test's own, so that no program
// of this machine is found unless the test asks for it, and nothing of its user is read.
// Programs on it are stand-ins that record how they are started.
class OwnDesktop
{
public:
  // One start of a stand-in: its arguments, and what it saw of the file that is the last.
  struct Start
  {
    QString program;
    QStringList arguments;
    QByteArray content;
    QString permissions;  // of the file and of its folder: "600 700"

    [[nodiscard]] QString LastArgument() const { return arguments.isEmpty() ? QString() : arguments.last(); }
  };

  OwnDesktop();
  ~OwnDesktop();
  OwnDesktop(const OwnDesktop&) = delete;
  OwnDesktop& operator=(const OwnDesktop&) = delete;

  [[nodiscard]] QString File(const QString& relative) const { return folder_.filePath(relative); }
  void Lay(const QString& relative, const QByteArray& content) const;

  // A program of this name on the PATH that records its start and then runs `script`, in
  // which $1 is its first argument and $file its last.
  void LayProgram(const QString& name, const QByteArray& script = "exit 0") const;

  // The same without a record: no more than `script`.
  void LayScript(const QString& name, const QByteArray& script) const;

  // A script's end: it waits for Release, or for the end of the test.
  [[nodiscard]] QByteArray UntilReleased() const;
  void Release() const;

  // An entry of that name, with "Exec" as given.
  void LayEntry(const QString& name, const QByteArray& exec, const QByteArray& further = {}) const;
  // Chooses the entries as the user's for a kind of document.
  void Choose(const QByteArray& mimeType, const QByteArray& entries) const;

  // Gives the programs of this machine back to the PATH, behind those of the test.
  void AddSystemPrograms() const;

  // The recorded starts, the earliest first.
  [[nodiscard]] std::vector<Start> Starts() const;
  // Waits until there are so many, and gives the latest; an empty one if they do not come.
  [[nodiscard]] Start AwaitStart(std::size_t number) const;

private:
  void Set(const char* variable, const QString& value);

  QTemporaryDir folder_;
  QHash<QByteArray, QByteArray> before_;
};
