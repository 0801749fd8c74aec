// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <unistd.h>

// As long as this lives, the test may no more than a plain user, even if the superuser
// runs it.
class WithoutRights
{
public:
  WithoutRights() : user_(geteuid())
  {
    constexpr uid_t kNobody = 65534;
    done_ = user_ != 0 || seteuid(kNobody) == 0;
  }
  ~WithoutRights() { done_ = seteuid(user_) == 0; }
  WithoutRights(const WithoutRights&) = delete;
  WithoutRights& operator=(const WithoutRights&) = delete;

  [[nodiscard]] bool Done() const { return done_; }

private:
  uid_t user_;
  bool done_ = false;
};
