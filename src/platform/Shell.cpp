// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Shell.h"

#include "platform/Privacy.h"

#include <QDesktopServices>
#include <QProcess>
#include <QUrl>

#include <unistd.h>

namespace {

// Long enough for a program to see that it cannot run, too short to be a nuisance.
constexpr int kMoment = 400;

}

bool Shell::Open(const QUrl& address)
{
  const Privacy::AsUsersOthers permissions;
  return QDesktopServices::openUrl(address);
}

// A QProcess ends its program when it is destroyed, so it lives until the program ends of
// itself or this process does.
bool Shell::Start(const QStringList& command, const std::function<void()>& ended)
{
  const Privacy::AsUsersOthers permissions;
  auto* process = new QProcess;
  process->setChildProcessModifier([] { ::setsid(); });
  process->setStandardInputFile(QProcess::nullDevice());
  process->setStandardOutputFile(QProcess::nullDevice());
  process->setStandardErrorFile(QProcess::nullDevice());
  process->start(command.value(0), command.mid(1));
  const bool hasStarted = process->waitForStarted();
  if (hasStarted && !process->waitForFinished(kMoment)) {
    QObject::connect(process, &QProcess::finished, process, [process, ended] {
      process->deleteLater();
      ended();
    });
    return true;
  }
  const bool hasDone = hasStarted && process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0;
  delete process;
  return hasDone;
}
