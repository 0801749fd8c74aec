// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Privacy.h"

#include "platform/Files.h"
#include "platform/Shell.h"
#include "support/OwnDesktop.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QTest>
#include <QUrl>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

unsigned int ModeOf(const QString& path)
{
  struct stat entry = {};
  EXPECT_EQ(lstat(QFile::encodeName(path).constData(), &entry), 0) << path.toStdString();
  return entry.st_mode & 07777U;
}

// What stands in for the desktop, and the mask that its programs would get.
class MaskKeeper : public QObject
{
  Q_OBJECT

public:
  MaskKeeper() { QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "Take"); }
  ~MaskKeeper() override { QDesktopServices::unsetUrlHandler(QStringLiteral("https")); }

  mode_t Mask = 0;

public Q_SLOTS:
  void Take(const QUrl& /*address*/)
  {
    Mask = umask(0);
    umask(Mask);
  }
};

// The process's own mask is as before when the test ends.
class PrivacyTest : public testing::Test
{
protected:
  PrivacyTest() : before_(umask(022)) {}
  ~PrivacyTest() override { umask(before_); }

  QString Lay(const QString& name, unsigned int mode) const
  {
    const QString path = folder.filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    Files::WriteFile(path, "x");
    EXPECT_EQ(chmod(QFile::encodeName(path).constData(), mode), 0);
    return path;
  }

  QTemporaryDir folder;

private:
  mode_t before_;
};

}

TEST_F(PrivacyTest, WhatIsMadeAfterwardsIsForItsOwnerAlone)
{
  Privacy::KeepToOwner();
  Files::WriteFile(folder.filePath("list.txt"), "Ann");
  QDir(folder.path()).mkdir("pictures");
  EXPECT_EQ(ModeOf(folder.filePath("list.txt")), 0600U);
  EXPECT_EQ(ModeOf(folder.filePath("pictures")), 0700U);
}

TEST_F(PrivacyTest, ProgramsThatAreStartedKeepTheUsersOwnPermissions)
{
  Privacy::KeepToOwner();
  const OwnDesktop desktop;
  desktop.LayScript("edit", "umask >" + desktop.File("home/mask").toUtf8());
  EXPECT_TRUE(Shell::Start({"edit"}, [] {}));
  EXPECT_EQ(Files::ReadFile(desktop.File("home/mask")).trimmed(), "0022");
  EXPECT_EQ(umask(077), 077U);
}

TEST_F(PrivacyTest, WhatTheDesktopOpensKeepsTheUsersOwnPermissions)
{
  Privacy::KeepToOwner();
  MaskKeeper desktop;
  EXPECT_TRUE(Shell::Open(QUrl("https://example.invalid/")));
  EXPECT_EQ(desktop.Mask, 022U);
  EXPECT_EQ(umask(077), 077U);
}

TEST_F(PrivacyTest, TheFolderAndWhatItHoldsOfTheHouseholdAreClosedToOthers)
{
  chmod(QFile::encodeName(folder.path()).constData(), 0755);
  for (const char* name :
       {"quillmark2002.mdb", "quillmark2002.mdb-journal", "reminders.txt", "PeoplePics/1.bmp", "AnnPics/2.bmp"}) {
    Lay(name, 0664);
  }
  Lay("quillmark", 0755);
  Privacy::CloseToOthers(folder.path());
  EXPECT_EQ(ModeOf(folder.path()), 0700U);
  for (const char* name :
       {"quillmark2002.mdb", "quillmark2002.mdb-journal", "reminders.txt", "PeoplePics/1.bmp", "AnnPics/2.bmp"}) {
    EXPECT_EQ(ModeOf(folder.filePath(name)), 0600U) << name;
  }
  for (const char* name : {"PeoplePics", "AnnPics"}) {
    EXPECT_EQ(ModeOf(folder.filePath(name)), 0700U) << name;
  }
  EXPECT_EQ(ModeOf(folder.filePath("quillmark")), 0755U);
}

TEST_F(PrivacyTest, AFolderWithoutADatabaseStaysAsItIs)
{
  chmod(QFile::encodeName(folder.path()).constData(), 0755);
  const QString text = Lay("reminders.txt", 0644);
  Privacy::CloseToOthers(folder.path());
  EXPECT_EQ(ModeOf(folder.path()), 0755U);
  EXPECT_EQ(ModeOf(text), 0644U);
}

TEST_F(PrivacyTest, WhatALinkLeadsToStaysAsItIs)
{
  Lay("quillmark2002.mdb", 0644);
  const QTemporaryDir elsewhere;
  const QString text = elsewhere.filePath("shared.txt");
  Files::WriteFile(text, "x");
  chmod(QFile::encodeName(text).constData(), 0644);
  ASSERT_TRUE(QFile::link(text, folder.filePath("reminders.txt")));
  chmod(QFile::encodeName(elsewhere.path()).constData(), 0755);
  ASSERT_TRUE(QFile::link(elsewhere.path(), folder.filePath("PeoplePics")));
  Privacy::CloseToOthers(folder.path());
  EXPECT_EQ(ModeOf(text), 0644U);
  EXPECT_EQ(ModeOf(elsewhere.path()), 0755U);
}

TEST_F(PrivacyTest, OwnersRightsAreNeitherTakenNorGiven)
{
  const QString database = Lay("quillmark2002.mdb", 0444);
  Privacy::CloseToOthers(folder.path());
  EXPECT_EQ(ModeOf(database), 0400U);
}

#include "Privacy_test.moc"
