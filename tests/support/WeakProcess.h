// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/ErrorOf.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// What `work` fails with in a process of its own, run as a user without rights, whose
// files grow no longer than `limit`.
template <typename Work>
int ErrorInAWeakProcess(Work&& work, rlim_t limit = RLIM_INFINITY)
{
  int pipeEnds[2] = {};
  if (pipe(pipeEnds) != 0) {
    return -1;
  }
  const pid_t child = fork();
  if (child == 0) {
    const rlimit sizes{limit, limit};
    signal(SIGXFSZ, SIG_IGN);
    int result = -1;
    if (setrlimit(RLIMIT_FSIZE, &sizes) == 0 && (geteuid() != 0 || (setgid(65534) == 0 && setuid(65534) == 0))) {
      result = ErrorOf(work);
    }
    static_cast<void>(!write(pipeEnds[1], &result, sizeof result));
    _exit(0);
  }
  close(pipeEnds[1]);
  int result = -1;
  if (read(pipeEnds[0], &result, sizeof result) != sizeof result) {
    result = -1;
  }
  close(pipeEnds[0]);
  waitpid(child, nullptr, 0);
  return result;
}
