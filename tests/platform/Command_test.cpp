// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Command.h"
#include "platform/RuntimeError.h"
#include "support/ErrorOf.h"

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>

namespace {

// Writes down what becomes of it.
class Writer : public Command::Participant
{
public:
  ~Writer() override { Command::Withdraw(*this); }

  void Settle() override
  {
    ++settled;
    if (failing) {
      RaiseError(ErrorNumber::kFileAccess);
    }
  }
  void Abandon() noexcept override { ++abandoned; }

  int settled = 0;
  int abandoned = 0;
  bool failing = false;
};

}

TEST(Command, RunsFromItsBeginningToItsEnd)
{
  EXPECT_FALSE(Command::IsRunning());
  Command::Run([] { EXPECT_TRUE(Command::IsRunning()); });
  EXPECT_FALSE(Command::IsRunning());
}

TEST(Command, EndsWithAnException)
{
  EXPECT_THROW(Command::Run([] { throw std::runtime_error("stop"); }), std::runtime_error);
  EXPECT_FALSE(Command::IsRunning());
}

TEST(Command, ANestedOneIsAPieceOfTheFirst)
{
  Command::Run([] {
    const long serial = Command::Serial();
    Command::Run([&] { EXPECT_EQ(Command::Serial(), serial); });
    EXPECT_TRUE(Command::IsRunning());
    EXPECT_EQ(Command::Serial(), serial);
  });
  EXPECT_FALSE(Command::IsRunning());
}

TEST(Command, EachHasAnotherSerial)
{
  long first = 0;
  long second = 0;
  long third = 0;
  Command::Run([&] { first = Command::Serial(); });
  EXPECT_THROW(Command::Run([&] {
                 second = Command::Serial();
                 throw std::runtime_error("stop");
               }),
               std::runtime_error);
  Command::Run([&] { third = Command::Serial(); });
  EXPECT_NE(first, second);
  EXPECT_NE(second, third);
  EXPECT_NE(first, third);
}

TEST(Command, SettlesOnceAtItsEnd)
{
  Writer writer;
  Command::Run([&] {
    Command::Enlist(writer);
    Command::Run([&] { Command::Enlist(writer); });
    EXPECT_EQ(writer.settled, 0);
  });
  EXPECT_EQ(writer.settled, 1);
  EXPECT_EQ(writer.abandoned, 0);
}

TEST(Command, SettlesEveryParticipant)
{
  Writer writers[3];
  Command::Run([&] {
    for (Writer& writer : writers) {
      Command::Enlist(writer);
    }
  });
  for (const Writer& writer : writers) {
    EXPECT_EQ(writer.settled, 1);
  }
}

TEST(Command, ForgetsItsParticipantsAtItsEnd)
{
  Writer writer;
  Command::Run([&] { Command::Enlist(writer); });
  Command::Run([] {});
  EXPECT_THROW(Command::Run([] { throw std::runtime_error("stop"); }), std::runtime_error);
  EXPECT_EQ(writer.settled, 1);
  EXPECT_EQ(writer.abandoned, 0);
}

TEST(Command, AbandonsOnAnException)
{
  Writer writers[2];
  EXPECT_THROW(Command::Run([&] {
                 Command::Enlist(writers[0]);
                 Command::Run([&] {
                   Command::Enlist(writers[1]);
                   throw std::runtime_error("stop");
                 });
               }),
               std::runtime_error);
  for (const Writer& writer : writers) {
    EXPECT_EQ(writer.settled, 0);
    EXPECT_EQ(writer.abandoned, 1);
  }
}

TEST(Command, AbandonsWithoutComplete)
{
  Writer writer;
  {
    const Command::Scope scope;
    Command::Enlist(writer);
  }
  EXPECT_EQ(writer.settled, 0);
  EXPECT_EQ(writer.abandoned, 1);
  EXPECT_FALSE(Command::IsRunning());
}

TEST(Command, WhoWithdrawsIsNeitherSettledNorAbandoned)
{
  Writer writer;
  Command::Run([&] {
    Command::Enlist(writer);
    Command::Withdraw(writer);
  });
  EXPECT_THROW(Command::Run([&] {
                 Command::Enlist(writer);
                 Command::Withdraw(writer);
                 throw std::runtime_error("stop");
               }),
               std::runtime_error);
  EXPECT_EQ(writer.settled, 0);
  EXPECT_EQ(writer.abandoned, 0);
}

TEST(Command, ThrowsWhatSettlingThrows)
{
  Writer writer;
  writer.failing = true;
  EXPECT_EQ(ErrorOf([&] { Command::Run([&] { Command::Enlist(writer); }); }), ErrorNumber::kFileAccess);
  EXPECT_FALSE(Command::IsRunning());
  EXPECT_EQ(writer.settled, 1);
  Command::Run([] {});
  EXPECT_EQ(writer.settled, 1);
}

TEST(Command, SettlesWhatWasWrittenSoFar)
{
  Writer writer;
  EXPECT_THROW(Command::Run([&] {
                 Command::Enlist(writer);
                 Command::Settle();
                 EXPECT_EQ(writer.settled, 1);
                 EXPECT_TRUE(Command::IsRunning());
                 Command::Enlist(writer);
                 throw std::runtime_error("stop");
               }),
               std::runtime_error);
  EXPECT_EQ(writer.settled, 1);
  EXPECT_EQ(writer.abandoned, 1);
}

TEST(Command, IsLeftForTheTimeOfAPause)
{
  Writer writer;
  Command::Run([&] {
    Command::Enlist(writer);
    {
      const Command::Pause pause;
      EXPECT_EQ(writer.settled, 1);
      EXPECT_FALSE(Command::IsRunning());
    }
    EXPECT_TRUE(Command::IsRunning());
  });
  EXPECT_EQ(writer.abandoned, 0);
  EXPECT_FALSE(Command::IsRunning());
}

TEST(Command, WhatHappensDuringAPauseAreOthers)
{
  Writer writer;
  Command::Run([&] {
    const long outer = Command::Serial();
    Command::Run([&] {
      const Command::Pause pause;
      Command::Run([&] {
        EXPECT_NE(Command::Serial(), outer);
        Command::Enlist(writer);
      });
      EXPECT_EQ(writer.settled, 1);
      EXPECT_THROW(Command::Run([&] {
                     Command::Enlist(writer);
                     throw std::runtime_error("stop");
                   }),
                   std::runtime_error);
      EXPECT_EQ(writer.abandoned, 1);
    });
    EXPECT_TRUE(Command::IsRunning());
  });
  EXPECT_EQ(writer.settled, 1);
  EXPECT_EQ(writer.abandoned, 1);
}

TEST(Command, NestsAgainAfterAPause)
{
  Writer writer;
  Command::Run([&] {
    Command::Run([&] {
      {
        const Command::Pause pause;
      }
      Command::Enlist(writer);
    });
    EXPECT_EQ(writer.settled, 0);
    EXPECT_TRUE(Command::IsRunning());
  });
  EXPECT_EQ(writer.settled, 1);
}

TEST(Command, PausesNest)
{
  Command::Run([] {
    {
      const Command::Pause pause;
      Command::Run([] {
        {
          const Command::Pause inner;
          EXPECT_FALSE(Command::IsRunning());
        }
        EXPECT_TRUE(Command::IsRunning());
      });
      EXPECT_FALSE(Command::IsRunning());
    }
    EXPECT_TRUE(Command::IsRunning());
  });
  EXPECT_FALSE(Command::IsRunning());
}

TEST(Command, APauseOutsideOfOneIsNothing)
{
  {
    const Command::Pause pause;
    EXPECT_FALSE(Command::IsRunning());
    Command::Run([] { EXPECT_TRUE(Command::IsRunning()); });
  }
  EXPECT_FALSE(Command::IsRunning());
}

TEST(Command, AnExceptionLeavesItThroughAPause)
{
  Writer writer;
  EXPECT_THROW(Command::Run([&] {
                 Command::Enlist(writer);
                 const Command::Pause pause;
                 throw std::runtime_error("stop");
               }),
               std::runtime_error);
  EXPECT_EQ(writer.settled, 1);
  EXPECT_EQ(writer.abandoned, 0);
  EXPECT_FALSE(Command::IsRunning());
}

TEST(Command, APauseThrowsWhatSettlingThrows)
{
  Writer writer;
  writer.failing = true;
  bool waited = false;
  EXPECT_EQ(ErrorOf([&] {
              Command::Run([&] {
                Command::Enlist(writer);
                const Command::Pause pause;
                waited = true;
              });
            }),
            ErrorNumber::kFileAccess);
  EXPECT_FALSE(waited);
  EXPECT_FALSE(Command::IsRunning());
  Command::Run([] { EXPECT_TRUE(Command::IsRunning()); });
  EXPECT_FALSE(Command::IsRunning());
}

TEST(Command, AParticipantMayGoBeforeItsEnd)
{
  Command::Run([] {
    std::optional<Writer> writer;
    Command::Enlist(writer.emplace());
    writer.reset();
  });
  EXPECT_FALSE(Command::IsRunning());
}
