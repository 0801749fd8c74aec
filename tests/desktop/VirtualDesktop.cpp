// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "VirtualDesktop.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

#include <gtest/gtest.h>
#include <stdexcept>

namespace {

constexpr int kPatience = 30000;

QString Output(QProcess& process)
{
  if (!process.waitForFinished(kPatience)) {
    process.kill();
    process.waitForFinished();
  }
  return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

}

VirtualDesktop::VirtualDesktop(const QString& screen) : environment_(QProcessEnvironment::systemEnvironment())
{
  environment_.remove(QStringLiteral("QT_QPA_PLATFORM"));
  environment_.remove(QStringLiteral("WAYLAND_DISPLAY"));
  environment_.insert(QStringLiteral("XDG_RUNTIME_DIR"), directory_.path());
  environment_.insert(QStringLiteral("PULSE_SERVER"), QStringLiteral("unix:/nowhere"));
  environment_.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
  folder_ = directory_.filePath(QStringLiteral("Quillmark"));
  StartDisplay(screen);
  CopyLaidFolder();
}

VirtualDesktop::~VirtualDesktop()
{
  StopDisplay();
}

// A display whose number another program takes in the same moment does not come up
// well; then another one is tried.
void VirtualDesktop::StartDisplay(const QString& screen)
{
  constexpr int kTries = 5;
  for (int attempt = 0; attempt < kTries; ++attempt) {
    if (TryDisplay(screen)) {
      return;
    }
    StopDisplay();
  }
  throw std::runtime_error("no virtual display with a window manager can be had");
}

bool VirtualDesktop::TryDisplay(const QString& screen)
{
  display_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  display_.start(QStringLiteral("Xvfb"), {"-displayfd", "1", "-screen", "0", screen, "-nolisten", "tcp"});
  while (!display_.canReadLine()) {
    if (!display_.waitForReadyRead(kPatience)) {
      return false;
    }
  }
  environment_.insert(QStringLiteral("DISPLAY"),
                      QStringLiteral(":") + QString::fromUtf8(display_.readLine()).trimmed());
  windowManager_.setProcessEnvironment(environment_);
  windowManager_.start(QStringLiteral("openbox"), QStringList());
  return QTest::qWaitFor(
      [this] {
        return Run("xprop", {"-root", "_NET_SUPPORTING_WM_CHECK"}).contains(QLatin1String("window id"));
      },
      kPatience / 3);
}

void VirtualDesktop::StopDisplay()
{
  for (QProcess* process : {&windowManager_, &display_}) {
    process->terminate();
    process->waitForFinished(kPatience);
  }
}

void VirtualDesktop::CopyLaidFolder()
{
  QProcess copy;
  copy.start(QStringLiteral("cp"), {"-r", QStringLiteral(QUILLMARK_LAID_FOLDER), folder_});
  Output(copy);
  RunSql("DELETE FROM People; DELETE FROM Ann; DELETE FROM Reminders; UPDATE Options SET WindowState=0;");
}

void VirtualDesktop::SetEnvironment(const QString& name, const QString& value)
{
  environment_.insert(name, value);
}

void VirtualDesktop::RunSql(const QString& sql) const
{
  static_cast<void>(QuerySql(sql));
}

QString VirtualDesktop::QuerySql(const QString& sql) const
{
  return Run("sqlite3", {File("/quillmark2002.mdb"), sql});
}

void VirtualDesktop::RenameFolder(const QString& name)
{
  const QString renamed = directory_.filePath(name);
  if (!QDir().rename(folder_, renamed)) {
    throw std::runtime_error("the folder cannot be renamed");
  }
  folder_ = renamed;
}

std::unique_ptr<QProcess> VirtualDesktop::StartProgram(const QStringList& launcher) const
{
  return Start(launcher + QStringList(File(QStringLiteral("/quillmark"))));
}

std::unique_ptr<QProcess> VirtualDesktop::Start(const QStringList& command, const QString& workingDirectory) const
{
  auto program = std::make_unique<QProcess>();
  program->setProcessEnvironment(environment_);
  program->setProcessChannelMode(QProcess::ForwardedChannels);
  program->setWorkingDirectory(workingDirectory);
  program->start(command.first(), command.mid(1));
  EXPECT_TRUE(program->waitForStarted(kPatience));
  return program;
}

QString VirtualDesktop::Run(const QString& tool, const QStringList& arguments) const
{
  QProcess process;
  process.setProcessEnvironment(environment_);
  process.start(tool, arguments);
  return Output(process);
}

bool VirtualDesktop::HasVisibleWindow(const QProcess& program, const QString& title) const
{
  const QString pattern = QStringLiteral("^%1$").arg(QRegularExpression::escape(title));
  return !Run("xdotool",
              {"search", "--onlyvisible", "--all", "--pid", QString::number(program.processId()), "--name", pattern})
              .isEmpty();
}

QStringList VirtualDesktop::Windows(const QProcess& program, const QString& title) const
{
  const QString pattern = QStringLiteral("^%1$").arg(QRegularExpression::escape(title));
  return Run("xdotool", {"search", "--all", "--pid", QString::number(program.processId()), "--name", pattern})
      .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

std::optional<QString> VirtualDesktop::AwaitWindow(const QProcess& program, const QString& title) const
{
  const QString pattern = QStringLiteral("^%1$").arg(QRegularExpression::escape(title));
  return AwaitFound({"--all", "--pid", QString::number(program.processId()), "--name", pattern});
}

std::optional<QString> VirtualDesktop::AwaitWindow(const QString& title) const
{
  return AwaitFound({"--name", QStringLiteral("^%1$").arg(QRegularExpression::escape(title))});
}

std::optional<QString> VirtualDesktop::AwaitFound(const QStringList& search) const
{
  QString found;
  static_cast<void>(QTest::qWaitFor(
      [&] {
        found = Run("xdotool", QStringList({"search", "--onlyvisible"}) + search);
        return !found.isEmpty();
      },
      kPatience));
  return found.isEmpty() ? std::nullopt : std::optional(found.section(QLatin1Char('\n'), 0, 0));
}

QString VirtualDesktop::Property(const QString& window, const QString& name) const
{
  return Run("xprop", {"-id", window, name});
}

void VirtualDesktop::Press(const QString& window, const QString& key) const
{
  Run("xdotool", {"windowfocus", "--sync", window, "key", "--window", window, key});
}

void VirtualDesktop::ClickAt(const QString& window, int x, int y) const
{
  Run("xdotool", {"mousemove", "--sync", "--window", window, QString::number(x), QString::number(y), "click", "1"});
}
