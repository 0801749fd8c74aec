// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "PrintServer.h"

#include "platform/Command.h"
#include "platform/PrintDialog.h"
#include "platform/Printer.h"
#include "platform/RuntimeError.h"
#include "support/ErrorOf.h"
#include "support/MessageBoxScript.h"
#include "support/PrintDialogScript.h"
#include "support/PrintedPages.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {

// What the printer of the server cannot print on, in twips.
constexpr double kRim = 24 * 20;
constexpr double kBottomRim = 54 * 20;

class PrintDialogTest : public testing::Test
{
protected:
  ~PrintDialogTest() override { Printer::EndDoc(); }

  // The user prints to a file on such a paper, or on that printer.
  static void ChoosePdf(const QString& file, QPageSize::PageSizeId paper = QPageSize::A4,
                        const PrintDialogScript::Act& act = {}, PrinterDefault choice = PrinterDefault::kKeep)
  {
    PrintDialogScript dialogs;
    dialogs.ExpectPdf(file, paper, act);
    ShowPrinter(choice);
  }
  static void ChoosePrinter(const QString& name, const PrintDialogScript::Act& act = {},
                            PrinterDefault choice = PrinterDefault::kForget)
  {
    PrintDialogScript dialogs;
    dialogs.ExpectPrinter(name, act);
    ShowPrinter(choice);
  }

  // What the dialog looks like as it opens; it is cancelled then.
  static void Look(const PrintDialogScript::Act& act)
  {
    bool seen = false;
    QTimer::singleShot(0, qApp, [&] {
      auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      act(*dialog);
      seen = true;
      dialog->reject();
    });
    EXPECT_EQ(ErrorOf([] { ShowPrinter(); }), ErrorNumber::kCancelled);
    EXPECT_TRUE(seen);
  }

  static QString FileOffered()
  {
    QString name;
    Look([&](QPrintDialog& dialog) { name = dialog.findChild<QLineEdit*>("filename")->text(); });
    return name;
  }

  // The size in twips of the paper that the next document has, and its margins.
  static QSizeF AreaOffered()
  {
    QSizeF area;
    Look([&](QPrintDialog& dialog) { area = dialog.printer()->pageLayout().paintRectPoints().size() * 20; });
    return area;
  }

  static void PrintOne(const QString& text = "one")
  {
    Printer::SetCurrentX(1100);
    Printer::SetCurrentY(1000);
    Printer::Print(text);
    Printer::EndDoc();
  }

  QTemporaryDir folder;
  QString path = folder.filePath("list.pdf");
};

}

// Before any other test that prints to a file.
TEST_F(PrintDialogTest, OffersAFileInTheUsersDocumentsTheFirstTime)
{
  const QByteArray home = qgetenv("HOME");
  const QByteArray config = qgetenv("XDG_CONFIG_HOME");
  const QString own = QDir(folder.path()).canonicalPath();
  qputenv("HOME", own.toUtf8());
  qunsetenv("XDG_CONFIG_HOME");
  EXPECT_EQ(FileOffered().toStdString(), (own + "/Quillmark.pdf").toStdString());
  ASSERT_TRUE(QDir(own).mkpath("Documents"));
  EXPECT_EQ(FileOffered().toStdString(), (own + "/Documents/Quillmark.pdf").toStdString());
  qputenv("HOME", home);
  if (!config.isEmpty()) {
    qputenv("XDG_CONFIG_HOME", config);
  }
}

TEST_F(PrintDialogTest, OffersAFileWhereThereIsNoPrinterAtAll)
{
  Look([](QPrintDialog& dialog) {
    EXPECT_EQ(PrintDialogScript::Offered(dialog), QStringList({"Print to File (PDF)"}));
    EXPECT_EQ(dialog.printer()->outputFormat(), QPrinter::PdfFormat);
    EXPECT_TRUE(dialog.findChild<QLineEdit*>("filename")->isEnabled());
    EXPECT_TRUE(dialog.isModal());
  });
}

TEST_F(PrintDialogTest, CancellingIsAFailureAndPrintsNothing)
{
  {
    PrintDialogScript dialogs;
    dialogs.ExpectCancel();
    EXPECT_EQ(ErrorOf([] { ShowPrinter(); }), 32755);
  }
  QTimer::singleShot(0, qApp, [] { QApplication::activeModalWidget()->close(); });
  EXPECT_EQ(ErrorOf([] { ShowPrinter(); }), 32755);
  QTimer::singleShot(0, qApp, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
  EXPECT_EQ(ErrorOf([] { ShowPrinter(); }), 32755);
  EXPECT_EQ(ErrorOf([] { Printer::Print("nowhere"); }), 482);
}

TEST_F(PrintDialogTest, CancellingForgetsNoEarlierChoice)
{
  PrintDialogScript dialogs;
  dialogs.ExpectPdf(path);
  dialogs.ExpectCancel();
  ShowPrinter();
  EXPECT_EQ(ErrorOf([] { ShowPrinter(); }), 32755);
  PrintOne();
  EXPECT_EQ(PrintedPages(path).Lines(1), QStringList({"one"}));
}

TEST_F(PrintDialogTest, EndsTheDocumentThatIsOpen)
{
  const QString other = folder.filePath("other.pdf");
  ChoosePdf(path);
  Printer::Print("first");
  ChoosePdf(other);
  Printer::Print("second");
  Printer::EndDoc();
  EXPECT_EQ(PrintedPages(path).Lines(1), QStringList({"first"}));
  EXPECT_EQ(PrintedPages(other).Lines(1), QStringList({"second"}));
}

TEST_F(PrintDialogTest, KeepsFolderAndPaperButNothingElseForTheNextDialog)
{
  ChoosePdf(path, QPageSize::A5, [](QPrintDialog& dialog) {
    PrintDialogScript::ChooseLandscape(dialog);
    PrintDialogScript::ChoosePages(dialog, 3, 4);
    PrintDialogScript::ChooseCopies(dialog, 5);
  });
  EXPECT_EQ(Printer::Orientation(), Printer::PageOrientation::kLandscape);
  Printer::EndDoc();
  EXPECT_EQ(FileOffered(), folder.filePath("Quillmark.pdf"));
  Look([](QPrintDialog& dialog) {
    EXPECT_EQ(dialog.printer()->pageLayout().pageSize().id(), QPageSize::A5);
    EXPECT_EQ(dialog.printer()->pageLayout().orientation(), QPageLayout::Portrait);
    EXPECT_EQ(dialog.printer()->printRange(), QPrinter::AllPages);
    EXPECT_EQ(dialog.printer()->copyCount(), 1);
  });
}

TEST_F(PrintDialogTest, ForgetsAChoiceThatIsForOneDocumentOnly)
{
  ASSERT_TRUE(QDir(folder.path()).mkdir("other"));
  ChoosePdf(path, QPageSize::A4);
  ChoosePdf(folder.filePath("other/list.pdf"), QPageSize::A6, {}, PrinterDefault::kForget);
  EXPECT_EQ(Printer::ScaleWidth(), 5940 - 720) << "it holds for the next document";
  Printer::EndDoc();
  EXPECT_EQ(FileOffered(), folder.filePath("Quillmark.pdf"));
  EXPECT_EQ(AreaOffered(), QSizeF(11'900 - 720, 16'840 - 720));
}

TEST_F(PrintDialogTest, AsksBeforeItWritesOverAFile)
{
  for (const char* text : {"first", "second"}) {
    MessageBoxScript boxes;
    if (QFile::exists(path)) {
      boxes.Expect(path + " already exists.\nDo you want to overwrite it?", QMessageBox::Yes | QMessageBox::No,
                   QMessageBox::Yes, "Print");
    }
    ChoosePdf(path);
    PrintOne(text);
    EXPECT_EQ(PrintedPages(path).Lines(1), QStringList({text}));
  }
}

TEST_F(PrintDialogTest, RefusesAFileThatCannotBeWritten)
{
  const QString unwritable = folder.filePath("no/such/folder/list.pdf");
  MessageBoxScript boxes;
  boxes.Expect("File " + unwritable + " is not writable.\nPlease choose a different file name.", QMessageBox::Ok,
               QMessageBox::Ok, "Print");
  Look([&](QPrintDialog& dialog) {
    dialog.findChild<QLineEdit*>("filename")->setText(unwritable);
    QMetaObject::invokeMethod(&dialog, "_q_checkFields");
    EXPECT_TRUE(dialog.isVisible());
  });
  EXPECT_EQ(boxes.Count(), 1U);
}

TEST_F(PrintDialogTest, IsAPauseInTheRunningCommand)
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
  Command::Run([&] {
    Command::Enlist(writer);
    ChoosePdf(path, QPageSize::A4, [&](QPrintDialog& /*dialog*/) { EXPECT_EQ(writer.settled, 1); });
    EXPECT_TRUE(Command::IsRunning());
  });
  EXPECT_EQ(writer.settled, 1);
  EXPECT_EQ(writer.abandoned, 0);
}

TEST_F(PrintDialogTest, OffersThePrintersOfTheSystem)
{
  const PrintServer server;
  Look([](QPrintDialog& dialog) {
    EXPECT_EQ(PrintDialogScript::Offered(dialog), QStringList({"Full", "Paper", "Print to File (PDF)"}));
    EXPECT_EQ(dialog.printer()->printerName(), "Paper") << "the system's default printer";
    EXPECT_EQ(dialog.printer()->pageLayout().pageSize().id(), QPageSize::Letter) << "its usual paper";
  });
}

TEST_F(PrintDialogTest, PrintsOnAPrinterOfTheSystemWithinItsMargins)
{
  const PrintServer server;
  ChoosePrinter("Paper", [](QPrintDialog& dialog) { PrintDialogScript::ChooseCopies(dialog, 3); });
  EXPECT_NEAR(Printer::ScaleWidth(), 12'240 - 2 * kRim, 1);
  EXPECT_NEAR(Printer::ScaleHeight(), 15'840 - kRim - kBottomRim, 1);
  PrintOne();
  ASSERT_EQ(server.Documents(), 1);
  EXPECT_EQ(server.CopiesOf(1), 3);
  EXPECT_NEAR(PrintedPages(server.Document(1), kRim).Word("one").x, 1100, 2);
  EXPECT_NEAR(PrintedPages(server.Document(1), kRim).Word("one").y, 1000, 2);

  ChoosePrinter("Paper", [](QPrintDialog& dialog) {
    PrintDialogScript::ChoosePaper(dialog, QPageSize::A4);
    PrintDialogScript::ChooseLandscape(dialog);
  });
  EXPECT_NEAR(Printer::ScaleWidth(), 16'840 - 2 * kBottomRim, 1) << "the bottom of the paper may be at either side";
  PrintOne("two");
  ASSERT_EQ(server.Documents(), 2);
  EXPECT_EQ(server.CopiesOf(2), 1);
  EXPECT_EQ(PrintedPages(server.Document(2)).Size(1), QSizeF(16'840, 11'900));
}

TEST_F(PrintDialogTest, TurnsTheBlankRimOfThePaperWithThePage)
{
  const PrintServer server;
  ChoosePrinter("Paper");
  Printer::SetOrientation(Printer::PageOrientation::kLandscape);
  EXPECT_NEAR(Printer::ScaleWidth(), 15'840 - 2 * kBottomRim, 1);
  EXPECT_NEAR(Printer::ScaleHeight(), 12'240 - kRim - kBottomRim, 1);
  PrintOne();
  const PrintedWord word = PrintedPages(server.Document(1), 0).Word("one");
  EXPECT_NEAR(word.x, kBottomRim + 1100, 2);
  EXPECT_NEAR(word.y, kRim + 1000, 2);
}

TEST_F(PrintDialogTest, PrintsOnTheDefaultPrinterWithoutADialog)
{
  const PrintServer server;
  PrintOne();
  ASSERT_EQ(server.Documents(), 1);
  EXPECT_EQ(PrintedPages(server.Document(1)).Size(1), QSizeF(12'240, 15'840));
}

TEST_F(PrintDialogTest, PrintsTheChosenPagesOnAPrinterOfTheSystem)
{
  const PrintServer server;
  ChoosePrinter("Paper", [](QPrintDialog& dialog) { PrintDialogScript::ChoosePages(dialog, 2, 2); });
  for (const char* text : {"one", "two", "three"}) {
    Printer::Print(text);
    Printer::NewPage();
  }
  Printer::EndDoc();
  const PrintedPages pages(server.Document(1), kRim);
  ASSERT_EQ(pages.Count(), 1);
  EXPECT_EQ(pages.Lines(1), QStringList({"two"}));
}

TEST_F(PrintDialogTest, FailsOnAPrinterThatRefusesAndPrintsTheNextDocument)
{
  const PrintServer server;
  ChoosePrinter("Full");
  Printer::Print("refused");
  EXPECT_EQ(ErrorOf([] { Printer::EndDoc(); }), 482);
  EXPECT_EQ(ErrorOf([] { Printer::EndDoc(); }), 0);
  EXPECT_EQ(server.Documents(), 0);
  ChoosePrinter("Paper");
  PrintOne();
  EXPECT_EQ(server.Documents(), 1);
}

TEST_F(PrintDialogTest, FailsOnAPrinterThatHasGone)
{
  PrintServer server;
  ChoosePrinter("Paper");
  Printer::Print("lost");
  server.Stop();
  EXPECT_EQ(ErrorOf([] { Printer::EndDoc(); }), 482);
}

TEST_F(PrintDialogTest, BeginsWithThePrinterThatWasChosenLast)
{
  const PrintServer server;
  const auto offered = [] {
    QString name;
    Look([&](QPrintDialog& dialog) { name = dialog.printer()->printerName(); });
    return name;
  };
  ChoosePrinter("Full", {}, PrinterDefault::kForget);
  EXPECT_EQ(offered(), "Paper");
  ChoosePrinter("Full", {}, PrinterDefault::kKeep);
  EXPECT_EQ(offered(), "Full");
  ChoosePrinter("Paper", {}, PrinterDefault::kKeep);
  EXPECT_EQ(offered(), "Paper");
}
