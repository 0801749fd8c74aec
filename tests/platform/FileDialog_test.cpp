// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Command.h"
#include "platform/FileDialog.h"
#include "platform/RuntimeError.h"
#include "support/ErrorOf.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

const QString kName = QStringLiteral("quillmark2002.mdb");
const QString kExtension = QStringLiteral("mdb");

class FileDialogTest : public testing::Test
{
protected:
  using Act = std::function<void(QFileDialog& dialog)>;

  // Lets `act` answer the dialog that `show` opens, and closes it if that does not.
  static void WhileShown(const std::function<void()>& show, const Act& act)
  {
    bool seen = false;
    QTimer::singleShot(0, qApp, [&] {
      QWidget* widget = QApplication::activeModalWidget();
      if (auto* dialog = qobject_cast<QFileDialog*>(widget)) {
        seen = true;
        act(*dialog);
      }
      if (widget != nullptr && widget->isVisible()) {
        ADD_FAILURE() << "the dialog was not answered";
        widget->close();
      }
    });
    show();
    EXPECT_TRUE(seen);
  }

  static QString Open(const Act& act)
  {
    QString chosen;
    WhileShown([&] { chosen = ShowOpen(); }, act);
    return chosen;
  }

  static QString Save(const Act& act, const QString& name = kName)
  {
    QString chosen;
    WhileShown([&] { chosen = ShowSave(name, kExtension); }, act);
    return chosen;
  }

  // Types a name into the dialog and presses Enter.
  static Act Choosing(const QString& name)
  {
    return [name](QFileDialog& dialog) {
      auto* line = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      ASSERT_NE(line, nullptr);
      line->setText(name);
      static_cast<QDialog&>(dialog).accept();
    };
  }

  static void Cancel(QFileDialog& dialog) { dialog.reject(); }

  // Where a dialog begins.
  static QString FolderOfOpen()
  {
    return FolderOf([] { static_cast<void>(ShowOpen()); });
  }
  static QString FolderOfSave()
  {
    return FolderOf([] { static_cast<void>(ShowSave(kName, kExtension)); });
  }
  static QString FolderOf(const std::function<void()>& show)
  {
    QString folder;
    WhileShown([&] { EXPECT_EQ(ErrorOf(show), ErrorNumber::kCancelled); },
               [&](QFileDialog& dialog) {
                 folder = dialog.directory().canonicalPath();
                 dialog.reject();
               });
    return folder;
  }

  [[nodiscard]] QString Made(const QString& relative) const
  {
    const QString path = QDir(folder.path()).canonicalPath() + "/" + relative;
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    return path;
  }

  QTemporaryDir folder;
};

}

// Before any other test that chooses a file.
TEST_F(FileDialogTest, BeginsInTheUsersFoldersTheFirstTime)
{
  const QByteArray home = qgetenv("HOME");
  const QByteArray config = qgetenv("XDG_CONFIG_HOME");
  const QString own = QDir(folder.path()).canonicalPath();
  ASSERT_TRUE(QDir(own).mkpath("Pictures") && QDir(own).mkpath("Documents"));
  qputenv("HOME", own.toUtf8());
  qunsetenv("XDG_CONFIG_HOME");
  EXPECT_EQ(FolderOfOpen(), own + "/Pictures");
  EXPECT_EQ(FolderOfSave(), own + "/Documents");
  EXPECT_EQ(FolderOfOpen(), own + "/Pictures") << "a cancelled dialog chooses no folder";
  qputenv("HOME", home);
  if (!config.isEmpty()) {
    qputenv("XDG_CONFIG_HOME", config);
  }
}

TEST_F(FileDialogTest, OpensTheFileThatIsChosen)
{
  for (const char* name : {"picture.png", "picture", "letter.txt", "Ann & Bob é.jpg", "two  blanks.bmp", ".hidden"}) {
    const QString path = Made(name);
    EXPECT_EQ(Open(Choosing(path)).toStdString(), path.toStdString());
  }
}

TEST_F(FileDialogTest, OffersFilesOfEveryKindThatAreThere)
{
  WhileShown([] { EXPECT_EQ(ErrorOf([] { static_cast<void>(ShowOpen()); }), ErrorNumber::kCancelled); },
             [](QFileDialog& dialog) {
               EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
               EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
               for (const QString& filter : dialog.nameFilters()) {
                 EXPECT_TRUE(filter.contains("(*)")) << filter.toStdString();
               }
               EXPECT_TRUE(dialog.isModal());
               dialog.reject();
             });
}

TEST_F(FileDialogTest, CancellingIsAFailureOfItsOwn)
{
  WhileShown([] { EXPECT_EQ(ErrorOf([] { static_cast<void>(ShowOpen()); }), 32755); }, Cancel);
  WhileShown([] { EXPECT_EQ(ErrorOf([] { static_cast<void>(ShowSave(kName, kExtension)); }), 32755); }, Cancel);
  WhileShown([] { EXPECT_EQ(ErrorOf([] { static_cast<void>(ShowOpen()); }), 32755); },
             [](QFileDialog& dialog) { dialog.close(); });
  WhileShown([] { EXPECT_EQ(ErrorOf([] { static_cast<void>(ShowSave(kName, kExtension)); }), 32755); },
             [](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
}

TEST_F(FileDialogTest, SavesUnderTheNameItWasGiven)
{
  const QString chosen = Save([&](QFileDialog& dialog) {
    dialog.setDirectory(QDir(folder.path()).canonicalPath());
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_TRUE(dialog.isModal());
    auto* line = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->text().toStdString(), kName.toStdString());
    static_cast<QDialog&>(dialog).accept();
  });
  EXPECT_EQ(chosen, QDir(folder.path()).canonicalPath() + "/" + kName);
  EXPECT_FALSE(QFile::exists(chosen)) << "the dialog writes nothing itself";
}

TEST_F(FileDialogTest, GivesANameWithoutAnExtensionTheUsualOne)
{
  const QString own = QDir(folder.path()).canonicalPath();
  EXPECT_EQ(Save(Choosing(own + "/copy")), own + "/copy.mdb");
  EXPECT_EQ(Save(Choosing(own + "/copy.mdb")), own + "/copy.mdb");
  EXPECT_EQ(Save(Choosing(own + "/copy.bak")), own + "/copy.bak");
}

TEST_F(FileDialogTest, BeginsInTheFolderOfTheLastFile)
{
  for (const char* name : {"pictures/ann.png", "more/bob.png"}) {
    const QString picture = Made(name);
    Open(Choosing(picture));
    EXPECT_EQ(FolderOfOpen().toStdString(), QFileInfo(picture).path().toStdString());
    EXPECT_EQ(FolderOfOpen().toStdString(), QFileInfo(picture).path().toStdString())
        << "a cancelled dialog changes nothing";
    const QString copy = QFileInfo(picture).path() + "/copy.mdb";
    Save(Choosing(copy));
    EXPECT_EQ(FolderOfSave().toStdString(), QFileInfo(copy).path().toStdString());
  }
}

TEST_F(FileDialogTest, BeginsInTheFolderThatTheUserWentTo)
{
  const QString picture = Made("pictures/ann.png");
  const auto goThere = [&](QFileDialog& dialog) {
    dialog.setDirectory(QFileInfo(picture).path());
    Choosing("ann.png")(dialog);
  };
  EXPECT_EQ(Open(goThere).toStdString(), picture.toStdString());
  EXPECT_EQ(FolderOfOpen().toStdString(), QFileInfo(picture).path().toStdString());
}

TEST_F(FileDialogTest, IsAPauseInTheRunningCommand)
{
  class Writer : public Command::Participant
  {
  public:
    ~Writer() override { Command::Withdraw(*this); }
    void Settle() override { ++settled; }
    void Abandon() noexcept override { ++abandoned; }
    int settled = 0;
    int abandoned = 0;
  };
  const QString picture = Made("ann.png");
  for (const bool saving : {false, true}) {
    Writer writer;
    long serial = 0;
    const auto act = [&](QFileDialog& dialog) {
      EXPECT_EQ(writer.settled, 1);
      EXPECT_NE(Command::Serial(), serial);
      Choosing(saving ? folder.path() + "/new.mdb" : picture)(dialog);
    };
    Command::Run([&] {
      serial = Command::Serial();
      Command::Enlist(writer);
      saving ? Save(act) : Open(act);
      EXPECT_TRUE(Command::IsRunning());
    });
    EXPECT_EQ(writer.settled, 1);
    EXPECT_EQ(writer.abandoned, 0);
  }
}

TEST_F(FileDialogTest, WhatWasWrittenBeforeACancelledOneStands)
{
  class Writer : public Command::Participant
  {
  public:
    ~Writer() override { Command::Withdraw(*this); }
    void Settle() override { ++settled; }
    void Abandon() noexcept override { ++abandoned; }
    int settled = 0;
    int abandoned = 0;
  } writer;
  EXPECT_EQ(ErrorOf([&] {
              Command::Run([&] {
                Command::Enlist(writer);
                WhileShown([] { static_cast<void>(ShowOpen()); }, Cancel);
              });
            }),
            ErrorNumber::kCancelled);
  EXPECT_EQ(writer.settled, 1);
  EXPECT_EQ(writer.abandoned, 0);
  EXPECT_FALSE(Command::IsRunning());
}
