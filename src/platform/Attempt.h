// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/RuntimeError.h"

// Runs one statement of a handler that steps over failures.
// Returns false if it failed; what it did before failing stands.
template <typename Statement>
bool Attempt(Statement&& statement)
{
  try {
    statement();
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}
