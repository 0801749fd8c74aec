// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <utility>

// A command is all that one event sets off: a click with everything its handler does.
// What the program writes within one command is kept together, all of it or nothing.
namespace Command {

// Somebody who holds back writes until the command ends.
class Participant
{
public:
  virtual ~Participant() = default;
  // Makes the writes lasting. May throw a RuntimeError; then none of them stands.
  virtual void Settle() = 0;
  // Takes the writes back. Never throws.
  virtual void Abandon() noexcept = 0;
};

// True while a command runs.
[[nodiscard]] bool IsRunning();

// Counts the commands: another number, another command.
[[nodiscard]] long Serial();

// Has `participant` settled or abandoned when the running command ends. Not owned.
void Enlist(Participant& participant);

// Forgets the participant.
void Withdraw(Participant& participant);

// Settles what was written so far, within a command.
void Settle();

// Takes back what was written since the last Settle, within a command.
void Abandon() noexcept;

// Opens a command, or joins the one that runs. Without Complete it is abandoned.
class Scope
{
public:
  Scope();
  ~Scope();
  Scope(const Scope&) = delete;
  Scope& operator=(const Scope&) = delete;

  // Ends the command well. Throws what Settle throws.
  void Complete();

private:
  bool completed_ = false;
};

// Settles and leaves the command while the program waits for its user, as in a
// message box; what happens meanwhile are commands of their own.
class Pause
{
public:
  Pause();
  ~Pause();
  Pause(const Pause&) = delete;
  Pause& operator=(const Pause&) = delete;

private:
  int depth_;
};

// Runs `work` as a command, or as a piece of the one that runs.
template <typename Work>
void Run(Work&& work)
{
  Scope scope;
  std::forward<Work>(work)();
  scope.Complete();
}

}
