// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ForkedProcess.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

Line::~Line()
{
  close(socket_);
}

void Line::Say(const QByteArray& message) const
{
  static_cast<void>(send(socket_, message.constData(), static_cast<std::size_t>(message.size()), MSG_NOSIGNAL));
}

std::optional<QByteArray> Line::Hear() const
{
  QByteArray message(1 << 16, Qt::Uninitialized);
  const ssize_t size = TEMP_FAILURE_RETRY(recv(socket_, message.data(), static_cast<std::size_t>(message.size()), 0));
  return size > 0 ? std::optional(message.left(size)) : std::nullopt;
}

Ending AwaitEnding(pid_t process)
{
  int status = 0;
  TEMP_FAILURE_RETRY(waitpid(process, &status, 0));
  const bool killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
  return {killed, WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status)};
}

ForkedProcess::ForkedProcess(const std::function<void(const Line&)>& work)
{
  QCoreApplication::processEvents();  // two processes share what wakes them up: it is not to be pending
  int sockets[2] = {-1, -1};
  if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, sockets) != 0 || (process_ = fork()) < 0) {
    throw std::runtime_error("no process can be had");
  }
  line_ = std::make_unique<Line>(sockets[process_ == 0 ? 1 : 0]);
  close(sockets[process_ == 0 ? 0 : 1]);
  if (process_ == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    work(*line_);
    _exit(EXIT_SUCCESS);
  }
}

ForkedProcess::~ForkedProcess()
{
  kill(process_, SIGKILL);
  static_cast<void>(AwaitEnding(process_));
}
