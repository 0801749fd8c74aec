// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Attempt.h"

#include <gtest/gtest.h>

TEST(RuntimeError, MessageHasTheNumberAndTheText)
{
  const RuntimeError error(3021, QStringLiteral("No current record."));
  EXPECT_EQ(error.Message(), QStringLiteral("Run-time error '3021':\n\nNo current record."));
}

TEST(RuntimeError, AttemptStepsOverAFailureAndSaysSo)
{
  EXPECT_FALSE(Attempt([] { RaiseError(ErrorNumber::kTypeMismatch); }));
  EXPECT_TRUE(Attempt([] {}));
}
