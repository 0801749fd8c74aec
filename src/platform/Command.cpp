// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Command.h"

#include <algorithm>
#include <vector>

namespace Command {
namespace {

int depth = 0;
long serial = 0;
std::vector<Participant*> participants;

}

bool IsRunning()
{
  return depth > 0;
}

long Serial()
{
  return serial;
}

void Enlist(Participant& participant)
{
  if (std::find(participants.begin(), participants.end(), &participant) == participants.end()) {
    participants.push_back(&participant);
  }
}

void Withdraw(Participant& participant)
{
  std::erase(participants, &participant);
}

void Settle()
{
  while (!participants.empty()) {
    Participant* participant = participants.back();
    participants.pop_back();
    participant->Settle();
  }
}

void Abandon() noexcept
{
  for (Participant* participant : std::exchange(participants, {})) {
    participant->Abandon();
  }
}

Scope::Scope()
{
  if (depth++ == 0) {
    ++serial;
  }
}

Scope::~Scope()
{
  --depth;
  if (!completed_ && depth == 0) {
    Abandon();
  }
}

void Scope::Complete()
{
  if (depth == 1) {
    Settle();
  }
  completed_ = true;
}

Pause::Pause() : depth_(depth)
{
  Settle();
  depth = 0;
}

Pause::~Pause()
{
  depth = depth_;
  ++serial;
}

}
