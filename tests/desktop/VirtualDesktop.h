// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>
#include <optional>

// A virtual display with a small window manager, and the program started on it as its
// user would: the real binary in a laid folder of its own.
class VirtualDesktop
{
public:
  explicit VirtualDesktop(const QString& screen = QStringLiteral("1280x900x24"));
  ~VirtualDesktop();
  VirtualDesktop(const VirtualDesktop&) = delete;
  VirtualDesktop& operator=(const VirtualDesktop&) = delete;

  // The program's folder, copied from the laid one.
  [[nodiscard]] const QString& Folder() const { return folder_; }
  [[nodiscard]] QString File(const QString& relative) const { return folder_ + relative; }

  // Gives the program's folder another name.
  void RenameFolder(const QString& name);

  void SetEnvironment(const QString& name, const QString& value);
  void RunSql(const QString& sql) const;
  [[nodiscard]] QString QuerySql(const QString& sql) const;

  // Starts a copy of the program. With a user, as that user.
  std::unique_ptr<QProcess> StartProgram(const QStringList& launcher = {}) const;

  // Starts any command on the display.
  std::unique_ptr<QProcess> Start(const QStringList& command, const QString& workingDirectory = {}) const;

  // The first visible window of the process with that title; waits for it.
  [[nodiscard]] std::optional<QString> AwaitWindow(const QProcess& program, const QString& title) const;
  // The same of whatever process.
  [[nodiscard]] std::optional<QString> AwaitWindow(const QString& title) const;
  [[nodiscard]] bool HasVisibleWindow(const QProcess& program, const QString& title) const;

  // All windows of the process with that title, also those that are not visible.
  [[nodiscard]] QStringList Windows(const QProcess& program, const QString& title) const;
  [[nodiscard]] QString Property(const QString& window, const QString& name) const;

  // Runs a tool on the display and gives what it prints.
  QString Run(const QString& tool, const QStringList& arguments) const;
  void Press(const QString& window, const QString& key) const;
  void ClickAt(const QString& window, int x, int y) const;

private:
  [[nodiscard]] std::optional<QString> AwaitFound(const QStringList& search) const;
  void StartDisplay(const QString& screen);
  bool TryDisplay(const QString& screen);
  void StopDisplay();
  void CopyLaidFolder();

  QTemporaryDir directory_;
  QString folder_;
  QProcessEnvironment environment_;
  QProcess display_;
  QProcess windowManager_;
};
