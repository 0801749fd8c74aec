// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <unistd.h>

// As long as this lives, the test may no more than a plain user, even if the superuser
// runs it.
class WithoutRights
{
public:
  WithoutRights()
  {
    constexpr uid_t kNobody = 65534;
    done_ = !superuser_ || (setresgid(kNobody, kNobody, 0) == 0 && setresuid(kNobody, kNobody, 0) == 0);
  }
  ~WithoutRights() { done_ = !superuser_ || (setresuid(0, 0, 0) == 0 && setresgid(0, 0, 0) == 0); }
  WithoutRights(const WithoutRights&) = delete;
  WithoutRights& operator=(const WithoutRights&) = delete;

  [[nodiscard]] bool Done() const { return done_; }

private:
  bool superuser_ = geteuid() == 0;
  bool done_ = false;
};
