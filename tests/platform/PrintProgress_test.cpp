// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Command.h"
#include "platform/PrintDialog.h"
#include "platform/PrintProgress.h"
#include "platform/Printer.h"
#include "platform/RuntimeError.h"
#include "support/ErrorOf.h"
#include "support/PrintDialogScript.h"
#include "support/PrintedPages.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

class PrintProgressTest : public testing::Test
{
protected:
  static QProgressDialog* Dialog() { return qobject_cast<QProgressDialog*>(QApplication::activeModalWidget()); }

  // Steps until `done`, for no longer than a test may take.
  static void StepUntil(PrintProgress& progress, const std::function<bool()>& done)
  {
    QElapsedTimer time;
    time.start();
    while (!done()) {
      ASSERT_FALSE(time.hasExpired(30'000));
      progress.Step();
    }
  }

  static bool IsShown() { return Dialog() != nullptr; }

  // Steps until the dialog has come, has it answered by `answer`, and steps on. Tells the error.
  static int ErrorAfter(const std::function<void(QProgressDialog& dialog)>& answer)
  {
    return ErrorOf([&] {
      PrintProgress progress(1000);
      StepUntil(progress, IsShown);
      answer(*Dialog());
      StepUntil(progress, [] { return false; });
    });
  }
};

constexpr int kEndless = 1'000'000'000;

}

TEST_F(PrintProgressTest, ShowsNothingForWhatIsDoneAtOnce)
{
  {
    PrintProgress progress(10);
    for (int step = 0; step < 10; ++step) {
      progress.Step();
      EXPECT_FALSE(IsShown());
    }
  }
  QCoreApplication::processEvents();
  EXPECT_FALSE(IsShown());
}

TEST_F(PrintProgressTest, ShowsADialogAfterAMomentAndTakesItAwayAtTheEnd)
{
  {
    PrintProgress progress(kEndless);
    StepUntil(progress, IsShown);
    EXPECT_EQ(Dialog()->windowTitle(), "Quillmark");
    EXPECT_EQ(Dialog()->labelText(), "Printing...");
    EXPECT_EQ(Dialog()->windowModality(), Qt::ApplicationModal);
    const int value = Dialog()->value();
    StepUntil(progress, [&] { return Dialog()->value() > value; });
    EXPECT_TRUE(IsShown());
  }
  EXPECT_FALSE(IsShown());
}

TEST_F(PrintProgressTest, StaysAtItsEndIfThereAreMoreStepsThanSaid)
{
  PrintProgress progress(3);
  StepUntil(progress, IsShown);
  EXPECT_EQ(Dialog()->value(), 3);
  QElapsedTimer more;
  more.start();
  StepUntil(progress, [&] { return more.hasExpired(200); });
  EXPECT_TRUE(IsShown());
}

TEST_F(PrintProgressTest, FailsWithACancelHoweverTheUserCancels)
{
  EXPECT_EQ(ErrorAfter([](QProgressDialog& dialog) {
              auto* cancel = dialog.findChild<QPushButton*>();
              EXPECT_EQ(cancel->text(), "Cancel");
              QTest::mouseClick(cancel, Qt::LeftButton);
            }),
            32755);
  EXPECT_EQ(ErrorAfter([](QProgressDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }), 32755);
  EXPECT_EQ(ErrorAfter([](QProgressDialog& dialog) { dialog.close(); }), 32755);
  EXPECT_FALSE(IsShown());
}

TEST_F(PrintProgressTest, KeepsTheWindowAliveButTakesNothingBehindTheDialog)
{
  QWidget page;
  QPushButton button("behind", &page);
  page.resize(300, 200);
  button.resize(300, 200);
  int clicks = 0;
  int ticks = 0;
  QObject::connect(&button, &QPushButton::clicked, [&] { ++clicks; });
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
  page.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&page));
  page.activateWindow();
  QTest::mouseClick(page.windowHandle(), Qt::LeftButton, {}, {100, 100});
  ASSERT_EQ(clicks, 1) << "the click is good for something";
  timer.start(1);
  {
    PrintProgress progress(kEndless);
    StepUntil(progress, IsShown);
    const int before = ticks;
    QTest::mouseClick(page.windowHandle(), Qt::LeftButton, {}, {100, 100});
    QTest::keyClick(page.windowHandle(), Qt::Key_Space);
    StepUntil(progress, [&] { return ticks > before + 3; });
  }
  EXPECT_EQ(clicks, 1);
  QTest::mouseClick(page.windowHandle(), Qt::LeftButton, {}, {100, 100});
  EXPECT_EQ(clicks, 2);
}

TEST_F(PrintProgressTest, IsAPauseInTheRunningCommandWhereItLooksUp)
{
  bool sawPause = false;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] { sawPause = sawPause || IsShown(); });
  Command::Run([&] {
    const long serial = Command::Serial();
    timer.start(1);
    PrintProgress progress(kEndless);
    StepUntil(progress, [&] { return sawPause; });
    EXPECT_TRUE(Command::IsRunning());
    EXPECT_NE(Command::Serial(), serial);
  });
}

TEST_F(PrintProgressTest, EndsADocumentInTheMiddleWithWhatWasPrinted)
{
  const QTemporaryDir folder;
  const QString path = folder.filePath("list.pdf");
  PrintDialogScript dialogs;
  dialogs.ExpectPdf(path);
  ShowPrinter();
  int printed = 0;
  EXPECT_EQ(ErrorOf([&] {
              PrintProgress progress(kEndless);
              StepUntil(progress, [&] {
                Printer::SetCurrentY(1000);
                Printer::Print(QStringLiteral("page%1").arg(++printed));
                Printer::NewPage();
                if (IsShown()) {
                  QTest::keyClick(Dialog(), Qt::Key_Escape);
                }
                return false;
              });
            }),
            ErrorNumber::kCancelled);
  Printer::EndDoc();
  const PrintedPages pages(path);
  EXPECT_EQ(pages.Count(), printed);
  EXPECT_EQ(pages.Lines(printed), QStringList({QStringLiteral("page%1").arg(printed)}));
}
