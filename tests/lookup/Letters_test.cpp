// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/Letters.h"

#include "platform/RuntimeError.h"
#include "support/ErrorOf.h"
#include "support/OwnDesktop.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDirIterator>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

constexpr int kPatience = 30000;
const QString kText = QStringLiteral("March 05, 2026\n\n\nZo\u00EB O'Neil & \"Sons\"; $(x)\n\nDear Zo\u00EB:");

QByteArray Contents(const QString& path)
{
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return file.readAll();
}

class LettersTest : public testing::Test
{
protected:
  void LayEditor(const QByteArray& script = "exit 0") const
  {
    desktop_.LayEntry("editor.desktop", "editor %f");
    desktop_.Choose("text/plain", "editor.desktop");
    desktop_.LayProgram("editor", script);
  }

  // The letters that stand anywhere in the user's folders, but for the documents.
  [[nodiscard]] QStringList Letters() const
  {
    QStringList found;
    for (const char* folder : {"home", "config", "data", "cache", "runtime"}) {
      QDirIterator files(desktop_.File(folder), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
      while (files.hasNext()) {
        if (const QString path = files.next(); path.contains("/Letter.") && !path.contains("/Documents/")) {
          found.append(path);
        }
      }
    }
    return found;
  }

  [[nodiscard]] QStringList Documents() const { return QDir(desktop_.File("home/Documents")).entryList(QDir::Files); }

  // Gives the letter the age at which every program has read it.
  static void Age(const QString& letter)
  {
    QFile file(letter);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(-61), QFile::FileModificationTime));
  }

  static void Save(const QString& path, const QByteArray& content)
  {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
  }

  // Ends the program as its last window does.
  static void EndProgram()
  {
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
  }

  OwnDesktop desktop_;
};

struct Case
{
  const char* what;
  LetterProgram program;
  const char* suffix;
};

constexpr Case kEditors[] = {{"text/plain", LetterProgram::kNotepad, ".txt"},
                             {"application/rtf", LetterProgram::kWordPad, ".rtf"},
                             {"text/rtf", LetterProgram::kWordPad, ".rtf"}};

}

TEST_F(LettersTest, TheChosenEditorIsHandedThePrivateFileAndNothingElse)
{
  desktop_.LayEntry("editor.desktop", "editor %f");
  desktop_.LayProgram("editor");
  std::size_t starts = 0;
  for (const Case& editor : kEditors) {
    desktop_.Choose(editor.what, "editor.desktop");
    Letters::Open(editor.program, kText);
    const auto start = desktop_.AwaitStart(++starts);
    EXPECT_EQ(start.program, "editor");
    ASSERT_EQ(start.arguments.size(), 1);
    EXPECT_TRUE(start.arguments[0].startsWith(desktop_.File("data/Quillmark/letters/")));
    EXPECT_TRUE(start.arguments[0].endsWith(QLatin1String("/Letter") + editor.suffix));
    EXPECT_EQ(start.permissions, "600 700");
  }
  const auto recorded = desktop_.Starts();
  ASSERT_EQ(recorded.size(), std::size(kEditors));
  EXPECT_EQ(recorded[0].content, kText.toUtf8());
  for (const std::size_t rich : {1U, 2U}) {
    EXPECT_TRUE(recorded[rich].content.startsWith("{\\rtf1"));
    EXPECT_TRUE(
        recorded[rich].content.contains("\\par\nZo\\u235? O'Neil & \"Sons\"; $(x)\\par\n\\par\nDear Zo\\u235?:"));
  }
}

TEST_F(LettersTest, TheFoldersOfLettersArePrivateWhateverTheyWereBefore)
{
  const QString folder = desktop_.File("data/Quillmark/letters");
  ASSERT_TRUE(QDir().mkpath(folder));
  ASSERT_TRUE(QFile::setPermissions(folder, QFile::Permissions(0x7777)));
  LayEditor();
  Letters::Open(LetterProgram::kNotepad, kText);
  EXPECT_EQ(QFileInfo(folder).permissions() & 0x77, QFile::Permissions());
}

TEST_F(LettersTest, AProgramThatIsGoneOrFailsGivesWayToTheNext)
{
  desktop_.LayEntry("gone.desktop", "gone %f");
  desktop_.LayEntry("fails.desktop", "fails %f");
  desktop_.LayEntry("terminal.desktop", "terminal %f", "Terminal=true");
  desktop_.LayEntry("able.desktop", "able %f", "Categories=Utility;TextEditor;");
  desktop_.LayEntry("browser.desktop", "browser %f", "Categories=Network;WebBrowser;");
  desktop_.Choose("text/plain", "gone.desktop;fails.desktop;missing.desktop;terminal.desktop");
  desktop_.Lay("data/applications/mimeinfo.cache", "[MIME Cache]\ntext/plain=browser.desktop;able.desktop;\n");
  desktop_.LayScript("fails", "exit 1");
  for (const char* program : {"terminal", "browser", "able", "mousepad", "gedit"}) {
    desktop_.LayProgram(program);
  }
  const char* order[] = {"able", "gedit", "mousepad"};
  for (std::size_t i = 0; i < std::size(order); ++i) {
    Letters::Open(LetterProgram::kNotepad, kText);
    EXPECT_EQ(desktop_.AwaitStart(i + 1).program, order[i]);
    EXPECT_TRUE(QFile::remove(desktop_.File(QLatin1String("bin/") + order[i])));
  }
  EXPECT_EQ(ErrorOf([] { Letters::Open(LetterProgram::kNotepad, kText); }), ErrorNumber::kFileNotFound);
  EXPECT_EQ(desktop_.Starts().size(), std::size(order));
}

TEST_F(LettersTest, WithoutAnyProgramTheLetterFailsAndLeavesNothing)
{
  desktop_.LayScript("gedit", "exit 1");
  desktop_.LayScript("abiword", "kill -9 $$");
  desktop_.Lay("bin/lowriter", "no program");
  for (const auto program : {LetterProgram::kNotepad, LetterProgram::kWord, LetterProgram::kWordPad}) {
    EXPECT_EQ(ErrorOf([&] { Letters::Open(program, kText); }), ErrorNumber::kFileNotFound);
  }
  EXPECT_EQ(Letters(), QStringList());
  EXPECT_EQ(QDir(desktop_.File("data/Quillmark/letters")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            QStringList());
}

TEST_F(LettersTest, ALetterThatCannotBeWrittenFails)
{
  LayEditor();
  desktop_.Lay("data/Quillmark", "a file where the folder is to be");
  EXPECT_EQ(ErrorOf([] { Letters::Open(LetterProgram::kNotepad, kText); }), ErrorNumber::kFileAccess);
  EXPECT_EQ(desktop_.Starts().size(), 0U);
}

TEST_F(LettersTest, AWordLetterIsHandedToLibreOfficeAsANewDocument)
{
  desktop_.LayEntry("other.desktop", "other %f");
  desktop_.LayEntry("newest.desktop", "libreoffice9 --writer %U", "Categories=Office;WordProcessor;");
  desktop_.Choose("application/vnd.oasis.opendocument.text", "other.desktop");
  desktop_.Lay("data/applications/mimeinfo.cache",
               "[MIME Cache]\napplication/vnd.oasis.opendocument.text=newest.desktop;\n");
  for (const char* program : {"other", "libreoffice9", "lowriter", "libreoffice", "soffice"}) {
    desktop_.LayProgram(program);
  }
  const struct
  {
    const char* program;
    QStringList options;
  } order[] = {{"libreoffice9", {"--writer", "-n"}},
               {"lowriter", {"-n"}},
               {"libreoffice", {"--writer", "-n"}},
               {"soffice", {"--writer", "-n"}}};
  std::size_t starts = 0;
  for (const auto& [program, options] : order) {
    Letters::Open(LetterProgram::kWord, kText);
    const auto start = desktop_.AwaitStart(++starts);
    EXPECT_EQ(start.program, program);
    EXPECT_EQ(start.arguments.mid(0, start.arguments.size() - 1), options);
    EXPECT_TRUE(start.LastArgument().endsWith("/Letter.fodt"));
    EXPECT_TRUE(QFile::remove(desktop_.File(QLatin1String("bin/") + program)));
  }
  EXPECT_EQ(ErrorOf([] { Letters::Open(LetterProgram::kWord, kText); }), ErrorNumber::kFileNotFound);
}

TEST_F(LettersTest, LibreOfficeGetsANewDocumentForTheOtherCommandsToo)
{
  desktop_.LayEntry("writer.desktop", "soffice --writer %f");
  desktop_.LayProgram("soffice");
  std::size_t starts = 0;
  for (const Case& editor : kEditors) {
    desktop_.Choose(editor.what, "writer.desktop");
    Letters::Open(editor.program, kText);
    const auto start = desktop_.AwaitStart(++starts);
    EXPECT_EQ(start.arguments.mid(0, 2), (QStringList{"--writer", "-n"}));
    EXPECT_TRUE(start.LastArgument().endsWith("/Letter.fodt"));
    EXPECT_TRUE(start.content.contains("<text:p>Dear Zo\xC3\xAB:</text:p>"));
  }
}

TEST_F(LettersTest, TheWellKnownRichTextEditorIsAskedBeforeAWordProcessor)
{
  desktop_.LayProgram("abiword");
  desktop_.LayProgram("lowriter");
  Letters::Open(LetterProgram::kWordPad, kText);
  EXPECT_EQ(desktop_.AwaitStart(1).program, "abiword");
}

TEST_F(LettersTest, AnEditorThatHandsOnAndReadsLateStillFindsTheLetter)
{
  LayEditor("(" + desktop_.UntilReleased() +
            "; /bin/cat \"$file\" >../../late.new; /bin/mv ../../late.new ../../late) &");
  Letters::Open(LetterProgram::kNotepad, kText);
  Letters::TidyUp();
  EndProgram();
  desktop_.Release();
  ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(desktop_.File("late")); }, kPatience));
  EXPECT_EQ(Contents(desktop_.File("late")), kText.toUtf8());
}

TEST_F(LettersTest, AnEditorThatNeverReadsKeepsNobodyWaiting)
{
  LayEditor(desktop_.UntilReleased());
  Letters::Open(LetterProgram::kNotepad, kText);
  EXPECT_EQ(desktop_.AwaitStart(1).program, "editor");
  EXPECT_EQ(Letters().size(), 1);
}

TEST_F(LettersTest, ALetterGoesWhenItsEditorEnds)
{
  LayEditor(desktop_.UntilReleased());
  Letters::Open(LetterProgram::kNotepad, kText);
  const QString letter = desktop_.AwaitStart(1).LastArgument();
  Age(letter);
  EXPECT_TRUE(QFile::exists(letter));
  desktop_.Release();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !QFileInfo(letter).dir().exists(); }, kPatience));
  EXPECT_EQ(Documents(), QStringList());
}

TEST_F(LettersTest, ALetterThatWasSavedGoesToTheDocumentsWhenItsEditorEnds)
{
  LayEditor(desktop_.UntilReleased());
  desktop_.Lay("home/Documents/Letter.txt", "another letter");
  Letters::Open(LetterProgram::kNotepad, kText);
  const QString letter = desktop_.AwaitStart(1).LastArgument();
  Save(letter, "Dear Ann: how are you?");
  desktop_.Release();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !QFileInfo(letter).dir().exists(); }, kPatience));
  EXPECT_EQ(Documents(), (QStringList{"Letter 2.txt", "Letter.txt"}));
  EXPECT_EQ(Contents(desktop_.File("home/Documents/Letter.txt")), "another letter");
  EXPECT_EQ(Contents(desktop_.File("home/Documents/Letter 2.txt")), "Dear Ann: how are you?");
  EXPECT_EQ(QFileInfo(desktop_.File("home/Documents/Letter 2.txt")).permissions() & 0x77, QFile::Permissions());
}

TEST_F(LettersTest, WhatWasSavedBesideTheLetterGoesToTheDocumentsAndWhatTheEditorHidesStays)
{
  LayEditor();
  Letters::Open(LetterProgram::kNotepad, kText);
  const QString letter = desktop_.AwaitStart(1).LastArgument();
  const QString folder = QFileInfo(letter).path();
  Save(folder + "/To Ann", "saved under another name");
  Save(folder + "/Letter.txt~", "what stood there before the saving");
  Save(folder + "/.Letter.txt.swp", "what the editor recovers from");
  Age(letter);
  Letters::TidyUp();
  EXPECT_EQ(Documents(), QStringList{"To Ann"});
  EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList{".Letter.txt.swp"});
  EXPECT_TRUE(QFile::remove(folder + "/.Letter.txt.swp"));
  Letters::TidyUp();
  EXPECT_FALSE(QDir(folder).exists());
}

TEST_F(LettersTest, LettersGoAtTheEndOfTheProgram)
{
  LayEditor();
  Letters::Open(LetterProgram::kNotepad, kText);
  const QString letter = desktop_.AwaitStart(1).LastArgument();
  Age(letter);
  EXPECT_TRUE(QFile::exists(letter));
  EndProgram();
  EXPECT_EQ(Letters(), QStringList());
  EXPECT_FALSE(QFileInfo(letter).dir().exists());
}

TEST_F(LettersTest, ALetterThatMayNotHaveBeenReadYetOutlivesTheProgramUntilTheNextStart)
{
  LayEditor();
  Letters::Open(LetterProgram::kNotepad, kText);
  const QString letter = desktop_.AwaitStart(1).LastArgument();
  EndProgram();
  EXPECT_EQ(Letters(), QStringList{letter});
  Age(letter);
  Letters::TidyUp();
  EXPECT_EQ(Letters(), QStringList());
}

TEST_F(LettersTest, TheNextLetterLeavesTheOneBeforeAlone)
{
  LayEditor();
  Letters::Open(LetterProgram::kNotepad, kText);
  const QString first = desktop_.AwaitStart(1).LastArgument();
  Age(first);
  Letters::Open(LetterProgram::kNotepad, kText);
  EXPECT_EQ(desktop_.AwaitStart(2).program, "editor");
  EXPECT_EQ(Letters().size(), 2);
  EXPECT_TRUE(QFile::exists(first));
}

TEST_F(LettersTest, TwoLettersAtOnceAreTwoFiles)
{
  LayEditor(desktop_.UntilReleased());
  Letters::Open(LetterProgram::kNotepad, "Dear Ann:");
  Letters::Open(LetterProgram::kNotepad, "Dear Bob:");
  EXPECT_EQ(desktop_.AwaitStart(2).program, "editor");
  const auto starts = desktop_.Starts();
  ASSERT_EQ(starts.size(), 2U);
  EXPECT_NE(starts[0].arguments, starts[1].arguments);
  EXPECT_EQ((QList<QByteArray>{starts[0].content, starts[1].content}), (QList<QByteArray>{"Dear Ann:", "Dear Bob:"}));
  EXPECT_EQ(Letters().size(), 2);
}

TEST_F(LettersTest, AnEnormousTextTravelsInTheFile)
{
  LayEditor();
  const QString text = QString(10 * 1024 * 1024, 'x');
  Letters::Open(LetterProgram::kNotepad, text);
  const auto start = desktop_.AwaitStart(1);
  EXPECT_EQ(start.arguments.size(), 1);
  EXPECT_EQ(start.content, text.toUtf8());
}
