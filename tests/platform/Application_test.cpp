// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Application.h"

#include "platform/Command.h"
#include "platform/RuntimeError.h"
#include "support/MessageBoxScript.h"

#include <QThread>

#include <gtest/gtest.h>
#include <optional>

namespace {

class Listener : public QObject
{
public:
  bool event(QEvent* event) override
  {
    if (event->type() == QEvent::User && onEvent) {
      onEvent();
      return true;
    }
    return QObject::event(event);
  }

  std::function<void()> onEvent;
};

class CountingParticipant : public Command::Participant
{
public:
  void Settle() override { ++settled; }
  void Abandon() noexcept override { ++abandoned; }

  int settled = 0;
  int abandoned = 0;
};

void Send(QObject& receiver)
{
  QEvent event(QEvent::User);
  QCoreApplication::sendEvent(&receiver, &event);
}

// What the program ends with while this stands.
class EndingCatcher
{
public:
  EndingCatcher()
  {
    Application::SetEnding([this](int endedWith) { status = endedWith; });
  }
  ~EndingCatcher() { Application::SetEnding({}); }
  EndingCatcher(const EndingCatcher&) = delete;
  EndingCatcher& operator=(const EndingCatcher&) = delete;

  std::optional<int> status;
};

}

TEST(Application, EveryEventIsACommand)
{
  Listener listener;
  CountingParticipant participant;
  listener.onEvent = [&] {
    EXPECT_TRUE(Command::IsRunning());
    Command::Enlist(participant);
  };
  Send(listener);
  EXPECT_EQ(participant.settled, 1);
  EXPECT_FALSE(Command::IsRunning());
}

TEST(Application, EventsOfOtherThreadsAreNoCommands)
{
  QThread thread;
  Listener listener;
  listener.moveToThread(&thread);
  std::optional<bool> running;
  listener.onEvent = [&] {
    running = Command::IsRunning();
    thread.quit();
  };
  const long serial = Command::Serial();
  thread.start();
  QCoreApplication::postEvent(&listener, new QEvent(QEvent::User));
  ASSERT_TRUE(thread.wait(10000));
  EXPECT_EQ(running, false);
  EXPECT_EQ(Command::Serial(), serial);
}

TEST(Application, AFailureThatNobodyCatchesIsShownTakesTheWritesBackAndEndsTheProgram)
{
  const EndingCatcher ending;
  MessageBoxScript boxes;
  boxes.Expect(QStringLiteral("Run-time error '3021':\n\nNo current record."));
  Listener listener;
  CountingParticipant participant;
  listener.onEvent = [&] {
    Command::Enlist(participant);
    throw RuntimeError(3021, QStringLiteral("No current record."));
  };
  Send(listener);
  EXPECT_EQ(ending.status, 1);
  EXPECT_EQ(participant.abandoned, 1);
  EXPECT_EQ(participant.settled, 0);
}

TEST(Application, RunningOutOfMemoryIsSaid)
{
  const EndingCatcher ending;
  MessageBoxScript boxes;
  boxes.Expect(QStringLiteral("Run-time error '7':\n\nOut of memory"));
  Application::RunGuarded([] { throw std::bad_alloc(); });
  EXPECT_EQ(ending.status, 1);
}
