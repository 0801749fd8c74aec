// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "support/ErrorOf.h"
#include "support/WeakProcess.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace {

class FilesInAFolder : public testing::Test
{
protected:
  [[nodiscard]] QString Path(const QString& name) const { return folder.path() + "/" + name; }

  void Write(const QString& name, const QByteArray& contents) const
  {
    QFile file(Path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(contents);
  }

  [[nodiscard]] QByteArray Contents(const QString& name) const
  {
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
  }

  [[nodiscard]] QStringList Entries() const
  {
    return QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDir::Name);
  }

  void Allow(mode_t folderMode, const QString& name, mode_t fileMode) const
  {
    ASSERT_EQ(chmod(Path(name).toUtf8().constData(), fileMode), 0);
    ASSERT_EQ(chmod(folder.path().toUtf8().constData(), folderMode), 0);
  }

  QTemporaryDir folder;
};

}

TEST_F(FilesInAFolder, FileLenIsTheSizeInBytes)
{
  Write("empty", "");
  Write("text", "é\n");
  Write("large", QByteArray(3'000'000, 'x'));
  EXPECT_EQ(Files::FileLen(Path("empty")), 0);
  EXPECT_EQ(Files::FileLen(Path("text")), 3);
  EXPECT_EQ(Files::FileLen(Path("large")), 3'000'000);
}

TEST_F(FilesInAFolder, WhatIsNotThereIsMissing)
{
  Write("target", "old");
  for (const QString name : {"none", "no/such/folder"}) {
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(Files::FileLen(Path(name))); }), ErrorNumber::kFileNotFound);
    EXPECT_EQ(ErrorOf([&] { Files::DeleteFile(Path(name)); }), ErrorNumber::kFileNotFound);
    EXPECT_EQ(ErrorOf([&] { Files::Name(Path(name), Path("new")); }), ErrorNumber::kFileNotFound);
    EXPECT_EQ(ErrorOf([&] { Files::CopyFile(Path(name), Path("new")); }), ErrorNumber::kFileNotFound);
    EXPECT_EQ(ErrorOf([&] { Files::CopyFile(Path(name), Path("target")); }), ErrorNumber::kFileNotFound);
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(Files::ReadLines(Path(name))); }), ErrorNumber::kFileNotFound);
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(Files::ReadFile(Path(name))); }), ErrorNumber::kFileNotFound);
  }
  EXPECT_EQ(Contents("target"), "old");
  EXPECT_EQ(Entries(), QStringList({"target"}));
}

TEST_F(FilesInAFolder, AFolderIsNoFile)
{
  ASSERT_TRUE(QDir(folder.path()).mkdir("inner"));
  Write("source", "new");
  EXPECT_NE(ErrorOf([&] { Files::DeleteFile(Path("inner")); }), 0);
  EXPECT_NE(ErrorOf([&] { Files::CopyFile(Path("inner"), Path("new")); }), 0);
  EXPECT_NE(ErrorOf([&] { static_cast<void>(Files::ReadLines(Path("inner"))); }), 0);
  EXPECT_NE(ErrorOf([&] { static_cast<void>(Files::ReadFile(Path("inner"))); }), 0);
  EXPECT_EQ(ErrorOf([&] { Files::CopyFile(Path("source"), Path("inner")); }), ErrorNumber::kFileAccess);
  EXPECT_EQ(Entries(), QStringList({"inner", "source"}));
}

TEST_F(FilesInAFolder, APipeIsNoFileAndIsNotWaitedFor)
{
  ASSERT_EQ(mkfifo(QFile::encodeName(Path("pipe")).constData(), S_IRUSR | S_IWUSR), 0);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(Files::ReadLines(Path("pipe"))); }), ErrorNumber::kFileAccess);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(Files::ReadFile(Path("pipe"))); }), ErrorNumber::kFileAccess);
  EXPECT_EQ(ErrorOf([&] { Files::CopyFile(Path("pipe"), Path("copy")); }), ErrorNumber::kFileAccess);
  EXPECT_FALSE(QFile::exists(Path("copy")));
}

TEST_F(FilesInAFolder, DeleteFileRemovesTheFileAlone)
{
  Write("file", "x");
  Write("other", "y");
  Files::DeleteFile(Path("file"));
  EXPECT_EQ(Entries(), QStringList({"other"}));
}

TEST_F(FilesInAFolder, AFileThatMayNotBeRemovedStays)
{
  Write("file", "x");
  Allow(0555, "file", 0444);
  EXPECT_EQ(ErrorInAWeakProcess([&] { Files::DeleteFile(Path("file")); }), ErrorNumber::kFileAccess);
  EXPECT_EQ(ErrorInAWeakProcess([&] { Files::Name(Path("file"), Path("new")); }), ErrorNumber::kFileAccess);
  Allow(0755, "file", 0644);
  EXPECT_EQ(Contents("file"), "x");
  EXPECT_EQ(Entries(), QStringList({"file"}));
}

TEST_F(FilesInAFolder, NameGivesAnotherName)
{
  Write("old", "x");
  Files::Name(Path("old"), Path("new"));
  EXPECT_EQ(Contents("new"), "x");
  EXPECT_EQ(Entries(), QStringList({"new"}));
}

TEST_F(FilesInAFolder, NameMovesBetweenFolders)
{
  ASSERT_TRUE(QDir(folder.path()).mkdir("inner"));
  Write("old", "x");
  Files::Name(Path("old"), Path("inner/new"));
  EXPECT_EQ(Contents("inner/new"), "x");
  EXPECT_EQ(Entries(), QStringList({"inner"}));
}

TEST_F(FilesInAFolder, NameRefusesATakenName)
{
  Write("old", "x");
  Write("new", "y");
  EXPECT_EQ(ErrorOf([&] { Files::Name(Path("old"), Path("new")); }), ErrorNumber::kFileAccess);
  EXPECT_EQ(Contents("old"), "x");
  EXPECT_EQ(Contents("new"), "y");
}

TEST_F(FilesInAFolder, NameRefusesAFolderThatIsNotThere)
{
  Write("old", "x");
  EXPECT_EQ(ErrorOf([&] { Files::Name(Path("old"), Path("inner/new")); }), ErrorNumber::kFileAccess);
  EXPECT_EQ(Contents("old"), "x");
}

TEST_F(FilesInAFolder, CopyFileMakesTheSameFile)
{
  const QByteArray contents = QByteArray("\0\r\n\xFF", 4) + QByteArray(3'000'000, 'x');
  Write("source", contents);
  Files::CopyFile(Path("source"), Path("target"));
  EXPECT_EQ(Contents("target"), contents);
  EXPECT_EQ(Contents("source"), contents);
  EXPECT_EQ(Entries(), QStringList({"source", "target"}));
}

TEST_F(FilesInAFolder, CopyFileReplacesAllThatStoodThere)
{
  Write("source", "new");
  Write("target", QByteArray(100'000, 'o'));
  Files::CopyFile(Path("source"), Path("target"));
  EXPECT_EQ(Contents("target"), "new");
  Write("source", "");
  Files::CopyFile(Path("source"), Path("target"));
  EXPECT_EQ(Contents("target"), "");
  EXPECT_EQ(Entries(), QStringList({"source", "target"}));
}

TEST_F(FilesInAFolder, CopyingAFileOverItselfLosesNothing)
{
  Write("file", "x");
  static_cast<void>(ErrorOf([&] { Files::CopyFile(Path("file"), Path("file")); }));
  static_cast<void>(ErrorOf([&] { Files::CopyFile(Path("file"), Path("./file")); }));
  EXPECT_EQ(Contents("file"), "x");
  EXPECT_EQ(Entries(), QStringList({"file"}));
}

TEST_F(FilesInAFolder, CopyFileRefusesAFolderThatIsNotThere)
{
  Write("source", "x");
  EXPECT_EQ(ErrorOf([&] { Files::CopyFile(Path("source"), Path("inner/target")); }), ErrorNumber::kFileAccess);
  EXPECT_EQ(Entries(), QStringList({"source"}));
}

TEST_F(FilesInAFolder, WhatMayNotBeReadIsRefused)
{
  Write("source", "x");
  Write("target", "old");
  Allow(0777, "source", 0000);
  EXPECT_EQ(ErrorInAWeakProcess([&] { Files::CopyFile(Path("source"), Path("target")); }), ErrorNumber::kFileAccess);
  EXPECT_EQ(ErrorInAWeakProcess([&] { Files::CopyFile(Path("source"), Path("new")); }), ErrorNumber::kFileAccess);
  EXPECT_EQ(ErrorInAWeakProcess([&] { static_cast<void>(Files::ReadLines(Path("source"))); }),
            ErrorNumber::kFileAccess);
  EXPECT_EQ(Contents("target"), "old");
  EXPECT_EQ(Entries(), QStringList({"source", "target"}));
}

TEST_F(FilesInAFolder, CopyFileRefusesAFolderThatMayNotBeWritten)
{
  Write("source", "x");
  Allow(0555, "source", 0444);
  EXPECT_EQ(ErrorInAWeakProcess([&] { Files::CopyFile(Path("source"), Path("target")); }), ErrorNumber::kFileAccess);
  EXPECT_EQ(Entries(), QStringList({"source"}));
  Allow(0755, "source", 0644);
}

TEST_F(FilesInAFolder, CopyFileRefusesATargetThatMayNotBeWritten)
{
  Write("source", "new");
  Write("target", "old");
  Allow(0777, "target", 0444);
  EXPECT_EQ(ErrorInAWeakProcess([&] { Files::CopyFile(Path("source"), Path("target")); }), ErrorNumber::kFileAccess);
  EXPECT_EQ(Contents("target"), "old");
  EXPECT_EQ(Entries(), QStringList({"source", "target"}));
}

TEST_F(FilesInAFolder, ACopyThatCannotStandBesideItsTargetIsNotPouredIntoIt)
{
  Write("source", QByteArray(1'000'000, 'n'));
  Write("target", "old");
  Allow(0555, "target", 0666);
  static_cast<void>(ErrorInAWeakProcess([&] { Files::CopyFile(Path("source"), Path("target")); }, 1000));
  EXPECT_EQ(Contents("target"), "old");
  Allow(0755, "target", 0666);
}

TEST_F(FilesInAFolder, ACopyThatDoesNotFitLeavesWhatStoodThere)
{
  Write("source", QByteArray(1'000'000, 'n'));
  Write("target", "old");
  Allow(0777, "target", 0666);
  for (const rlim_t limit : {rlim_t{0}, rlim_t{1000}, rlim_t{999'999}}) {
    EXPECT_EQ(ErrorInAWeakProcess([&] { Files::CopyFile(Path("source"), Path("target")); }, limit),
              ErrorNumber::kFileAccess)
        << limit;
    EXPECT_EQ(ErrorInAWeakProcess([&] { Files::CopyFile(Path("source"), Path("new")); }, limit),
              ErrorNumber::kFileAccess)
        << limit;
    EXPECT_EQ(Contents("target"), "old") << limit;
    EXPECT_EQ(Entries(), QStringList({"source", "target"})) << limit;
  }
}

TEST_F(FilesInAFolder, WriteFileReplacesAllThatStoodThere)
{
  for (const QByteArray& contents : {QByteArray(100'000, 'o'), QByteArray("\0\xFF\n", 3), QByteArray()}) {
    Files::WriteFile(Path("file"), contents);
    EXPECT_EQ(Contents("file"), contents);
  }
  EXPECT_EQ(Entries(), QStringList({"file"}));
}

TEST_F(FilesInAFolder, WriteFileWritesTheWholeFileOrNone)
{
  ASSERT_TRUE(QDir(folder.path()).mkdir("inner"));
  Write("file", "old");
  Allow(0777, "file", 0666);
  for (const qsizetype size : {1, 1000, 100'000}) {
    const auto write = [&] { Files::WriteFile(Path("file"), QByteArray(size, 'n')); };
    EXPECT_EQ(ErrorInAWeakProcess(write, static_cast<rlim_t>(size - 1)), ErrorNumber::kFileAccess) << size;
  }
  EXPECT_EQ(ErrorOf([&] { Files::WriteFile(Path("inner"), "x"); }), ErrorNumber::kFileAccess);
  EXPECT_EQ(ErrorOf([&] { Files::WriteFile(Path("none/file"), "x"); }), ErrorNumber::kFileAccess);
  EXPECT_EQ(ErrorOf([&] { Files::WriteFile(Path("file/file"), "x"); }), ErrorNumber::kFileAccess);
  EXPECT_EQ(Contents("file"), "old");
  EXPECT_EQ(Entries(), QStringList({"file", "inner"}));
}

TEST_F(FilesInAFolder, TheLastPieceOfACopyIsNotLost)
{
  Write("target", "old");
  Allow(0777, "target", 0666);
  for (const rlim_t size : {rlim_t{1}, rlim_t{1000}, rlim_t{65'537}, rlim_t{65'536 + 4096}, rlim_t{131'072}}) {
    Write("source", QByteArray(static_cast<qsizetype>(size), 'n'));
    const auto copy = [&] { Files::CopyFile(Path("source"), Path("target")); };
    EXPECT_EQ(ErrorInAWeakProcess(copy, size - 1), ErrorNumber::kFileAccess) << size;
    EXPECT_EQ(Contents("target"), "old") << size;
    EXPECT_EQ(Entries(), QStringList({"source", "target"})) << size;
  }
}

TEST_F(FilesInAFolder, ReadLinesGivesLinesWithoutTheirEnds)
{
  const struct
  {
    const char* contents;
    QStringList lines;
  } kCases[] = {
      {"", {}},
      {"\n", {""}},
      {"one", {"one"}},
      {"one\n", {"one"}},
      {"one\ntwo", {"one", "two"}},
      {"one\r\ntwo\r\n", {"one", "two"}},
      {"one\n\ntwo\n\n", {"one", "", "two", ""}},
      {"  one \n\ttwo\n", {"  one ", "\ttwo"}},
      {"é茶🎂\nb", {"é茶🎂", "b"}},
  };
  for (const auto& [contents, lines] : kCases) {
    Write("file", contents);
    EXPECT_EQ(Files::ReadLines(Path("file")), lines) << contents;
  }
}

TEST_F(FilesInAFolder, ReadFileGivesEveryByte)
{
  QByteArray bytes;
  for (int i = 0; i < 100'000; ++i) {
    bytes.append(static_cast<char>(i % 251));
  }
  for (const QByteArray& contents : {QByteArray(), QByteArray("one\r\ntwo\n"), bytes}) {
    QFile file(Path("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
    file.close();
    EXPECT_EQ(Files::ReadFile(Path("file")), contents);
  }
}

TEST_F(FilesInAFolder, NamesMayHoldAnyCharacter)
{
  Write("é 茶 #%20?.txt", "x");
  Files::CopyFile(Path("é 茶 #%20?.txt"), Path("b'\" &.txt"));
  Files::Name(Path("b'\" &.txt"), Path("🎂"));
  EXPECT_EQ(Files::FileLen(Path("🎂")), 1);
  Files::DeleteFile(Path("🎂"));
  EXPECT_EQ(Entries(), QStringList({"é 茶 #%20?.txt"}));
}
