// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Associations.h"

#include "support/OwnDesktop.h"

#include <gtest/gtest.h>

namespace {

const QString kType = QStringLiteral("text/plain");

QByteArray Entry(const QByteArray& name)
{
  return "[Desktop Entry]\nType=Application\nName=" + name + "\nExec=" + name + "\n";
}

std::string Names(const QList<ProgramEntry>& entries)
{
  QStringList names;
  for (const ProgramEntry& entry : entries) {
    names.append(entry.name);
  }
  return names.join(' ').toStdString();
}

// A desktop with entries "a" to "f" installed for all users.
class AssociationsTest : public testing::Test
{
protected:
  AssociationsTest()
  {
    for (const char* name : {"a", "b", "c", "d", "e", "f"}) {
      desktop_.Lay(QStringLiteral("system/applications/%1.desktop").arg(name), Entry(name));
    }
  }

  void LayList(const QString& path, const QByteArray& group, const QByteArray& identifiers)
  {
    desktop_.Lay(path, "[" + group + "]\ntext/plain=" + identifiers + "\n");
  }

  OwnDesktop desktop_;
};

}

TEST_F(AssociationsTest, WithoutAnyListThereAreNone)
{
  EXPECT_EQ(Names(Associations::Chosen(kType)), "");
  EXPECT_EQ(Names(Associations::Able(kType)), "");
}

TEST_F(AssociationsTest, TheUsersChoiceComesBeforeThatOfTheDesktopAndOfTheSystem)
{
  LayList("config/mimeapps.list", "Default Applications", "a.desktop");
  LayList("configs/mimeapps.list", "Default Applications", "b.desktop;a.desktop");
  LayList("data/applications/mimeapps.list", "Default Applications", "c.desktop;");
  LayList("system/applications/mimeapps.list", "Default Applications", "d.desktop;");
  LayList("system2/applications/mimeapps.list", "Default Applications", "e.desktop;f.desktop");
  EXPECT_EQ(Names(Associations::Chosen(kType)), "a b c d e f");
  EXPECT_EQ(Names(Associations::Chosen("text/rtf")), "");
}

TEST_F(AssociationsTest, TheRunningDesktopsOwnListComesFirstInEachFolder)
{
  LayList("config/mimeapps.list", "Default Applications", "a.desktop");
  LayList("config/gnome-mimeapps.list", "Default Applications", "b.desktop");
  LayList("config/kde-mimeapps.list", "Default Applications", "c.desktop");
  EXPECT_EQ(Names(Associations::Chosen(kType)), "a");
  qputenv("XDG_CURRENT_DESKTOP", "Debian:GNOME");
  EXPECT_EQ(Names(Associations::Chosen(kType)), "b a");
  qputenv("XDG_CURRENT_DESKTOP", "KDE:GNOME");
  EXPECT_EQ(Names(Associations::Chosen(kType)), "c b a");
}

TEST_F(AssociationsTest, WhatIsAbleIsWhatWasAddedAndWhatIsInstalledForIt)
{
  LayList("config/mimeapps.list", "Added Associations", "c.desktop;");
  LayList("data/applications/mimeinfo.cache", "MIME Cache", "b.desktop;");
  LayList("system/applications/mimeinfo.cache", "MIME Cache", "a.desktop;b.desktop;c.desktop;");
  EXPECT_EQ(Names(Associations::Able(kType)), "c b a");
  EXPECT_EQ(Names(Associations::Chosen(kType)), "");
}

TEST_F(AssociationsTest, WhatWasTakenOffIsGoneFromAllListsThatCountLess)
{
  desktop_.Lay(
      "config/mimeapps.list",
      "[Default Applications]\ntext/plain=a.desktop\n[Removed Associations]\ntext/plain=a.desktop;b.desktop;\n");
  LayList("configs/mimeapps.list", "Default Applications", "b.desktop;c.desktop");
  LayList("system/applications/mimeinfo.cache", "MIME Cache", "a.desktop;b.desktop;d.desktop;");
  EXPECT_EQ(Names(Associations::Chosen(kType)), "a c");
  EXPECT_EQ(Names(Associations::Able(kType)), "d");
}

TEST_F(AssociationsTest, AnEntryOfTheUserHidesThatOfTheSystem)
{
  desktop_.Lay("data/applications/a.desktop", Entry("mine"));
  desktop_.Lay("data/applications/b.desktop", Entry("b") + "Hidden=true\n");
  LayList("config/mimeapps.list", "Default Applications", "a.desktop;b.desktop;missing.desktop");
  EXPECT_EQ(Names(Associations::Chosen(kType)), "mine ");
}

TEST_F(AssociationsTest, AnEntryInAFolderIsNamedWithAHyphen)
{
  desktop_.Lay("system2/applications/kde/text-edit.desktop", Entry("deep"));
  desktop_.Lay("system2/applications/kde/office/words.desktop", Entry("deeper"));
  LayList("config/mimeapps.list", "Default Applications", "kde-text-edit.desktop;kde-office-words.desktop");
  EXPECT_EQ(Names(Associations::Chosen(kType)), "deep deeper");
}
