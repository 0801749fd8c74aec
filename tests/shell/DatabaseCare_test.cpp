// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "DatabaseCareTest.h"

#include "shell/DatabaseCare.h"
#include "store/DBEngine.h"

namespace {

const QString kSorry = QStringLiteral("Sorry, your database could not be compacted.");
constexpr auto kYesNo = QMessageBox::Yes | QMessageBox::No;

class DatabaseCompacting : public DatabaseCareTest
{
protected:
  // As the menu does it, while nothing else has the file open.
  static void Compact() { Command::Run(DatabaseCare::Compact); }

  [[nodiscard]] QString TemporaryPath() const { return folder.File("/Quillmark1.mdb"); }
  [[nodiscard]] qint64 Size() const { return QFile(folder.DatabasePath()).size(); }

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
};

}

TEST_F(DatabaseCompacting, CompactingTellsTheSizesBeforeAndAfter)
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

TEST_F(DatabaseCompacting, CompactingKeepsEveryRow)
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

TEST_F(DatabaseCompacting, CompactingTwiceIsNoFailure)
{
  for (int round = 0; round < 2; ++round) {
    ExpectQuestion(QMessageBox::Yes);
    boxes.Expect(End(CompactSize()));
    Compact();
  }
}

TEST_F(DatabaseCompacting, CompactingLeavesTheFileToItsOwnerAlone)
{
  const QFile::Permissions alone = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
  ASSERT_TRUE(QFile::setPermissions(folder.DatabasePath(), alone));
  ExpectQuestion(QMessageBox::Yes);
  boxes.Expect(End(CompactSize()));
  Compact();
  EXPECT_EQ(QFile::permissions(folder.DatabasePath()), alone);
}

TEST_F(DatabaseCompacting, CompactingKeepsALinkToTheFile)
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

TEST_F(DatabaseCompacting, NoLetsGoOfTheFile)
{
  ExpectQuestion(QMessageBox::No);
  Compact();
  ExpectQuestion(QMessageBox::Yes);
  boxes.Expect(End(CompactSize()));
  Compact();
}

TEST_F(DatabaseCompacting, TheRunningProgramCompactsAndGoesOnWithTheNewFile)
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

TEST_F(DatabaseCompacting, TheRunningProgramCompactsAfterTheRecordEditorWasOpen)
{
  Start();
  frame->OpenPage("frmNew");
  Forms::Unload("frmNew");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  ExpectQuestion(QMessageBox::Yes);
  boxes.Expect(End(CompactSize()));
  Choose("mnuCompact");
}

TEST_F(DatabaseCompacting, NoLeavesTheFileUntouched)
{
  Waste();
  const QByteArray before = Database();
  const QStringList files = QDir(folder.Path()).entryList(QDir::Files | QDir::Hidden);
  ExpectQuestion(QMessageBox::No);
  Compact();
  EXPECT_TRUE(Database() == before);
  EXPECT_EQ(QDir(folder.Path()).entryList(QDir::Files | QDir::Hidden), files);
}

TEST_F(DatabaseCompacting, AKilobyteIsAThousandBytesAndPartsOfOneAreCutOff)
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

TEST_F(DatabaseCompacting, ALeftOverCopyMakesCompactingFail)
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

TEST_F(DatabaseCompacting, AFileInUseIsNotCompacted)
{
  const QByteArray before = Database();
  const class Database inUse = DBEngine::OpenDatabase();
  ExpectQuestion(QMessageBox::Yes);
  boxes.Expect(kSorry);
  Compact();
  EXPECT_TRUE(Database() == before);
}

TEST_F(DatabaseCompacting, AFileThatIsMissingOrDamagedIsNotCompacted)
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

TEST_F(DatabaseCompacting, AFullDiskLeavesTheOldFile)
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

TEST_F(DatabaseCompacting, AFullDiskKeepsNoRoomForAHalfCopy)
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

TEST_F(DatabaseCompacting, AFolderThatMayNotBeWrittenIsNotCompacted)
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

TEST_F(DatabaseCompacting, AFileThatMayNotBeWrittenIsNotCompacted)
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

TEST_F(DatabaseCompacting, EntriesAreDisabledWhileAPageForbidsThem)
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

TEST_F(DatabaseCompacting, EntriesAreDisabledWhileAPageIsOpen)
{
  Start();
  for (const char* page : {"frmNew", "frmAnn", "frmSpecial", "frmQuillmark", "frmCharts", "frmReminders"}) {
    frame->OpenPage(page);
    ASSERT_NE(Forms::Loaded(page), nullptr);
    EXPECT_FALSE(Menu("mnuCompact").isEnabled()) << page;
    EXPECT_FALSE(Menu("mnuBackup").isEnabled()) << page;
    Forms::Unload(page);
    EXPECT_TRUE(Menu("mnuCompact").isEnabled()) << page;
    EXPECT_TRUE(Menu("mnuBackup").isEnabled()) << page;
  }
}

TEST_F(DatabaseCompacting, EntriesStayDisabledFromOneEditorToTheOther)
{
  Start();
  frame->OpenPage("frmNew");
  Forms::Load("frmAnn").Show();
  EXPECT_EQ(Forms::Loaded("frmNew"), nullptr);
  EXPECT_FALSE(Menu("mnuCompact").isEnabled());
}
