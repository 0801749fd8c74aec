// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Attempt.h"

#include <gtest/gtest.h>

#include <stdexcept>

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

TEST(RuntimeError, KeepsItsNumberAndItsText)
{
  const RuntimeError error(53, QStringLiteral("Datei „é“ 🎂"));
  EXPECT_EQ(error.Number(), 53);
  EXPECT_EQ(error.Text(), QStringLiteral("Datei „é“ 🎂"));
  const RuntimeError copy = error;
  EXPECT_EQ(copy.Message(), error.Message());
  EXPECT_STREQ(copy.what(), error.what());
}

TEST(RuntimeError, OfAVeryLongTextTheBeginningIsKept)
{
  const QString name = QString(999, u'n');
  EXPECT_EQ(RuntimeError(75, name + u'n').Text(), name + u'n');
  EXPECT_EQ(RuntimeError(75, name + QStringLiteral("nn")).Text(), name + QStringLiteral("n…"));
  EXPECT_EQ(RuntimeError(75, name + QStringLiteral("🎂")).Text(), name + QStringLiteral("…"));
  EXPECT_LT(RuntimeError(75, QString(10'000'000, u'n')).Message().size(), 1100);
}

TEST(RuntimeError, EveryNumberHasItsText)
{
  const struct
  {
    int number;
    const char* text;
  } kCases[] = {
      {ErrorNumber::kOverflow, "Overflow"},
      {ErrorNumber::kSubscriptOutOfRange, "Subscript out of range"},
      {ErrorNumber::kTypeMismatch, "Type mismatch"},
      {ErrorNumber::kFileNotFound, "File not found"},
      {ErrorNumber::kFileAccess, "Path/File access error"},
      {ErrorNumber::kInvalidUseOfNull, "Invalid use of Null"},
      {ErrorNumber::kObjectUnloaded, "Object was unloaded"},
      {ErrorNumber::kSetWithinPage, "Property cannot be set within a page"},
      {ErrorNumber::kInvalidPicture, "Invalid picture"},
      {ErrorNumber::kPrinter, "Printer error"},
  };
  for (const auto& [number, text] : kCases) {
    try {
      RaiseError(number);
      FAIL() << number;
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), number);
      EXPECT_EQ(error.Text(), text);
    }
  }
}

TEST(RuntimeError, AttemptKeepsWhatWasDoneBeforeTheFailure)
{
  int done = 0;
  EXPECT_FALSE(Attempt([&] {
    done = 1;
    RaiseError(ErrorNumber::kOverflow);
  }));
  EXPECT_EQ(done, 1);
}

TEST(RuntimeError, AttemptLetsOtherExceptionsPass)
{
  EXPECT_THROW(Attempt([] { throw std::runtime_error("stop"); }), std::runtime_error);
}
