// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/Frame.h"

#include "platform/RuntimeError.h"

namespace {

Frame* current = nullptr;

}

Frame::Frame()
{
  current = this;
}

Frame::~Frame()
{
  current = nullptr;
}

Frame& Frame::Current()
{
  if (current == nullptr) {
    RaiseError(ErrorNumber::kObjectUnloaded);
  }
  return *current;
}

bool Frame::Exists()
{
  return current != nullptr;
}
