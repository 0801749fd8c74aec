// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/LetterDocuments.h"
#include "lookup/Letters.h"
#include "support/OwnDesktop.h"

#include <QDateTime>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

#include <gtest/gtest.h>

namespace {

constexpr int kPatience = 60000;
const QString kText = QStringLiteral(
    "March 05, 2026\n\nZo\u00EB O'Neil\n  1 <Elm>  Street & \"Sons\" \n\tFlat\t2\n\n\u4E2D, \U0001F600 {\\b x}\n\nDear "
    "Zo\u00EB:");

// LibreOffice Writer as it is installed, without a display, with the folders of a user who
// has never started it.
class WriterTest : public testing::Test
{
protected:
  WriterTest()
  {
    desktop_.AddSystemPrograms();
    qputenv("SAL_USE_VCLPLUGIN", "svp");
  }

  ~WriterTest() override
  {
    Documents({"end"});
    if (office_.state() != QProcess::NotRunning) {
      EXPECT_TRUE(office_.waitForFinished(kPatience));
    }
    qunsetenv("SAL_USE_VCLPLUGIN");
  }

  [[nodiscard]] QString Pipe() const { return "quillmark" + QDir(desktop_.File("")).dirName(); }
  [[nodiscard]] QString Listening() const { return "--accept=pipe,name=" + Pipe() + ";urp"; }

  void StartOffice()
  {
    office_.setStandardErrorFile(QProcess::nullDevice());
    office_.start("soffice", {"--nologo", "--norestore", Listening()});
    ASSERT_TRUE(office_.waitForStarted(kPatience));
    ASSERT_TRUE(QTest::qWaitFor([&] { return Documents().isArray(); }, kPatience));
  }

  // The text documents that LibreOffice has open; null while it cannot be asked.
  QJsonDocument Documents(const QStringList& command = {}) const
  {
    QProcess reader;
    reader.setStandardErrorFile(QProcess::nullDevice());
    reader.start("/usr/bin/python3", QStringList{QUILLMARK_LOOKUP_PROGRAMS "/open_documents.py", Pipe()} + command);
    EXPECT_TRUE(reader.waitForFinished(kPatience));
    return QJsonDocument::fromJson(reader.readAllStandardOutput());
  }

  void ExpectTheLetterUnnamed() const
  {
    QJsonDocument documents;
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
          documents = Documents();
          return !documents.array().isEmpty();
        },
        kPatience));
    ASSERT_EQ(documents.array().size(), 1);
    const QJsonObject letter = documents.array().first().toObject();
    EXPECT_EQ(letter["text"].toString().toStdString(), kText.toStdString());
    EXPECT_EQ(letter["location"].toString(), "");
    EXPECT_FALSE(letter["isNamed"].toBool(true));
    EXPECT_FALSE(letter["isReadOnly"].toBool(true));
    EXPECT_FALSE(letter["title"].toString().contains("Letter"));
  }

  [[nodiscard]] QStringList LetterFolders() const
  {
    return QDir(desktop_.File("data/Quillmark/letters")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
  }

  OwnDesktop desktop_;
  QProcess office_;
};

}

TEST_F(WriterTest, ALetterComesUpAsANewUnnamedDocumentInTheInstanceThatRuns)
{
  StartOffice();
  EXPECT_TRUE(Documents().array().isEmpty());
  Letters::Open(LetterProgram::kWord, kText);
  ExpectTheLetterUnnamed();
}

TEST_F(WriterTest, WithNoInstanceRunningALetterStartsOneAndItsFileGoesWithIt)
{
  desktop_.LayScript("lowriter", "exec /usr/bin/lowriter --norestore '" + Listening().toUtf8() + "' \"$@\"");
  Letters::Open(LetterProgram::kWord, kText);
  ExpectTheLetterUnnamed();
  ASSERT_EQ(LetterFolders().size(), 1);
  QFile letter(desktop_.File("data/Quillmark/letters/") + LetterFolders().first() + "/Letter.fodt");
  ASSERT_TRUE(letter.open(QIODevice::ReadWrite));
  ASSERT_TRUE(letter.setFileTime(QDateTime::currentDateTime().addSecs(-61), QFile::FileModificationTime));
  Documents({"end"});
  EXPECT_TRUE(QTest::qWaitFor([&] { return LetterFolders().isEmpty(); }, kPatience));
}

TEST_F(WriterTest, TwoLettersAreTwoDocuments)
{
  StartOffice();
  Letters::Open(LetterProgram::kWord, "Dear Ann:");
  Letters::Open(LetterProgram::kWord, "Dear Bob:");
  QStringList texts;
  EXPECT_TRUE(QTest::qWaitFor(
      [&] {
        texts.clear();
        for (const QJsonValue& document : Documents().array()) {
          texts.append(document.toObject()["text"].toString());
        }
        texts.sort();
        return texts.size() == 2;
      },
      kPatience));
  EXPECT_EQ(texts, (QStringList{"Dear Ann:", "Dear Bob:"}));
}

TEST_F(WriterTest, ALetterInRichTextReadsAsItWasWritten)
{
  // This reader widens every second blank in a row by itself.
  const QString written = QString(kText).replace("  ", " ");
  desktop_.Lay("Letter.rtf", LetterDocuments::RichText(written));
  QProcess converter;
  converter.setStandardErrorFile(QProcess::nullDevice());
  converter.start("soffice", {"--headless", "--convert-to", "txt:Text (encoded):UTF8,LF", "--outdir", desktop_.File(""),
                              desktop_.File("Letter.rtf")});
  ASSERT_TRUE(converter.waitForFinished(kPatience));
  QFile converted(desktop_.File("Letter.txt"));
  ASSERT_TRUE(converted.open(QIODevice::ReadOnly));
  QString text = QString::fromUtf8(converted.readAll());
  text.remove(QChar::ByteOrderMark);
  EXPECT_EQ(text.trimmed().toStdString(), written.toStdString());
}
