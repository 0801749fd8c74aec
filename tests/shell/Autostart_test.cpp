// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/App.h"
#include "platform/RuntimeError.h"
#include "shell/Autostart.h"
#include "support/EntryReader.h"
#include "support/EnvironmentVariable.h"
#include "support/ErrorOf.h"
#include "support/WeakProcess.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <pwd.h>
#include <sys/stat.h>

namespace {

class AutostartTest : public testing::Test
{
protected:
  AutostartTest() { App::SetPath("/home/ann/Quillmark"); }
  ~AutostartTest() override { App::SetPath({}); }

  [[nodiscard]] QString Path(const QString& relative) const { return home.path() + relative; }
  [[nodiscard]] QString EntryPath() const { return Path("/settings/autostart/Quillmark.desktop"); }
  [[nodiscard]] EntryReader Entry() const { return EntryReader::OfFile(EntryPath()); }

  static QByteArray Contents(const QString& path)
  {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
  }

  static void Write(const QString& path, const QByteArray& contents)
  {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
  }

  static mode_t Mode(const QString& path)
  {
    struct stat status = {};
    EXPECT_EQ(stat(path.toUtf8().constData(), &status), 0) << path.toStdString();
    return status.st_mode & 07777;
  }

  void Allow(const QString& relative, mode_t mode) const
  {
    ASSERT_EQ(chmod(Path(relative).toUtf8().constData(), mode), 0);
  }

  // Whatever stands below the home, with its folders.
  [[nodiscard]] QStringList Below(const QString& relative) const
  {
    return QDir(Path(relative)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
  }

  static int ErrorOfCreating() { return ErrorOf(Autostart::Create); }
  static int ErrorOfRemoving() { return ErrorOf(Autostart::Remove); }

  QTemporaryDir home;
  EnvironmentVariable homeVariable{"HOME", home.path().toUtf8()};
  EnvironmentVariable settings{"XDG_CONFIG_HOME", Path("/settings").toUtf8()};
};

}

TEST_F(AutostartTest, TheEntryStandsAmongTheUsersSettings)
{
  EXPECT_EQ(Autostart::EntryPath(), EntryPath());
  settings.Set(Path("/other/../settings//").toUtf8());
  EXPECT_EQ(Autostart::EntryPath(), EntryPath());
}

TEST_F(AutostartTest, WithoutAFolderOfSettingsTheUsualOneIsTaken)
{
  for (const QByteArray& value : {QByteArray(), QByteArray(""), QByteArray("settings"), QByteArray("./settings")}) {
    settings.Set(value);
    EXPECT_EQ(Autostart::EntryPath(), Path("/.config/autostart/Quillmark.desktop")) << value.toStdString();
  }
}

TEST_F(AutostartTest, WithoutAHomeTheOneOfTheAccountIsTaken)
{
  settings.Set({});
  const QString expected = QString::fromUtf8(getpwuid(geteuid())->pw_dir) + "/.config/autostart/Quillmark.desktop";
  for (const QByteArray& value : {QByteArray(), QByteArray(""), QByteArray("home")}) {
    homeVariable.Set(value);
    EXPECT_EQ(Autostart::EntryPath(), QDir::cleanPath(expected)) << value.toStdString();
  }
}

TEST_F(AutostartTest, WithoutAHomeAFolderOfSettingsWillDo)
{
  homeVariable.Set({});
  EXPECT_EQ(ErrorOfCreating(), 0);
  EXPECT_TRUE(QFile::exists(EntryPath()));
}

TEST_F(AutostartTest, TheEntryStartsTheProgramInItsFolder)
{
  Autostart::Create();
  EXPECT_EQ(Contents(EntryPath()),
            "[Desktop Entry]\n"
            "Type=Application\n"
            "Version=1.0\n"
            "Name=Quillmark\n"
            "Comment=Birthdays, anniversaries and reminders\n"
            "Exec=\"/home/ann/Quillmark/quillmark\"\n"
            "Path=/home/ann/Quillmark\n"
            "Icon=/home/ann/Quillmark/animp.ico\n"
            "Terminal=false\n"
            "X-GNOME-Autostart-enabled=true\n");
  EXPECT_EQ(Below("/settings/autostart"), QStringList("Quillmark.desktop")) << "and nothing else is left";
}

TEST_F(AutostartTest, AFolderWithAnyCharactersWorks)
{
  const QString folder = QStringLiteral("/home/Émile/\"a\" $HOME `date` 100% back\\slash 🎂");
  App::SetPath(folder);
  Autostart::Create();
  EXPECT_EQ(Entry().Command(), QStringList({"/bin/sh", "-c", "exec \"$0\"", folder + "/quillmark"}));
  EXPECT_EQ(Entry().Value("Path"), folder);
  EXPECT_EQ(Entry().Value("Icon"), folder + "/animp.ico");
}

TEST_F(AutostartTest, FoldersThatAreMissingAreMadeForTheirOwnerAlone)
{
  settings.Set(Path("/deep/down/settings").toUtf8());
  ASSERT_EQ(ErrorOfCreating(), 0);
  for (const char* folder : {"/deep", "/deep/down", "/deep/down/settings", "/deep/down/settings/autostart"}) {
    EXPECT_EQ(Mode(Path(folder)), 0700U) << folder;
  }
}

TEST_F(AutostartTest, FoldersThatAreThereStayAsTheyAre)
{
  ASSERT_TRUE(QDir().mkpath(Path("/settings/autostart")));
  Allow("/settings/autostart", 0755);
  Write(Path("/settings/autostart/other.desktop"), "another program's");
  ASSERT_EQ(ErrorOfCreating(), 0);
  EXPECT_EQ(Mode(Path("/settings/autostart")), 0755U);
  Autostart::Remove();
  EXPECT_EQ(Below("/settings/autostart"), QStringList("other.desktop"));
  EXPECT_EQ(Contents(Path("/settings/autostart/other.desktop")), "another program's");
}

TEST_F(AutostartTest, AnOlderEntryIsReplaced)
{
  Autostart::Create();
  Write(EntryPath(), "[Desktop Entry]\nType=Application\nHidden=true\n" + QByteArray(10'000, '#'));
  App::SetPath("/opt/quillmark");
  Autostart::Create();
  EXPECT_EQ(Entry().Command(), QStringList("/opt/quillmark/quillmark"));
  EXPECT_EQ(Entry().Value("Hidden"), "");
  EXPECT_EQ(Below("/settings/autostart"), QStringList("Quillmark.desktop"));
}

TEST_F(AutostartTest, AnEntryThatIsALinkIsWrittenWhereItLeadsAndRemovedWhereItStands)
{
  ASSERT_TRUE(QDir().mkpath(Path("/settings/autostart")));
  Write(Path("/kept.desktop"), "old");
  ASSERT_TRUE(QFile::link(Path("/kept.desktop"), EntryPath()));
  Autostart::Create();
  EXPECT_EQ(QFileInfo(EntryPath()).symLinkTarget(), Path("/kept.desktop"));
  EXPECT_EQ(Entry().Value("Name"), "Quillmark");
  Autostart::Remove();
  EXPECT_FALSE(QFileInfo(EntryPath()).isSymLink());
  EXPECT_TRUE(QFile::exists(Path("/kept.desktop")));
}

TEST_F(AutostartTest, RemovingTakesTheEntryAway)
{
  Autostart::Create();
  EXPECT_EQ(ErrorOfRemoving(), 0);
  EXPECT_EQ(Below("/settings/autostart"), QStringList());
  EXPECT_EQ(ErrorOfRemoving(), ErrorNumber::kFileNotFound);
}

TEST_F(AutostartTest, WithoutAFolderThereIsNothingToRemove)
{
  EXPECT_EQ(ErrorOfRemoving(), ErrorNumber::kFileNotFound);
  EXPECT_EQ(Below(""), QStringList()) << "no folder is made for it";
}

TEST_F(AutostartTest, AFolderThatIsAFileIsRefused)
{
  Write(Path("/settings"), "a file");
  EXPECT_EQ(ErrorOfCreating(), ErrorNumber::kFileAccess);
  EXPECT_EQ(ErrorOfRemoving(), ErrorNumber::kFileNotFound);
  EXPECT_EQ(Contents(Path("/settings")), "a file");

  ASSERT_TRUE(QDir().mkdir(Path("/other")));
  settings.Set(Path("/other").toUtf8());
  Write(Path("/other/autostart"), "a file");
  EXPECT_EQ(ErrorOfCreating(), ErrorNumber::kFileAccess);
  EXPECT_EQ(ErrorOfRemoving(), ErrorNumber::kFileNotFound);
  EXPECT_EQ(Contents(Path("/other/autostart")), "a file");
}

TEST_F(AutostartTest, AFolderThatCannotBeMadeIsRefused)
{
  settings.Set("/proc/self/settings");
  EXPECT_EQ(ErrorOfCreating(), ErrorNumber::kFileAccess);
  settings.Set(Path("/settings").toUtf8());
  ASSERT_TRUE(QFile::link(Path("/nowhere"), Path("/settings")));
  EXPECT_EQ(ErrorOfCreating(), ErrorNumber::kFileAccess);
  EXPECT_FALSE(QFile::exists(Path("/nowhere")));
}

TEST_F(AutostartTest, AFolderThatMayNotBeWrittenIsRefused)
{
  Autostart::Create();
  const QByteArray before = Contents(EntryPath());
  Allow("", 0755);
  Allow("/settings", 0755);
  Allow("/settings/autostart", 0555);
  App::SetPath("/opt/quillmark");
  EXPECT_EQ(ErrorInAWeakProcess(Autostart::Create), ErrorNumber::kFileAccess);
  EXPECT_EQ(ErrorInAWeakProcess(Autostart::Remove), ErrorNumber::kFileAccess);
  EXPECT_EQ(Contents(EntryPath()), before);
  settings.Set(Path("/settings/autostart").toUtf8());
  EXPECT_EQ(ErrorInAWeakProcess(Autostart::Create), ErrorNumber::kFileAccess);
  EXPECT_EQ(Below("/settings/autostart"), QStringList("Quillmark.desktop"));
}

TEST_F(AutostartTest, AFullDiskLeavesNoHalfEntry)
{
  ASSERT_TRUE(QDir().mkpath(Path("/settings/autostart")));
  Allow("", 0755);
  Allow("/settings/autostart", 0777);
  for (const rlim_t limit : {rlim_t{0}, rlim_t{50}}) {
    EXPECT_EQ(ErrorInAWeakProcess(Autostart::Create, limit), ErrorNumber::kFileAccess);
    EXPECT_EQ(Below("/settings/autostart"), QStringList());
  }
  Write(EntryPath(), "old");
  ASSERT_EQ(chmod(EntryPath().toUtf8().constData(), 0666), 0);
  for (const rlim_t limit : {rlim_t{0}, rlim_t{50}}) {
    EXPECT_EQ(ErrorInAWeakProcess(Autostart::Create, limit), ErrorNumber::kFileAccess);
    EXPECT_EQ(Contents(EntryPath()), "old");
    EXPECT_EQ(Below("/settings/autostart"), QStringList("Quillmark.desktop"));
  }
  EXPECT_EQ(ErrorInAWeakProcess(Autostart::Create), 0) << "the disk was all that was in the way";
}

TEST_F(AutostartTest, AFolderWithTheNameOfTheEntryIsNone)
{
  ASSERT_TRUE(QDir().mkpath(EntryPath() + "/inner"));
  EXPECT_EQ(ErrorOfCreating(), ErrorNumber::kFileAccess);
  EXPECT_EQ(ErrorOfRemoving(), ErrorNumber::kFileNotFound);
  EXPECT_TRUE(QFileInfo(EntryPath() + "/inner").isDir());
}
