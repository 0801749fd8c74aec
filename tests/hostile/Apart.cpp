// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Apart.h"

#include "platform/Application.h"

#include <cerrno>
#include <csignal>
#include <exception>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Apart {
namespace {

constexpr int kStoppedStatus = 40;
constexpr rlim_t kSecondsOfWork = 60;
constexpr unsigned kSecondsInAll = 300;

// What takes for ever ends by a signal: by the clock if it waits, else by its work.
void LimitTime()
{
  const rlimit limit{kSecondsOfWork, kSecondsOfWork};
  setrlimit(RLIMIT_CPU, &limit);
  alarm(kSecondsInAll);
}

[[noreturn]] void DoAndExit(const std::function<void(const Say& say)>& work, int target)
{
  LimitTime();
  Application::SetEnding([](int) { _exit(kStoppedStatus); });
  try {
    work([target](const QString& line) {
      const QByteArray text = QString(line).replace(u'\n', u' ').toUtf8() + '\n';
      static_cast<void>(!write(target, text.constData(), static_cast<std::size_t>(text.size())));
    });
  } catch (const std::exception& error) {
    fprintf(stderr, "an exception was left: %s\n", error.what());
    abort();
  }
  _exit(EXIT_SUCCESS);
}

QStringList LinesFrom(int source)
{
  QByteArray all;
  char buffer[4096];
  for (ssize_t size = 0; (size = TEMP_FAILURE_RETRY(read(source, buffer, sizeof buffer))) > 0;) {
    all.append(buffer, size);
  }
  return QString::fromUtf8(all).split(u'\n', Qt::SkipEmptyParts);
}

End EndOf(int status)
{
  if (WIFEXITED(status)) {
    const int code = WEXITSTATUS(status);
    return code == EXIT_SUCCESS ? End::kWell : code == kStoppedStatus ? End::kStopped : End::kCrashed;
  }
  const int signal = WTERMSIG(status);
  return signal == SIGALRM || signal == SIGXCPU || signal == SIGKILL ? End::kHung : End::kCrashed;
}

}

Outcome Run(const std::function<void(const Say& say)>& work)
{
  int ends[2] = {};
  if (pipe(ends) != 0) {
    throw std::runtime_error("no pipe can be had");
  }
  const pid_t process = fork();
  if (process == 0) {
    close(ends[0]);
    DoAndExit(work, ends[1]);
  }
  close(ends[1]);
  Outcome outcome;
  outcome.said = LinesFrom(ends[0]);
  close(ends[0]);
  int status = 0;
  TEMP_FAILURE_RETRY(waitpid(process, &status, 0));
  outcome.end = EndOf(status);
  return outcome;
}

}
