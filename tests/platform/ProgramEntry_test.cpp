// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ProgramEntry.h"

#include "support/OwnDesktop.h"

#include <gtest/gtest.h>

namespace {

const QString kFile = QStringLiteral("/tmp/a b/Letter.txt");

ProgramEntry EntryOf(const QString& command)
{
  ProgramEntry entry;
  entry.path = "/apps/x.desktop";
  entry.name = "The Editor";
  entry.icon = "pen";
  entry.command = command;
  return entry;
}

}

TEST(ProgramEntry, ACommandIsSplitAndItsCodesAreFilledIn)
{
  const struct
  {
    const char* command;
    QStringList expected;
  } cases[] = {
      {"edit %f", {"edit", kFile}},
      {"edit %F", {"edit", kFile}},
      {"edit %u", {"edit", "file:///tmp/a%20b/Letter.txt"}},
      {"edit %U", {"edit", "file:///tmp/a%20b/Letter.txt"}},
      {"edit", {"edit", kFile}},
      {"edit --new", {"edit", "--new", kFile}},
      {"edit --file=%f --end", {"edit", "--file=" + kFile, "--end"}},
      {"edit %i %f", {"edit", "--icon", "pen", kFile}},
      {"edit --title %c %k %f", {"edit", "--title", "The Editor", "/apps/x.desktop", kFile}},
      {"edit 100%% %f", {"edit", "100%", kFile}},
      {"edit %% ", {"edit", "%", kFile}},
      {"edit %%f", {"edit", "%f", kFile}},
      {"edit %d %n %f", {"edit", kFile}},
      {"edit  \t %f ", {"edit", kFile}},
      {"\"/opt/The Editor/edit\" %f", {"/opt/The Editor/edit", kFile}},
      {R"(sh -c "echo \"\$1\" \\\\ \`x\`" %f)", {"sh", "-c", R"(echo "$1" \\ `x`)", kFile}},
      {"sh -c 'a \"b\\c' %f", {"sh", "-c", "a \"b\\c", kFile}},
      {"edit \"\" %f", {"edit", "", kFile}},
      {"edit a\\ b %f", {"edit", "a b", kFile}},
      {"edit %", {"edit", "%", kFile}},
      {"env A=b edit %f", {"env", "A=b", "edit", kFile}},
  };
  for (const auto& [command, expected] : cases) {
    EXPECT_EQ(EntryOf(command).CommandToOpen(kFile).join('|').toStdString(), expected.join('|').toStdString())
        << command;
  }
}

TEST(ProgramEntry, ABrokenCommandIsNone)
{
  for (const char* command : {"", "   ", "\"edit %f", "edit 'a", "edit \\"}) {
    EXPECT_EQ(EntryOf(command).CommandToOpen(kFile), QStringList()) << command;
    EXPECT_FALSE(EntryOf(command).CanStart()) << command;
  }
}

TEST(ProgramEntry, WithoutAnIconThereIsNoneInTheCommand)
{
  ProgramEntry entry = EntryOf("edit %i %f");
  entry.icon.clear();
  EXPECT_EQ(entry.CommandToOpen(kFile), (QStringList{"edit", kFile}));
}

TEST(ProgramEntry, OptionsStandRightBeforeTheFile)
{
  const struct
  {
    const char* command;
    QStringList expected;
  } cases[] = {
      {"office --writer %U", {"office", "--writer", "-n", "file:///tmp/a%20b/Letter.txt"}},
      {"office --writer", {"office", "--writer", "-n", kFile}},
      {"box run --forward org.office --writer @@u %U @@",
       {"box", "run", "--forward", "org.office", "--writer", "-n", "@@u", "file:///tmp/a%20b/Letter.txt", "@@"}},
  };
  for (const auto& [command, expected] : cases) {
    EXPECT_EQ(EntryOf(command).CommandToOpen(kFile, {"-n"}).join('|').toStdString(), expected.join('|').toStdString());
  }
}

TEST(ProgramEntry, AnEntryIsReadFromItsFile)
{
  const OwnDesktop desktop;
  desktop.Lay("x.desktop",
              "[Desktop Entry]\nType=Application\nName=The Editor\nName[de]=Der Editor\nIcon=pen\n"
              "Exec=\"/opt/The\\sEditor/edit\" \"\\\\$x\" %F\nTryExec=/opt/probe\nCategories=Utility;TextEditor;\n"
              "[Desktop Action New]\nExec=edit --new\nName=New\n");
  const ProgramEntry entry = ProgramEntry::Read(desktop.File("x.desktop"));
  EXPECT_EQ(entry.path, desktop.File("x.desktop"));
  EXPECT_EQ(entry.name, "The Editor");
  EXPECT_EQ(entry.icon, "pen");
  EXPECT_EQ(entry.probe, "/opt/probe");
  EXPECT_EQ(entry.categories, (QStringList{"Utility", "TextEditor"}));
  EXPECT_FALSE(entry.runsInTerminal);
  EXPECT_EQ(entry.CommandToOpen(kFile), (QStringList{"/opt/The Editor/edit", "$x", kFile}));
}

TEST(ProgramEntry, WhatIsNoProgramOrHiddenHasNoCommand)
{
  const OwnDesktop desktop;
  desktop.LayProgram("edit");
  for (const char* entry : {"", "[Desktop Entry]\nExec=edit\n", "[Desktop Entry]\nType=Link\nExec=edit\n",
                            "[Desktop Entry]\nType=Application\nExec=edit\nHidden=true\n",
                            "[Desktop Entry]\nType=Application\nDBusActivatable=true\n"}) {
    desktop.Lay("x.desktop", entry);
    EXPECT_FALSE(ProgramEntry::Read(desktop.File("x.desktop")).CanStart()) << entry;
  }
  EXPECT_FALSE(ProgramEntry::Read("/nowhere.desktop").CanStart());
}

TEST(ProgramEntry, AProgramCanStartIfItAndItsProbeAreInstalledAndItHasWindows)
{
  const OwnDesktop desktop;
  desktop.LayProgram("edit");
  desktop.Lay("bin/text", "no program");
  const QByteArray path = desktop.File("bin/edit").toUtf8();
  const struct
  {
    QByteArray lines;
    bool canStart;
  } cases[] = {{"Exec=edit %f", true},
               {"Exec=" + path + " %f", true},
               {"Exec=missing %f", false},
               {"Exec=text %f", false},
               {"Exec=" + path + "/x %f", false},
               {"Exec=edit %f\nTryExec=edit", true},
               {"Exec=edit %f\nTryExec=" + path, true},
               {"Exec=edit %f\nTryExec=missing", false},
               {"Exec=edit %f\nTryExec=/nowhere/edit", false},
               {"Exec=edit %f\nTerminal=false", true},
               {"Exec=edit %f\nTerminal=true", false}};
  for (const auto& [lines, canStart] : cases) {
    desktop.Lay("x.desktop", "[Desktop Entry]\nType=Application\n" + lines + "\n");
    EXPECT_EQ(ProgramEntry::Read(desktop.File("x.desktop")).CanStart(), canStart) << lines.toStdString();
  }
}
