// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/HelpBook.h"

#include "support/EnvironmentVariable.h"
#include "support/ProgramFolder.h"
#include "support/WithoutRights.h"

#include <QAbstractItemModel>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

const QString kLaid = QStringLiteral(QUILLMARK_LAID_FOLDER "/Help.hlp");

// What stands in a folder, with when it was written.
QStringList Listing(const QString& folder)
{
  QStringList lines;
  for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) {
    lines.append(file.fileName() + ' ' + QString::number(file.size()) + ' ' +
                 file.lastModified().toString(Qt::ISODateWithMs));
  }
  return lines;
}

class HelpBookTest : public testing::Test
{
protected:
  HelpBookTest() { EXPECT_TRUE(QFile::copy(kLaid, path)); }

  static QByteArray Laid()
  {
    QFile file(kLaid);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  void Write(const QByteArray& contents) const
  {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(contents);
  }

  static bool Fill(const HelpBook& book)
  {
    return QTest::qWaitFor([&] { return book.Topics().rowCount() > 0; });
  }

  QTemporaryDir folder;
  const QString path = folder.filePath("Help.hlp");
};

}

TEST_F(HelpBookTest, PagesAreFoundByTheirContextNumbers)
{
  const auto book = HelpBook::Open(path);
  ASSERT_NE(book, nullptr);
  EXPECT_EQ(book->PageOf(1).fileName(), "index.html");
  EXPECT_EQ(book->PageOf(2).fileName(), "quick-fill.html");
  EXPECT_EQ(book->PageOf(3).fileName(), "why-reminders.html");
  for (const int number : {0, -1, 4711}) {
    EXPECT_TRUE(book->PageOf(number).isEmpty()) << number;
  }
}

TEST_F(HelpBookTest, ReadsWhatStandsAtAnAddress)
{
  const auto book = HelpBook::Open(path);
  ASSERT_NE(book, nullptr);
  const QUrl page = book->PageOf(2);
  QFile source(QStringLiteral(QUILLMARK_SOURCE "/assets/help/quick-fill.html"));
  ASSERT_TRUE(source.open(QIODevice::ReadOnly));
  EXPECT_EQ(book->Read(page), source.readAll());
  EXPECT_EQ(book->Read(page.resolved(QUrl("#place"))), book->Read(page));
  EXPECT_TRUE(book->Read(page.resolved(QUrl("nowhere.html"))).isEmpty());
  EXPECT_TRUE(book->Read(QUrl("https://example.org/")).isEmpty());
}

TEST_F(HelpBookTest, ReadsTheTitleAndTheTextOfAPage)
{
  const auto book = HelpBook::Open(path);
  ASSERT_NE(book, nullptr);
  const auto& pages = book->Pages();
  const auto found = std::find_if(pages.begin(), pages.end(), [](const HelpSearch::Page& page) {
    return page.address.fileName() == "quick-fill.html";
  });
  ASSERT_NE(found, pages.end());
  EXPECT_EQ(found->title.toStdString(), "Quick-fill");
  EXPECT_TRUE(found->text.startsWith("Type an address once, for the whole household. Families share"))
      << found->text.toStdString();
  EXPECT_FALSE(found->text.contains('\n'));
  EXPECT_FALSE(found->text.contains('<'));
}

TEST_F(HelpBookTest, TopicsAndPagesLeadToEachOther)
{
  const auto book = HelpBook::Open(path);
  ASSERT_NE(book, nullptr);
  ASSERT_TRUE(Fill(*book));
  for (const int number : {1, 2, 3}) {
    const QModelIndex topic = book->TopicOf(book->PageOf(number));
    ASSERT_TRUE(topic.isValid());
    EXPECT_EQ(book->AddressOf(topic), book->PageOf(number));
  }
  EXPECT_EQ(book->TopicOf(book->PageOf(2)).data().toString().toStdString(), "Quick-fill");
  EXPECT_EQ(book->TopicOf(book->PageOf(2).resolved(QUrl("#place"))), book->TopicOf(book->PageOf(2)));
  EXPECT_FALSE(book->TopicOf(QUrl("https://example.org/")).isValid());
  EXPECT_TRUE(book->AddressOf({}).isEmpty());
}

TEST_F(HelpBookTest, WhatIsNoFileIsNotOpened)
{
  EXPECT_EQ(HelpBook::Open(folder.filePath("missing.hlp")), nullptr);
  EXPECT_EQ(HelpBook::Open(folder.path()), nullptr);
  EXPECT_EQ(HelpBook::Open(QString()), nullptr);
  EXPECT_FALSE(QFile::exists(folder.filePath("missing.hlp")));
}

TEST_F(HelpBookTest, RandomBytesAreNotOpened)
{
  QRandomGenerator random(20260505);
  for (const int size : {0, 1, 99, 100, 4096, 300000}) {
    QByteArray bytes(size, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random.bounded(256)); });
    Write(bytes);
    EXPECT_EQ(HelpBook::Open(path), nullptr) << size;
    Write(Laid().left(100) + bytes);
    EXPECT_EQ(HelpBook::Open(path), nullptr) << "behind a good beginning, " << size;
  }
}

TEST_F(HelpBookTest, ATruncatedFileIsNotOpened)
{
  const QByteArray whole = Laid();
  for (const qsizetype size : {qsizetype(1), qsizetype(100), qsizetype(512), qsizetype(4096), qsizetype(8192),
                               whole.size() / 10, whole.size() / 2, whole.size() - 4096, whole.size() - 1}) {
    Write(whole.left(size));
    EXPECT_EQ(HelpBook::Open(path), nullptr) << size;
  }
}

TEST_F(HelpBookTest, ABookWithAPageThatCannotBeReadIsNotOpened)
{
  QByteArray damaged = Laid();
  // Blobs are long; whatever lies in the middle of the file belongs to one of them.
  damaged.replace(damaged.size() / 2, 20000, QByteArray(20000, '\x55'));
  Write(damaged);
  EXPECT_EQ(HelpBook::Open(path), nullptr);
}

TEST_F(HelpBookTest, ScatteredDamageIsSeenOrHarmsNoPage)
{
  const QByteArray whole = Laid();
  QRandomGenerator random(20260506);
  int refused = 0;
  for (int run = 0; run < 20; ++run) {
    QByteArray damaged = whole;
    for (int i = 0; i < 20; ++i) {
      damaged[random.bounded(static_cast<int>(damaged.size()))] = static_cast<char>(random.bounded(256));
    }
    Write(damaged);
    const auto book = HelpBook::Open(path);
    refused += book == nullptr ? 1 : 0;
    if (book != nullptr) {
      for (const HelpSearch::Page& page : book->Pages()) {
        EXPECT_FALSE(page.title.isEmpty()) << page.address.toString().toStdString();
      }
    }
  }
  EXPECT_GT(refused, 0);
}

TEST_F(HelpBookTest, AFolderThatCannotBeWrittenWillDo)
{
  ASSERT_EQ(chmod(path.toUtf8().constData(), 0444), 0);
  ASSERT_EQ(chmod(folder.path().toUtf8().constData(), 0555), 0);
  const QStringList before = Listing(folder.path());
  {
    const WithoutRights reader;
    ASSERT_TRUE(reader.Done());
    EXPECT_FALSE(QFile(folder.filePath("proof")).open(QIODevice::WriteOnly)) << "the folder can be written";
    const auto book = HelpBook::Open(path);
    ASSERT_NE(book, nullptr);
    EXPECT_TRUE(Fill(*book));
    EXPECT_FALSE(book->Pages().empty());
  }
  EXPECT_EQ(Listing(folder.path()), before);
  ASSERT_EQ(chmod(folder.path().toUtf8().constData(), 0755), 0);
}

TEST_F(HelpBookTest, NothingIsWrittenBesideTheFile)
{
  const QStringList before = Listing(folder.path());
  {
    const auto book = HelpBook::Open(path);
    ASSERT_NE(book, nullptr);
    ASSERT_TRUE(Fill(*book));
    EXPECT_FALSE(book->Pages().empty());
    EXPECT_EQ(Listing(folder.path()), before);
  }
  EXPECT_EQ(Listing(folder.path()), before);
}

TEST_F(HelpBookTest, WhatTheToolkitWritesIsPrivateAndGoesWithTheBook)
{
  const QTemporaryDir temporary;
  const EnvironmentVariable place("TMPDIR", temporary.path().toUtf8());
  auto book = HelpBook::Open(path);
  ASSERT_NE(book, nullptr);
  const QFileInfoList made =
      QDir(temporary.path()).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  ASSERT_EQ(made.size(), 1);
  EXPECT_FALSE(made[0].permissions() & (QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther));
  book.reset();
  EXPECT_TRUE(Listing(temporary.path()).isEmpty());

  Write("no help at all");
  EXPECT_EQ(HelpBook::Open(path), nullptr);
  EXPECT_TRUE(Listing(temporary.path()).isEmpty()) << "also of a file that is refused";
}

TEST_F(HelpBookTest, LinksOnTheWayDoNoHarm)
{
  const QTemporaryDir elsewhere;
  const QString linked = elsewhere.filePath("deep/er");
  ASSERT_TRUE(QDir().mkpath(elsewhere.filePath("deep")));
  ASSERT_TRUE(QFile::link(folder.path(), linked));
  ASSERT_TRUE(QFile::link(QDir::tempPath(), elsewhere.filePath("temporary")));
  const EnvironmentVariable place("TMPDIR", elsewhere.filePath("temporary").toUtf8());
  EXPECT_NE(HelpBook::Open(linked + "/Help.hlp"), nullptr);
}

TEST_F(HelpBookTest, WithoutATemporaryFolderNothingIsOpened)
{
  const EnvironmentVariable place("TMPDIR", path.toUtf8());  // no folder
  EXPECT_EQ(HelpBook::Open(path), nullptr);
}

TEST_F(HelpBookTest, FoldersWithBlanksAndLettersOfAllLanguagesWillDo)
{
  const QString strange = folder.filePath(QStringLiteral("Ünsere Häuser %20 # ?"));
  ASSERT_TRUE(QDir().mkpath(strange));
  ASSERT_TRUE(QFile::copy(kLaid, strange + "/Help.hlp"));
  const auto book = HelpBook::Open(strange + "/Help.hlp");
  ASSERT_NE(book, nullptr);
  EXPECT_FALSE(book->Pages().empty());
}
