// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "DatabaseCareTest.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>

namespace {

class DatabaseBackup : public DatabaseCareTest
{
protected:
  // Opens the dialog for a backup and lets `act` answer it.
  void Backup(const std::function<void(QFileDialog&)>& act) const
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
    Choose("mnuBackup");
    EXPECT_TRUE(seen);
  }

  // The dialog itself asks nothing on this way.
  void BackupTo(const QString& path) const
  {
    Backup([&](QFileDialog& dialog) {
      dialog.setOption(QFileDialog::DontConfirmOverwrite);
      dialog.findChild<QLineEdit*>("fileNameEdit")->setText(path);
      static_cast<QDialog&>(dialog).accept();
    });
  }
};

}

TEST_F(DatabaseBackup, BackupCopiesTheFileInSilence)
{
  Waste();
  Start();
  const QByteArray before = Database();
  BackupTo(elsewhere.path() + "/copy.mdb");
  EXPECT_TRUE(Contents(elsewhere.path() + "/copy.mdb") == before);
  EXPECT_TRUE(Database() == before);
  EXPECT_EQ(QDir(elsewhere.path()).entryList(QDir::Files | QDir::Hidden), QStringList("copy.mdb"));
  EXPECT_EQ(boxes.Count(), 0U);
}

TEST_F(DatabaseBackup, ABackupIsForItsOwnerAloneAsTheFileIs)
{
  const QFile::Permissions alone = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
  ASSERT_TRUE(QFile::setPermissions(folder.DatabasePath(), alone));
  Start();
  BackupTo(elsewhere.path() + "/copy.mdb");
  EXPECT_EQ(QFile::permissions(elsewhere.path() + "/copy.mdb"), alone);
}

TEST_F(DatabaseBackup, BackupIsOfferedTheNameOfTheFile)
{
  Start();
  Backup([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "quillmark2002.mdb");
    dialog.setDirectory(elsewhere.path());
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText("copy");
    static_cast<QDialog&>(dialog).accept();
  });
  EXPECT_TRUE(Contents(elsewhere.path() + "/copy.mdb") == Database()) << "the usual extension is added";
}

TEST_F(DatabaseBackup, BackupReplacesAnExistingFileWithoutAsking)
{
  Start();
  const QString target = elsewhere.path() + "/copy.mdb";
  Write(target, QByteArray(1'000'000, 'x'));
  Backup([&](QFileDialog& dialog) {
    EXPECT_TRUE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
    dialog.reject();
  });
  BackupTo(target);
  EXPECT_TRUE(Contents(target) == Database());
  EXPECT_EQ(boxes.Count(), 0U);
}

TEST_F(DatabaseBackup, ACancelledBackupIsSilent)
{
  Start();
  const QByteArray before = Database();
  const QStringList files = QDir(folder.Path()).entryList(QDir::Files | QDir::Hidden);
  Backup([](QFileDialog& dialog) { dialog.reject(); });
  EXPECT_TRUE(Database() == before);
  EXPECT_EQ(QDir(folder.Path()).entryList(QDir::Files | QDir::Hidden), files);
  EXPECT_EQ(boxes.Count(), 0U);
  EXPECT_FALSE(frame->HasEnded());
}

TEST_F(DatabaseBackup, ABackupThatCannotBeWrittenIsSilent)
{
  Start();
  const QByteArray before = Database();
  BackupTo(elsewhere.path() + "/none/copy.mdb");
  EXPECT_TRUE(QDir(elsewhere.path()).isEmpty());
  const QString target = elsewhere.path() + "/copy.mdb";
  Write(target, "an old backup");
  for (const qsizetype limit : {qsizetype{10'000}, before.size() - 1}) {
    const FullDisk disk(static_cast<rlim_t>(limit));
    BackupTo(target);
    BackupTo(elsewhere.path() + "/new.mdb");
  }
  EXPECT_EQ(Contents(target), "an old backup");
  EXPECT_EQ(QDir(elsewhere.path()).entryList(QDir::Files | QDir::Hidden), QStringList("copy.mdb"));
  EXPECT_TRUE(Database() == before);
  EXPECT_EQ(boxes.Count(), 0U);
}

TEST_F(DatabaseBackup, ABackupOverWhatMayNotBeWrittenIsSilentAndLeavesIt)
{
  Start();
  MakePublic(folder.DatabasePath(), 0644);
  MakePublic(folder.Path(), 0755);
  const QString target = elsewhere.path() + "/copy.mdb";
  Write(target, "an old backup");
  for (const auto& [folderMode, fileMode] : {std::pair(0777, 0444), std::pair(0555, 0666), std::pair(0555, 0444)}) {
    MakePublic(target, fileMode);
    MakePublic(elsewhere.path(), folderMode);
    const WithoutRights rights;
    ASSERT_TRUE(rights.Done());
    BackupTo(target);
    BackupTo(elsewhere.path() + "/none/new.mdb");
    EXPECT_EQ(Contents(target), "an old backup") << folderMode << ' ' << fileMode;
    EXPECT_EQ(QDir(elsewhere.path()).entryList(QDir::Files | QDir::Hidden), QStringList("copy.mdb"));
  }
  EXPECT_EQ(boxes.Count(), 0U);
}

TEST_F(DatabaseBackup, ABackupInThePlaceOfTheFileHoldsEveryRow)
{
  Waste();
  Set("Theme=3, ToolTips=1");
  folder.Execute("INSERT INTO Ann (Spouse1ID, Spouse2ID) VALUES (1, 1)");
  const auto all = [&] {
    return std::vector{folder.Rows("SELECT * FROM People"), folder.Rows("SELECT * FROM Options"),
                       folder.Rows("SELECT * FROM Ann"), folder.Rows("SELECT * FROM Reminders"),
                       folder.Rows("SELECT name, sql FROM sqlite_master ORDER BY name")};
  };
  const auto before = all();
  Start();
  BackupTo(elsewhere.path() + "/copy.mdb");
  frame->Unload();
  frame.reset();
  ASSERT_TRUE(QFile::remove(folder.DatabasePath()));
  ASSERT_TRUE(QFile::rename(elsewhere.path() + "/copy.mdb", folder.DatabasePath()));
  EXPECT_TRUE(all() == before);
  Start();
  EXPECT_FALSE(frame->HasEnded());
  EXPECT_TRUE(Menu("mnuTheme_3").isChecked());
  EXPECT_TRUE(Menu("mnuToolTips_0").isChecked());
  EXPECT_TRUE(all() == before);
}

TEST_F(DatabaseBackup, ABackupOverTheFileItselfLeavesItWhole)
{
  Start();
  const QByteArray before = Database();
  BackupTo(folder.DatabasePath());
  EXPECT_TRUE(Database() == before);
}

TEST_F(DatabaseBackup, ABackupOfAMissingFileIsSilent)
{
  Start();
  ASSERT_TRUE(QFile::remove(folder.DatabasePath()));
  const QString target = elsewhere.path() + "/copy.mdb";
  Write(target, "an old backup");
  BackupTo(target);
  EXPECT_EQ(Contents(target), "an old backup");
  EXPECT_EQ(boxes.Count(), 0U);
}
