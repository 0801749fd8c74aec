// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/BoxOwner.h"

#include "platform/App.h"
#include "platform/HelpViewer.h"
#include "platform/MsgBox.h"
#include "support/HelpOnScreen.h"

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

// A window of the program with the help beside it.
class BoxOwnerTest : public testing::Test
{
protected:
  BoxOwnerTest()
  {
    App::SetPath(folder.path());
    HelpOnScreen::Lay(folder.path());
  }
  ~BoxOwnerTest() override
  {
    HelpViewer::Quit();
    App::SetPath({});
  }

  static void Activate(QWidget& window)
  {
    window.show();
    window.activateWindow();
    // Waiting for the window itself would end at once if one that it follows is active.
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }));
  }
  static void GoToTheHelp()
  {
    HelpViewer::ShowContents();
    Activate(*HelpOnScreen::Window());
  }

  QTemporaryDir folder;
};

}

TEST_F(BoxOwnerTest, IsTheActiveWindow)
{
  QWidget window;
  QWidget other;
  Activate(other);
  Activate(window);
  EXPECT_EQ(BoxOwner(), &window);
}

TEST_F(BoxOwnerTest, IsTheWindowOfTheProgramWhileTheHelpIsActive)
{
  QWidget hidden;
  QWidget window;
  Activate(window);
  GoToTheHelp();
  EXPECT_EQ(BoxOwner(), &window);
}

TEST_F(BoxOwnerTest, IsWhatWaitsAlreadyWhileTheHelpIsActive)
{
  QWidget window;
  Activate(window);
  QDialog waiting(&window);
  waiting.setModal(true);
  waiting.show();
  GoToTheHelp();
  EXPECT_EQ(BoxOwner(), &waiting);
}

TEST_F(BoxOwnerTest, IsNobodyWhereThereIsOnlyTheHelp)
{
  GoToTheHelp();
  EXPECT_EQ(BoxOwner(), nullptr);
}

// The help follows the box, so that it can be used meanwhile; the box must not follow the help.
TEST_F(BoxOwnerTest, ABoxThatComesWhileTheHelpIsActiveOutlivesTheHelp)
{
  QWidget window;
  Activate(window);
  GoToTheHelp();
  const QPointer<QWidget> help = HelpOnScreen::Window();
  bool stands = false;
  QTimer::singleShot(0, &window, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->parentWidget(), &window);
    help->close();
    stands = QTest::qWaitFor([&] { return help.isNull(); }) && box->isVisible();
    box->button(QMessageBox::Ok)->click();
  });
  EXPECT_EQ(MsgBox("Sure?"), MsgBoxAnswer::kOk);
  EXPECT_TRUE(stands);
}
