// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/RuntimeError.h"

// The number of the failure that `work` throws; 0 if it throws none.
template <typename Work>
int ErrorOf(Work&& work)
{
  try {
    work();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}
