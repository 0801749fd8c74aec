// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Shell.h"

#include "support/OwnDesktop.h"

#include <QElapsedTimer>
#include <QTest>

#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

namespace {

constexpr int kPatience = 30000;

}

TEST(Shell, AProgramIsStartedWithItsArgumentsAsTheyAre)
{
  const OwnDesktop desktop;
  desktop.LayProgram("edit", desktop.UntilReleased());
  EXPECT_TRUE(Shell::Start({"edit", "a b", "", "\"c\"", "$d;`e`"}, [] {}));
  EXPECT_EQ(desktop.AwaitStart(1).arguments, (QStringList{"a b", "", "\"c\"", "$d;`e`"}));
}

TEST(Shell, AProgramThatIsNotThereOrFailsAtOnceHasNotStarted)
{
  const OwnDesktop desktop;
  desktop.LayScript("fails", "exit 3");
  desktop.LayScript("dies", "kill -9 $$");
  desktop.Lay("bin/text", "no program");
  desktop.Lay("bin/stale", "#!/nowhere/sh\n");
  QFile::setPermissions(desktop.File("bin/stale"), QFile::ReadOwner | QFile::ExeOwner);
  int ended = 0;
  for (const QStringList& command : {QStringList{}, QStringList{""}, QStringList{"missing"}, QStringList{"text"},
                                     QStringList{"stale"}, QStringList{"fails"}, QStringList{"dies"}}) {
    EXPECT_FALSE(Shell::Start(command, [&] { ++ended; })) << command.join(' ').toStdString();
  }
  QCoreApplication::processEvents();
  EXPECT_EQ(ended, 0);
}

TEST(Shell, AProgramThatHandsOnAndEndsAtOnceHasStarted)
{
  const OwnDesktop desktop;
  desktop.LayScript("edit", "exit 0");
  EXPECT_TRUE(Shell::Start({"edit"}, [] {}));
}

TEST(Shell, TheEndOfAProgramThatRanIsToldOnce)
{
  const OwnDesktop desktop;
  desktop.LayProgram("edit", desktop.UntilReleased() + "\nexit 5");
  int ended = 0;
  QElapsedTimer clock;
  clock.start();
  EXPECT_TRUE(Shell::Start({"edit"}, [&] { ++ended; }));
  EXPECT_LT(clock.elapsed(), kPatience / 3);
  QCoreApplication::processEvents();
  EXPECT_EQ(ended, 0);
  desktop.Release();
  EXPECT_TRUE(QTest::qWaitFor([&] { return ended > 0; }, kPatience));
  QCoreApplication::processEvents();
  EXPECT_EQ(ended, 1);
}

TEST(Shell, AProgramHasASessionOfItsOwnAndNoWayToWriteToThisOne)
{
  const OwnDesktop desktop;
  desktop.LayProgram("edit",
                     "links=$(/bin/readlink /proc/$$/fd/0 /proc/$$/fd/1 /proc/$$/fd/2)\n"
                     "echo \"$links\" >../../links\n"
                     "/usr/bin/cut -d ' ' -f 1,6 /proc/$$/stat >../../session.new\n"
                     "/bin/mv ../../session.new ../../session\n" +
                         desktop.UntilReleased());
  EXPECT_TRUE(Shell::Start({"edit"}, [] {}));
  QFile session(desktop.File("session"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return session.exists(); }, kPatience));
  ASSERT_TRUE(session.open(QIODevice::ReadOnly));
  const QList<QByteArray> numbers = session.readAll().trimmed().split(' ');
  EXPECT_EQ(numbers.value(0), numbers.value(1));
  EXPECT_NE(numbers.value(1).toInt(), getsid(0));
  QFile links(desktop.File("links"));
  ASSERT_TRUE(links.open(QIODevice::ReadOnly));
  EXPECT_EQ(links.readAll(), "/dev/null\n/dev/null\n/dev/null\n");
}
