// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "VirtualDesktop.h"

#include <QFile>
#include <QTest>

#include <gtest/gtest.h>

namespace {

constexpr int kPatience = 30000;
constexpr auto kOthers =
    QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
const QString kFrame = QStringLiteral("Quillmark");

bool IsOpenToOthers(const QString& path)
{
  return (QFile::permissions(path) & kOthers) != QFile::Permissions();
}

QString Log(const QString& path)
{
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return QString::fromUtf8(file.readAll());
}

}

TEST(PrivacyOnTheDesktop, AStartClosesTheFolderToOthers)
{
  const VirtualDesktop desktop;
  desktop.Run("chmod", {"-R", "go+rX", desktop.Folder()});
  ASSERT_TRUE(IsOpenToOthers(desktop.File("/quillmark2002.mdb")));
  const auto program = desktop.StartProgram();
  ASSERT_TRUE(desktop.AwaitWindow(*program, kFrame));
  for (const char* name : {"", "/quillmark2002.mdb", "/reminders.txt", "/PeoplePics", "/AnnPics"}) {
    EXPECT_FALSE(IsOpenToOthers(desktop.File(name))) << name;
  }
  program->kill();
  program->waitForFinished(kPatience);
}

TEST(PrivacyOnTheDesktop, NothingIsAskedOfTheNetworkAndNothingIsSaidOfTheRecords)
{
  VirtualDesktop desktop;
  desktop.RunSql("INSERT INTO People (FirstName, LastName, Gender) VALUES ('Zenobia', 'Quillfeather', 'Female');");
  const QTemporaryDir logs;
  const QString calls = logs.filePath("calls");
  const QString output = logs.filePath("output");
  const auto program = desktop.StartProgram(
      {"sh", "-c", "exec strace -f -o \"$0\" -e trace=connect,execve \"$2\" >\"$1\" 2>&1", calls, output});
  const auto frame = desktop.AwaitWindow(kFrame);
  ASSERT_TRUE(frame);
  desktop.Press(*frame, "alt+d");
  desktop.Press(*frame, "p");
  desktop.Press(*frame, "F1");
  EXPECT_TRUE(desktop.AwaitWindow("Quillmark Help"));
  desktop.Run("pkill", {"-KILL", "-f", desktop.File("/quillmark")});
  program->waitForFinished(kPatience);

  const QString log = Log(calls);
  EXPECT_TRUE(log.contains("AF_UNIX"));
  EXPECT_FALSE(log.contains("AF_INET"));
  EXPECT_TRUE(log.contains("execve("));
  for (const QString& told : {log, Log(output)}) {
    EXPECT_FALSE(told.contains("Zenobia") || told.contains("Quillfeather")) << told.toStdString();
  }
}
