// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Scene.h"

// Where the user does something that is written: a page with everything entered that it
// takes, right before the click.
struct Stage
{
  const char* name;
  void (*play)(Scene& scene);
  // Opens a page that shows what was written, at the next start.
  void (*look)(Scene& scene);
};

inline void PrintTo(const Stage& stage, std::ostream* out)
{
  *out << stage.name;
}

namespace Stages {

[[nodiscard]] std::vector<Stage> OfRecords();
[[nodiscard]] std::vector<Stage> OfCouples();
[[nodiscard]] std::vector<Stage> OfEvents();
[[nodiscard]] std::vector<Stage> OfSettings();
[[nodiscard]] std::vector<Stage> OfCare();

}
