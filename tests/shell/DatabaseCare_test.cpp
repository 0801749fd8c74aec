// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ShellTest.h"

#include "platform/Command.h"
#include "shell/DatabaseCare.h"
#include "store/DBEngine.h"
#include "support/FullDisk.h"
#include "support/WithoutRights.h"

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>

#include <sys/stat.h>

namespace {

const QString kSorry = QStringLiteral("Sorry, your database could not be compacted.");
constexpr auto kYesNo = QMessageBox::Yes | QMessageBox::No;

class DatabaseCareTest : public ShellTest
{
protected:
  void Choose(const char* entry) const
  {
    Command::Run([&] { Menu(entry).trigger(); });
  }

  // As the menu does it, while nothing else has the file open.
  static void Compact() { Command::Run(DatabaseCare::Compact); }

  static QByteArray Contents(const QString& path)
  {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
  }

  static void Write(const QString& path, const QByteArray& contents)
  {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
  }

  static void MakePublic(const QString& path, int mode)
  {
    ASSERT_EQ(chmod(path.toUtf8().constData(), static_cast<mode_t>(mode)), 0);
  }

  [[nodiscard]] QString TemporaryPath() const { return folder.File("/Quillmark1.mdb"); }
  [[nodiscard]] qint64 Size() const { return QFile(folder.DatabasePath()).size(); }
  [[nodiscard]] QByteArray Database() const { return Contents(folder.DatabasePath()); }

  static QString Question(qint64 bytes)
  {
    return QStringLiteral("Your database is %1 KB in size. Proceed?").arg(bytes / 1000);
  }
  static QString End(qint64 bytes)
  {
    return QStringLiteral("End of compact proceedure. Your database is now %1 KB in size.").arg(bytes / 1000);
  }

  void ExpectQuestion(QMessageBox::StandardButton answer) { boxes.Expect(Question(Size()), kYesNo, answer); }

  // The size that the file comes down to.
  [[nodiscard]] qint64 CompactSize() const
  {
    const QTemporaryDir beside;
    const QString source = beside.path() + "/copy.mdb";
    const QString target = beside.path() + "/compact.mdb";
    EXPECT_TRUE(QFile::copy(folder.DatabasePath(), source));
    DBEngine::CompactDatabase(source, target);
    return QFile(target).size();
  }

  // Makes room in the file that nothing uses.
  void Waste() const
  {
    folder.Execute("INSERT INTO People (PeopleID, FirstName, Notes) VALUES (1, 'Ann', 'kept'), (2, 'Bob', ?)",
                   {QString(500'000, u'n')});
    folder.Execute("DELETE FROM People WHERE PeopleID=2");
  }

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

  QTemporaryDir elsewhere;
};

}

TEST_F(DatabaseCareTest, CompactingTellsTheSizesBeforeAndAfter)
{
  Waste();
  const qint64 before = Size();
  const qint64 after = CompactSize();
  ASSERT_GE(before - after, 400'000);
  ExpectQuestion(QMessageBox::Yes);
  boxes.Expect(End(after));
  Compact();
  EXPECT_EQ(Size(), after);
  EXPECT_FALSE(QFile::exists(TemporaryPath()));
}

TEST_F(DatabaseCareTest, CompactingKeepsEveryRow)
{
  Waste();
  const auto all = [&] {
    return std::vector{folder.Rows("SELECT * FROM People"), folder.Rows("SELECT * FROM Options"),
                       folder.Rows("SELECT * FROM TotalAnn"),
                       folder.Rows("SELECT name, sql FROM sqlite_master ORDER BY name"),
                       folder.Rows("SELECT * FROM sqlite_sequence")};
  };
  const auto before = all();
  ExpectQuestion(QMessageBox::Yes);
  boxes.Expect(End(CompactSize()));
  Compact();
  EXPECT_TRUE(all() == before);
  folder.Execute("INSERT INTO People (FirstName) VALUES ('Cid')");
  EXPECT_EQ(folder.Value("SELECT max(PeopleID) FROM People"), 3) << "keys are never used again";
}

TEST_F(DatabaseCareTest, CompactingTwiceIsNoFailure)
{
  for (int round = 0; round < 2; ++round) {
    ExpectQuestion(QMessageBox::Yes);
    boxes.Expect(End(CompactSize()));
    Compact();
  }
}

TEST_F(DatabaseCareTest, CompactingLeavesTheFileToItsOwnerAlone)
{
  const QFile::Permissions alone = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
  ASSERT_TRUE(QFile::setPermissions(folder.DatabasePath(), alone));
  ExpectQuestion(QMessageBox::Yes);
  boxes.Expect(End(CompactSize()));
  Compact();
  EXPECT_EQ(QFile::permissions(folder.DatabasePath()), alone);
}

TEST_F(DatabaseCareTest, CompactingKeepsALinkToTheFile)
{
  const QString real = elsewhere.path() + "/real.mdb";
  ASSERT_TRUE(QFile::rename(folder.DatabasePath(), real));
  ASSERT_TRUE(QFile::link(real, folder.DatabasePath()));
  ExpectQuestion(QMessageBox::Yes);
  boxes.Expect(End(CompactSize()));
  Compact();
  EXPECT_EQ(QFileInfo(folder.DatabasePath()).symLinkTarget(), real);
  EXPECT_TRUE(QFile::exists(real));
}

TEST_F(DatabaseCareTest, NoLetsGoOfTheFile)
{
  ExpectQuestion(QMessageBox::No);
  Compact();
  ExpectQuestion(QMessageBox::Yes);
  boxes.Expect(End(CompactSize()));
  Compact();
}

TEST_F(DatabaseCareTest, TheRunningProgramCompactsAndGoesOnWithTheNewFile)
{
  Waste();
  Start();
  ExpectQuestion(QMessageBox::Yes);
  boxes.Expect(End(CompactSize()));
  Choose("mnuCompact");
  Menu("mnuToolTips_1").trigger();
  EXPECT_EQ(Option("ToolTips"), 0);
  frame->SetState(WindowState::kMaximised);
  frame->Unload();
  EXPECT_EQ(Option("WindowState"), 1);
}

TEST_F(DatabaseCareTest, TheRunningProgramCompactsAfterTheRecordEditorWasOpen)
{
  Start();
  frame->OpenPage("frmNew");
  Forms::Unload("frmNew");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  ExpectQuestion(QMessageBox::Yes);
  boxes.Expect(End(CompactSize()));
  Choose("mnuCompact");
}

TEST_F(DatabaseCareTest, NoLeavesTheFileUntouched)
{
  Waste();
  const QByteArray before = Database();
  const QStringList files = QDir(folder.Path()).entryList(QDir::Files | QDir::Hidden);
  ExpectQuestion(QMessageBox::No);
  Compact();
  EXPECT_TRUE(Database() == before);
  EXPECT_EQ(QDir(folder.Path()).entryList(QDir::Files | QDir::Hidden), files);
}

TEST_F(DatabaseCareTest, AKilobyteIsAThousandBytesAndPartsOfOneAreCutOff)
{
  const QByteArray whole = Database();
  const qint64 kilobytes = whole.size() / 1000 + 1;
  for (const qint64 bytes : {kilobytes * 1000 - 1, kilobytes * 1000, kilobytes * 1000 + 999, kilobytes * 1000 + 1000}) {
    Write(folder.DatabasePath(), whole + QByteArray(bytes - whole.size(), 0));
    ASSERT_EQ(Size(), bytes);
    boxes.Expect(QStringLiteral("Your database is %1 KB in size. Proceed?")
                     .arg(bytes < kilobytes * 1000          ? kilobytes - 1
                          : bytes < kilobytes * 1000 + 1000 ? kilobytes
                                                            : kilobytes + 1),
                 kYesNo, QMessageBox::No);
    Compact();
  }
}

TEST_F(DatabaseCareTest, ALeftOverCopyMakesCompactingFail)
{
  for (const QByteArray& contents : {QByteArray("left over"), QByteArray()}) {
    Write(TemporaryPath(), contents);
    const QByteArray before = Database();
    ExpectQuestion(QMessageBox::Yes);
    boxes.Expect(kSorry);
    Compact();
    EXPECT_TRUE(Database() == before);
    EXPECT_EQ(Contents(TemporaryPath()), contents) << "the copy stays, whoever left it";
  }
}

TEST_F(DatabaseCareTest, AFileInUseIsNotCompacted)
{
  const QByteArray before = Database();
  const class Database inUse = DBEngine::OpenDatabase();
  ExpectQuestion(QMessageBox::Yes);
  boxes.Expect(kSorry);
  Compact();
  EXPECT_TRUE(Database() == before);
}

TEST_F(DatabaseCareTest, AFileThatIsMissingOrDamagedIsNotCompacted)
{
  ASSERT_TRUE(QFile::remove(folder.DatabasePath()));
  Write(folder.DatabasePath(), QByteArray("Dear diary, today I saw a butterfly.\n").repeated(100));
  const QByteArray diary = Database();
  boxes.Expect(kSorry);
  Compact();
  EXPECT_EQ(Database(), diary);
  ASSERT_TRUE(QFile::remove(folder.DatabasePath()));
  boxes.Expect(kSorry);
  Compact();
  EXPECT_FALSE(QFile::exists(folder.DatabasePath()));
}

TEST_F(DatabaseCareTest, AFullDiskLeavesTheOldFile)
{
  folder.Execute("INSERT INTO People (FirstName, Notes) VALUES ('Ann', ?)", {QString(200'000, u'n')});
  const QByteArray before = Database();
  ExpectQuestion(QMessageBox::Yes);
  boxes.Expect(kSorry);
  {
    const FullDisk disk(50'000);
    Compact();
  }
  EXPECT_TRUE(Database() == before);
}

TEST_F(DatabaseCareTest, AFullDiskKeepsNoRoomForAHalfCopy)
{
  folder.Execute("INSERT INTO People (FirstName, Notes) VALUES ('Ann', ?)", {QString(200'000, u'n')});
  ExpectQuestion(QMessageBox::Yes);
  boxes.Expect(kSorry);
  {
    const FullDisk disk(50'000);
    Compact();
  }
  EXPECT_FALSE(QFile::exists(TemporaryPath()));
  ExpectQuestion(QMessageBox::Yes);
  boxes.Expect(End(CompactSize()));
  Compact();
}

TEST_F(DatabaseCareTest, AFolderThatMayNotBeWrittenIsNotCompacted)
{
  const QByteArray before = Database();
  MakePublic(folder.DatabasePath(), 0666);
  MakePublic(folder.Path(), 0555);
  {
    const WithoutRights rights;
    ASSERT_TRUE(rights.Done());
    ExpectQuestion(QMessageBox::Yes);
    boxes.Expect(kSorry);
    Compact();
  }
  EXPECT_TRUE(Database() == before);
  EXPECT_FALSE(QFile::exists(TemporaryPath()));
}

TEST_F(DatabaseCareTest, AFileThatMayNotBeWrittenIsNotCompacted)
{
  const QByteArray before = Database();
  MakePublic(folder.DatabasePath(), 0444);
  MakePublic(folder.Path(), 0777);
  {
    const WithoutRights rights;
    ASSERT_TRUE(rights.Done());
    boxes.Expect(kSorry);
    Compact();
  }
  EXPECT_TRUE(Database() == before);
  EXPECT_FALSE(QFile::exists(TemporaryPath()));
}

TEST_F(DatabaseCareTest, BackupCopiesTheFileInSilence)
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

TEST_F(DatabaseCareTest, ABackupIsForItsOwnerAloneAsTheFileIs)
{
  const QFile::Permissions alone = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
  ASSERT_TRUE(QFile::setPermissions(folder.DatabasePath(), alone));
  Start();
  BackupTo(elsewhere.path() + "/copy.mdb");
  EXPECT_EQ(QFile::permissions(elsewhere.path() + "/copy.mdb"), alone);
}

TEST_F(DatabaseCareTest, BackupIsOfferedTheNameOfTheFile)
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

TEST_F(DatabaseCareTest, BackupReplacesAnExistingFileWithoutAsking)
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

TEST_F(DatabaseCareTest, ACancelledBackupIsSilent)
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

TEST_F(DatabaseCareTest, ABackupThatCannotBeWrittenIsSilent)
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

TEST_F(DatabaseCareTest, ABackupOverWhatMayNotBeWrittenIsSilentAndLeavesIt)
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

TEST_F(DatabaseCareTest, ABackupInThePlaceOfTheFileHoldsEveryRow)
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

TEST_F(DatabaseCareTest, ABackupOverTheFileItselfLeavesItWhole)
{
  Start();
  const QByteArray before = Database();
  BackupTo(folder.DatabasePath());
  EXPECT_TRUE(Database() == before);
}

TEST_F(DatabaseCareTest, ABackupOfAMissingFileIsSilent)
{
  Start();
  ASSERT_TRUE(QFile::remove(folder.DatabasePath()));
  const QString target = elsewhere.path() + "/copy.mdb";
  Write(target, "an old backup");
  BackupTo(target);
  EXPECT_EQ(Contents(target), "an old backup");
  EXPECT_EQ(boxes.Count(), 0U);
}

TEST_F(DatabaseCareTest, EntriesAreDisabledWhileAPageForbidsThem)
{
  Start();
  const auto enabled = [&] { return Menu("mnuCompact").isEnabled() && Menu("mnuBackup").isEnabled(); };
  const auto disabled = [&] { return !Menu("mnuCompact").isEnabled() && !Menu("mnuBackup").isEnabled(); };
  EXPECT_TRUE(enabled());
  frame->AllowDatabaseCare(false);
  EXPECT_TRUE(disabled());
  frame->AllowDatabaseCare(true);
  EXPECT_TRUE(enabled());
}

TEST_F(DatabaseCareTest, EntriesAreDisabledWhileAnEditorIsOpen)
{
  Start();
  for (const char* page : {"frmNew", "frmAnn"}) {
    frame->OpenPage(page);
    ASSERT_NE(Forms::Loaded(page), nullptr);
    EXPECT_FALSE(Menu("mnuCompact").isEnabled()) << page;
    EXPECT_FALSE(Menu("mnuBackup").isEnabled()) << page;
    Forms::Unload(page);
    EXPECT_TRUE(Menu("mnuCompact").isEnabled()) << page;
    EXPECT_TRUE(Menu("mnuBackup").isEnabled()) << page;
  }
}

TEST_F(DatabaseCareTest, EntriesStayDisabledFromOneEditorToTheOther)
{
  Start();
  frame->OpenPage("frmNew");
  Forms::Load("frmAnn").Show();
  EXPECT_EQ(Forms::Loaded("frmNew"), nullptr);
  EXPECT_FALSE(Menu("mnuCompact").isEnabled());
}
