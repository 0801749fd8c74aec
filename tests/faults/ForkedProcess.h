// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

#include <functional>
#include <memory>
#include <optional>
#include <sys/types.h>

// One end of a line between two processes, on which whole messages go to and fro.
class Line
{
public:
  explicit Line(int socket) : socket_(socket) {}
  ~Line();
  Line(const Line&) = delete;
  Line& operator=(const Line&) = delete;

  void Say(const QByteArray& message) const;
  // The next message; nothing when the other end is gone.
  [[nodiscard]] std::optional<QByteArray> Hear() const;

private:
  int socket_;
};

// How a process ended.
struct Ending
{
  bool killed = false;  // by SIGKILL
  int status = 0;       // what it gave back, or the signal that ended it, as a negative number
};

// Waits for a child of this process to end.
[[nodiscard]] Ending AwaitEnding(pid_t process);

// A process of its own that does some work over a copy of all that this one has in memory,
// and ends with it. Killed when its owner has no more use for it.
class ForkedProcess
{
public:
  explicit ForkedProcess(const std::function<void(const Line&)>& work);
  ~ForkedProcess();
  ForkedProcess(const ForkedProcess&) = delete;
  ForkedProcess& operator=(const ForkedProcess&) = delete;

  // The line to it.
  [[nodiscard]] const Line& Other() const { return *line_; }

private:
  pid_t process_ = -1;
  std::unique_ptr<Line> line_;
};
