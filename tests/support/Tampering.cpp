// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/Tampering.h"

#include <QFile>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace Tampering {
namespace {

constexpr int kPatience = 30000;

// The calls by which files are changed, whichever of them a machine has.
const QString kCalls =
    "?openat,?open,?creat,?write,?writev,?pwrite64,?ftruncate,?fallocate,?fsync,?fdatasync,?unlink,?unlinkat,?rename,"
    "?renameat,?renameat2,?link,?linkat,?chmod,?fchmod,?fchmodat";

// A process that does the work and waits for somebody to watch it. What it says goes
// through a socket, since writes are watched.
class Worker
{
public:
  explicit Worker(const Work& work)
  {
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets_) != 0 || (process_ = fork()) < 0) {
      throw std::runtime_error("no process can be had");
    }
    if (process_ == 0) {
      DoAndExit(work);
    }
    close(sockets_[1]);
    int status = 0;
    if (TEMP_FAILURE_RETRY(waitpid(process_, &status, WUNTRACED)) != process_ || !WIFSTOPPED(status)) {
      throw std::runtime_error("the process does not wait");
    }
  }
  ~Worker()
  {
    if (process_ > 0) {
      kill(process_, SIGKILL);
      TEMP_FAILURE_RETRY(waitpid(process_, nullptr, 0));
    }
    close(sockets_[0]);
  }
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

  [[nodiscard]] pid_t Process() const { return process_; }

  // Lets the work go on to its end. True if it was killed.
  [[nodiscard]] bool Finish()
  {
    int status = 0;
    const pid_t process = std::exchange(process_, -1);
    kill(process, SIGCONT);
    TEMP_FAILURE_RETRY(waitpid(process, &status, 0));
    const bool killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    if (!killed && status != EXIT_SUCCESS) {
      throw std::runtime_error("the work has gone astray: " + std::to_string(status));
    }
    return killed;
  }

  [[nodiscard]] QStringList Said() const
  {
    QByteArray all;
    char buffer[4096];
    for (ssize_t size = 0; (size = TEMP_FAILURE_RETRY(recv(sockets_[0], buffer, sizeof buffer, 0))) > 0;) {
      all.append(buffer, size);
    }
    return QString::fromUtf8(all).split(u'\n', Qt::SkipEmptyParts);
  }

private:
  [[noreturn]] void DoAndExit(const Work& work) const
  {
    prctl(PR_SET_PTRACER, PR_SET_PTRACER_ANY);
    raise(SIGSTOP);
    try {
      work([this](const QString& line) {
        const QByteArray text = line.toUtf8() + '\n';
        static_cast<void>(send(sockets_[1], text.constData(), static_cast<std::size_t>(text.size()), 0));
      });
    } catch (const std::exception&) {
      _exit(EXIT_FAILURE);
    }
    _exit(EXIT_SUCCESS);
  }

  int sockets_[2] = {-1, -1};
  pid_t process_ = -1;
};

QByteArray Contents(const QString& path)
{
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool ChangesFiles(const QString& line)
{
  return !line.startsWith("open") || line.contains("O_CREAT") || line.contains("O_WRONLY") || line.contains("O_RDWR");
}

std::vector<Step> StepsIn(const QByteArray& log, const QString& folder)
{
  std::vector<Step> steps;
  QMap<QString, int> counts;
  for (const QString& line : QString::fromUtf8(log).split(u'\n', Qt::SkipEmptyParts)) {
    const QString call = line.section(u'(', 0, 0);
    const int number = ++counts[call];
    if (line.contains(folder) && ChangesFiles(line)) {
      steps.push_back({call, number, line});
    }
  }
  return steps;
}

Outcome Run(const Work& work, const QString& folder, const QStringList& tampering)
{
  const QTemporaryDir beside;
  const QString log = beside.filePath("log");
  Worker worker(work);
  QProcess strace;
  strace.setStandardErrorFile(log);
  strace.start("strace", QStringList({"-y", "-e", "trace=" + kCalls}) + tampering +
                             QStringList({"-p", QString::number(worker.Process())}));
  if (!QTest::qWaitFor([&] { return Contents(log).contains("attached"); }, kPatience)) {
    throw std::runtime_error("strace does not watch: " + Contents(log).toStdString());
  }
  Outcome outcome;
  outcome.killed = worker.Finish();
  outcome.said = worker.Said();
  strace.waitForFinished(kPatience);
  outcome.steps = StepsIn(Contents(log), folder);
  return outcome;
}

}

Outcome Watch(const Work& work, const QString& folder)
{
  return Run(work, folder, {});
}

Outcome KillAt(const Step& step, const Work& work, const QString& folder)
{
  return Run(work, folder, {"-e", QString("inject=%1:signal=KILL:when=%2").arg(step.call).arg(step.number)});
}

// By plain writes, sanitizers look whether memory can be read: these are to go on.
Outcome FailAt(const Step& step, const QString& error, bool onwards, const Work& work, const QString& folder)
{
  const char* following = onwards && step.call != "write" ? "+" : "";
  return Run(work, folder,
             {"-e", QString("inject=%1:error=%2:when=%3%4").arg(step.call, error).arg(step.number).arg(following)});
}

}
