// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ShellTest.h"

#include "support/EntryReader.h"
#include "support/EnvironmentVariable.h"
#include "support/ErrorOf.h"
#include "support/WithoutRights.h"

#include <QDir>

namespace {

const QString kError = QStringLiteral("There has been an error. Please try again.");
const QString kStarts = QStringLiteral("Quillmark will start automatically");
const QString kDoesNotStart = QStringLiteral("Quillmark will not start automatically");
const QString kAlreadyDidNot = QStringLiteral("Quillmark already does not start automatically");

class AutoStartTest : public ShellTest
{
protected:
  // Opens the dialog from the menu; `work` must leave it.
  void InTheDialog(const std::function<void(QWidget&)>& work)
  {
    bool seen = false;
    Drive::WhenShown("frmAutoStart", [&](QWidget& dialog) {
      seen = true;
      work(dialog);
      if (Forms::Loaded("frmAutoStart") != nullptr) {
        ADD_FAILURE() << "the dialog was not left";
        Forms::Unload("frmAutoStart");
      }
    });
    Menu("mnuAutostart").trigger();
    EXPECT_TRUE(seen);
  }

  // The notice that is shown; all of them, should they be more than one.
  static QString Notice(QWidget& dialog)
  {
    QStringList shown;
    for (const char* name : {"lblNotice_0", "lblNotice_1", "lblNotice_2"}) {
      const auto& notice = static_cast<const Label&>(Drive::Control(dialog, name));
      if (notice.isVisible()) {
        shown.append(notice.text());
      }
    }
    return shown.join(u'|');
  }

  static QString TextOf(QWidget& dialog, const char* name)
  {
    return static_cast<const Label&>(Drive::Control(dialog, name)).text();
  }

  static QString NoticeAfter(QWidget& dialog, const char* command)
  {
    Drive::Click(dialog, command);
    return Notice(dialog);
  }

  [[nodiscard]] QString FolderPath() const { return settings.path() + "/autostart"; }
  [[nodiscard]] QString EntryPath() const { return FolderPath() + "/Quillmark.desktop"; }

  void MakeTheFolderAFile() const
  {
    QFile file(FolderPath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }

  static void AllowOnlyReading(const QString& path)
  {
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup |
                                                QFile::ReadOther | QFile::ExeOther));
  }

  QTemporaryDir settings;
  EnvironmentVariable variable{"XDG_CONFIG_HOME", settings.path().toUtf8()};
};

}

TEST_F(AutoStartTest, OpensFromTheMenuAsAModalDialogWithItsTexts)
{
  Start();
  InTheDialog([](QWidget& dialog) {
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
    EXPECT_EQ(dialog.windowTitle(), "AutoStart");
    EXPECT_FALSE(dialog.windowIcon().isNull());
    EXPECT_EQ(TextOf(dialog, "Label1"), "Automatically start Quillmark every time Windows starts up");
    EXPECT_EQ(TextOf(dialog, "lblOptions_1"), "Ok");
    EXPECT_EQ(TextOf(dialog, "Label2"), "Do not start Quillmark every time Windows starts up");
    EXPECT_EQ(TextOf(dialog, "lblOptions_2"), "Ok");
    EXPECT_EQ(TextOf(dialog, "lblOptions_0"), "Exit");
    EXPECT_EQ(TextOf(dialog, "lblNotice_0"), kStarts);
    EXPECT_EQ(TextOf(dialog, "lblNotice_1"), kDoesNotStart);
    EXPECT_EQ(TextOf(dialog, "lblNotice_2"), kAlreadyDidNot);
    Drive::Click(dialog, "lblOptions_0");
  });
}

TEST_F(AutoStartTest, StartingMakesTheEntry)
{
  Start();
  InTheDialog([&](QWidget& dialog) {
    EXPECT_EQ(NoticeAfter(dialog, "lblOptions_1"), kStarts);
    const EntryReader entry = EntryReader::OfFile(EntryPath());
    EXPECT_EQ(entry.Command(), QStringList(folder.File("/quillmark")));
    EXPECT_EQ(entry.Value("Path"), folder.Path());
    EXPECT_EQ(entry.Value("Icon"), folder.File("/animp.ico"));
    Drive::Click(dialog, "lblOptions_0");
  });
}

TEST_F(AutoStartTest, NotStartingTakesTheEntryAway)
{
  Start();
  InTheDialog([&](QWidget& dialog) {
    Drive::Click(dialog, "lblOptions_1");
    ASSERT_TRUE(QFile::exists(EntryPath()));
    EXPECT_EQ(NoticeAfter(dialog, "lblOptions_2"), kDoesNotStart);
    EXPECT_FALSE(QFile::exists(EntryPath()));
    Drive::Click(dialog, "lblOptions_0");
  });
}

TEST_F(AutoStartTest, NotStartingWithoutAnEntryTellsSo)
{
  Start();
  InTheDialog([&](QWidget& dialog) {
    EXPECT_EQ(NoticeAfter(dialog, "lblOptions_2"), kAlreadyDidNot);
    EXPECT_EQ(NoticeAfter(dialog, "lblOptions_1"), kStarts);
    EXPECT_EQ(NoticeAfter(dialog, "lblOptions_2"), kDoesNotStart);
    EXPECT_EQ(NoticeAfter(dialog, "lblOptions_2"), kAlreadyDidNot);
    Drive::Click(dialog, "lblOptions_0");
  });
}

TEST_F(AutoStartTest, StartingTwiceReplacesTheEntryAndShowsTheSameNotice)
{
  Start();
  InTheDialog([&](QWidget& dialog) {
    EXPECT_EQ(NoticeAfter(dialog, "lblOptions_1"), kStarts);
    QFile old(EntryPath());
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("[Desktop Entry]\nHidden=true\n");
    old.close();
    EXPECT_EQ(NoticeAfter(dialog, "lblOptions_1"), kStarts);
    EXPECT_EQ(EntryReader::OfFile(EntryPath()).Command(), QStringList(folder.File("/quillmark")));
    EXPECT_EQ(QDir(FolderPath()).entryList(QDir::Files | QDir::Hidden), QStringList("Quillmark.desktop"));
    Drive::Click(dialog, "lblOptions_0");
  });
}

TEST_F(AutoStartTest, NoNoticeIsShownAtFirstWhateverTheState)
{
  Start();
  InTheDialog([](QWidget& dialog) {
    EXPECT_EQ(Notice(dialog), "");
    Drive::Click(dialog, "lblOptions_1");
    Drive::Click(dialog, "lblOptions_0");
  });
  ASSERT_TRUE(QFile::exists(EntryPath()));
  InTheDialog([](QWidget& dialog) {
    EXPECT_EQ(Notice(dialog), "");
    Drive::Click(dialog, "lblOptions_0");
  });
  EXPECT_TRUE(QFile::exists(EntryPath())) << "opening and leaving change nothing";
}

TEST_F(AutoStartTest, AnEntryThatCannotBeMadeIsSaid)
{
  MakeTheFolderAFile();
  Start();
  InTheDialog([&](QWidget& dialog) {
    boxes.Expect(kError);
    EXPECT_EQ(NoticeAfter(dialog, "lblOptions_1"), "");
    EXPECT_EQ(NoticeAfter(dialog, "lblOptions_2"), kAlreadyDidNot) << "what is not there does not start";
    boxes.Expect(kError);
    EXPECT_EQ(NoticeAfter(dialog, "lblOptions_1"), kAlreadyDidNot) << "the notice stands as it was";
    EXPECT_TRUE(QFile::remove(FolderPath()));
    EXPECT_EQ(NoticeAfter(dialog, "lblOptions_1"), kStarts) << "trying again helps";
    Drive::Click(dialog, "lblOptions_0");
  });
  EXPECT_EQ(boxes.Count(), 2U);
}

TEST_F(AutoStartTest, AnEntryThatCannotBeRemovedIsSaid)
{
  Start();
  InTheDialog([&](QWidget& dialog) {
    EXPECT_EQ(NoticeAfter(dialog, "lblOptions_1"), kStarts);
    AllowOnlyReading(settings.path());
    AllowOnlyReading(FolderPath());
    {
      const WithoutRights rights;
      ASSERT_TRUE(rights.Done());
      boxes.Expect(kError);
      EXPECT_EQ(NoticeAfter(dialog, "lblOptions_2"), kStarts) << "and so it does";
    }
    EXPECT_TRUE(QFile::exists(EntryPath()));
    Drive::Click(dialog, "lblOptions_0");
  });
  EXPECT_EQ(boxes.Count(), 1U);
}

TEST_F(AutoStartTest, ExitAndTheCloseBoxLeaveTheDialog)
{
  Start();
  InTheDialog([](QWidget& dialog) {
    Drive::Click(dialog, "lblOptions_0");
    EXPECT_EQ(Forms::Loaded("frmAutoStart"), nullptr);
  });
  InTheDialog([](QWidget& dialog) {
    dialog.close();
    EXPECT_EQ(Forms::Loaded("frmAutoStart"), nullptr);
  });
  EXPECT_FALSE(frame->HasEnded());
}

TEST_F(AutoStartTest, CommandsArePressedByKeysInTheOrderOfTheirRows)
{
  Start();
  InTheDialog([](QWidget& dialog) {
    const auto pressNext = [&](Qt::Key key) {
      QTest::keyClick(&dialog, Qt::Key_Tab);
      QTest::keyClick(dialog.focusWidget(), key);
    };
    dialog.activateWindow();
    Drive::Control(dialog, "lblOptions_0").setFocus(Qt::TabFocusReason);
    pressNext(Qt::Key_Space);
    EXPECT_EQ(Notice(dialog), kStarts);
    pressNext(Qt::Key_Return);
    EXPECT_EQ(Notice(dialog), kDoesNotStart);
    pressNext(Qt::Key_Space);
    EXPECT_EQ(Forms::Loaded("frmAutoStart"), nullptr);
  });
}

TEST_F(AutoStartTest, CommandsLightUpUnderTheMouse)
{
  Form& dialog = Forms::Load("frmAutoStart");
  dialog.Show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&dialog));
  const auto lit = [&](const char* name) {
    return static_cast<const Label&>(Drive::Control(dialog, name)).BackStyle() == Label::kOpaque;
  };
  for (const char* name : {"lblOptions_0", "lblOptions_1", "lblOptions_2"}) {
    EXPECT_FALSE(lit(name));
    Drive::MoveOver(dialog, name);
    EXPECT_TRUE(lit(name)) << name;
    Drive::MoveOver(dialog, "Label1");
    EXPECT_FALSE(lit(name)) << name;
  }
}

TEST_F(AutoStartTest, TakesTheThemeOfTheSettings)
{
  Start();
  for (const auto& [theme, colour] : {std::pair("5", QColor(0xFF, 0xF9, 0xE9)), std::pair("4", QColor(Qt::white))}) {
    Set(QStringLiteral("Theme=") + theme);
    InTheDialog([colour = colour](QWidget& dialog) {
      EXPECT_EQ(static_cast<Form&>(dialog).BackColor(), colour);
      Drive::Click(dialog, "lblOptions_0");
    });
  }
}

TEST_F(AutoStartTest, AMissingIconIsAsAnyMissingFile)
{
  Start();
  ASSERT_TRUE(QFile::remove(folder.File("/animp.ico")));
  EXPECT_EQ(ErrorOf([] { Forms::Load("frmAutoStart"); }), ErrorNumber::kFileNotFound);
  EXPECT_EQ(Forms::Loaded("frmAutoStart"), nullptr);
}
