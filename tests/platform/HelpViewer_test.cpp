// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/HelpViewer.h"

#include "platform/App.h"
#include "support/AddressCatcher.h"
#include "support/HelpOnScreen.h"
#include "support/MessageBoxScript.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTextDocumentFragment>
#include <QTreeView>
#include <QWindow>

#include <gtest/gtest.h>

namespace {

const QString kUnreadable = QStringLiteral("Sorry, the help cannot be shown, because its file is missing or damaged.");

class HelpViewerTest : public testing::Test
{
protected:
  HelpViewerTest() { App::SetPath(folder.path()); }
  ~HelpViewerTest() override
  {
    HelpViewer::Quit();
    App::SetPath({});
  }

  void Open()
  {
    HelpOnScreen::Lay(folder.path());
    HelpViewer::ShowContents();
    ASSERT_NE(HelpOnScreen::Window(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(HelpOnScreen::Window()));
    ASSERT_TRUE(QTest::qWaitFor([] { return Topics().model()->rowCount() > 0; }));
  }

  template <typename Control>
  static Control& Find(const char* name)
  {
    auto* control = HelpOnScreen::Window()->findChild<Control*>(QLatin1String(name));
    if (control == nullptr) {
      throw std::runtime_error(std::string("no control ") + name);
    }
    return *control;
  }
  static QTreeView& Topics() { return Find<QTreeView>("tvwTopics"); }
  static QTextBrowser& Page() { return Find<QTextBrowser>("txtPage"); }
  static QLineEdit& Search() { return Find<QLineEdit>("txtSearch"); }
  static QListWidget& Found() { return Find<QListWidget>("lstFound"); }
  static QPushButton& Button(const char* name) { return Find<QPushButton>(name); }

  static void Press(int key, Qt::KeyboardModifiers held = {})
  {
    QTest::keyClick(HelpOnScreen::Window()->windowHandle(), static_cast<Qt::Key>(key), held);
  }

  // A click that comes from the screen, which a window that is kept from its user does not get.
  static void Click(QWidget& control)
  {
    const QPoint place = control.mapTo(control.window(), control.rect().center());
    QTest::mouseClick(control.window()->windowHandle(), Qt::LeftButton, {}, place);
  }

  static void ClickTopic(const QString& title)
  {
    const QModelIndexList found =
        Topics().model()->match(Topics().model()->index(0, 0), Qt::DisplayRole, title, 1, Qt::MatchRecursive);
    ASSERT_EQ(found.size(), 1) << title.toStdString();
    Topics().scrollTo(found[0]);
    QTest::mouseClick(Topics().viewport(), Qt::LeftButton, {}, Topics().visualRect(found[0]).center());
  }

  static std::string SelectedTopic() { return Topics().currentIndex().data().toString().toStdString(); }
  static std::string FoundTitle(int row) { return Found().item(row)->text().section('\n', 0, 0).toStdString(); }

  QTemporaryDir folder;
  MessageBoxScript boxes;
};

}

TEST_F(HelpViewerTest, TheContentsAreShownBesideTheFirstPage)
{
  Open();
  QWidget& window = *HelpOnScreen::Window();
  EXPECT_EQ(window.windowTitle().toStdString(), "Quillmark Help");
  EXPECT_EQ(HelpOnScreen::Page(), "index.html");
  EXPECT_TRUE(Topics().isVisible());
  EXPECT_FALSE(Found().isVisible());
  EXPECT_EQ(SelectedTopic(), "Welcome to Quillmark");
  EXPECT_TRUE(Topics().isExpanded(Topics().model()->index(1, 0))) << "topics below others are shown as well";
  EXPECT_TRUE(Page().toPlainText().contains("Where would you like to begin?"));
  EXPECT_TRUE(window.screen()->availableGeometry().contains(window.geometry()));
}

TEST_F(HelpViewerTest, EachControlHasAName)
{
  Open();
  for (const char* name : {"txtPage", "tvwTopics", "lstFound", "txtSearch", "cmdBack", "cmdForward", "cmdHome"}) {
    EXPECT_FALSE(Find<QWidget>(name).accessibleName().isEmpty()) << name;
  }
}

TEST_F(HelpViewerTest, AContextNumberLeadsToItsPage)
{
  HelpOnScreen::Lay(folder.path());
  HelpViewer::ShowContext(2);
  EXPECT_EQ(HelpOnScreen::Page(), "quick-fill.html");
  EXPECT_TRUE(Page().toPlainText().contains("Type an address once, for the whole household."));
  ASSERT_TRUE(QTest::qWaitFor([] { return SelectedTopic() == "Quick-fill"; }));
}

TEST_F(HelpViewerTest, ANumberThatNoPageHasLeadsToTheFirst)
{
  Open();
  HelpViewer::ShowContext(2);
  HelpViewer::ShowContext(4711);
  EXPECT_EQ(HelpOnScreen::Page(), "index.html");
}

TEST_F(HelpViewerTest, ThereIsOneWindowAndASecondCallGoesToItsPage)
{
  Open();
  const QWidget* first = HelpOnScreen::Window();
  HelpViewer::ShowContext(2);
  EXPECT_EQ(HelpOnScreen::WindowCount(), 1);
  EXPECT_EQ(HelpOnScreen::Window(), first);
  EXPECT_EQ(HelpOnScreen::Page(), "quick-fill.html");
  HelpViewer::ShowContents();
  EXPECT_EQ(HelpOnScreen::Window(), first);
  EXPECT_EQ(HelpOnScreen::Page(), "index.html");
}

TEST_F(HelpViewerTest, AMinimisedWindowComesBack)
{
  Open();
  HelpOnScreen::Window()->showMinimized();
  HelpViewer::ShowContents();
  EXPECT_FALSE(HelpOnScreen::Window()->isMinimized());
  EXPECT_EQ(HelpOnScreen::WindowCount(), 1);
}

TEST_F(HelpViewerTest, AClickOnATopicShowsItsPage)
{
  Open();
  ClickTopic("Quick-fill");
  EXPECT_EQ(HelpOnScreen::Page(), "quick-fill.html");
  ClickTopic("Charts");
  EXPECT_EQ(HelpOnScreen::Page(), "charts.html");
  EXPECT_EQ(SelectedTopic(), "Charts");
}

TEST_F(HelpViewerTest, ATopicIsOpenedByTheKeyboard)
{
  Open();
  Topics().setFocus();
  QTest::keyClick(&Topics(), Qt::Key_Down);
  EXPECT_EQ(HelpOnScreen::Page(), "index.html");
  QTest::keyClick(&Topics(), Qt::Key_Return);
  EXPECT_EQ(HelpOnScreen::Page(), "first-steps.html");
}

TEST_F(HelpViewerTest, ALinkLeadsToItsPageAndTheTopicFollows)
{
  Open();
  Q_EMIT Page().anchorClicked(Page().source().resolved(QUrl("backup.html")));
  EXPECT_EQ(HelpOnScreen::Page(), "backup.html");
  EXPECT_EQ(SelectedTopic(), "Backing up");
}

TEST_F(HelpViewerTest, BackAndForwardFollowTheWay)
{
  Open();
  EXPECT_FALSE(Button("cmdBack").isEnabled());
  EXPECT_FALSE(Button("cmdForward").isEnabled());
  ClickTopic("Charts");
  ClickTopic("Printing");
  Click(Button("cmdBack"));
  EXPECT_EQ(HelpOnScreen::Page(), "charts.html");
  EXPECT_EQ(SelectedTopic(), "Charts");
  EXPECT_TRUE(Button("cmdForward").isEnabled());
  Click(Button("cmdBack"));
  EXPECT_EQ(HelpOnScreen::Page(), "index.html");
  EXPECT_FALSE(Button("cmdBack").isEnabled());
  Click(Button("cmdForward"));
  Click(Button("cmdForward"));
  EXPECT_EQ(HelpOnScreen::Page(), "printing.html");
  EXPECT_FALSE(Button("cmdForward").isEnabled());
  Click(Button("cmdHome"));
  EXPECT_EQ(HelpOnScreen::Page(), "index.html");
  EXPECT_TRUE(Button("cmdBack").isEnabled());
}

TEST_F(HelpViewerTest, AltAndTheArrowsFollowTheWay)
{
  Open();
  ClickTopic("Charts");
  ClickTopic("Printing");
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(HelpOnScreen::Page(), "charts.html");
  Press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(HelpOnScreen::Page(), "printing.html");
  Press(Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(HelpOnScreen::Page(), "index.html");
}

TEST_F(HelpViewerTest, TheSearchFindsAWordAndMarksIt)
{
  Open();
  Press(Qt::Key_F, Qt::ControlModifier);
  EXPECT_TRUE(Search().hasFocus());
  QTest::keyClicks(&Search(), "household");
  EXPECT_TRUE(Found().isVisible());
  EXPECT_FALSE(Topics().isVisible());
  int quickFill = -1;
  for (int row = 0; row < Found().count(); ++row) {
    quickFill = FoundTitle(row) == "Quick-fill" ? row : quickFill;
  }
  ASSERT_GE(quickFill, 0);
  QListWidgetItem& item = *Found().item(quickFill);
  EXPECT_TRUE(item.text().contains("household"));
  Found().scrollToItem(&item);
  QTest::mouseClick(Found().viewport(), Qt::LeftButton, {}, Found().visualItemRect(&item).center());
  EXPECT_EQ(HelpOnScreen::Page(), "quick-fill.html");
  const QList<QTextEdit::ExtraSelection> marks = Page().extraSelections();
  ASSERT_FALSE(marks.isEmpty());
  for (const QTextEdit::ExtraSelection& mark : marks) {
    EXPECT_EQ(mark.cursor.selectedText().toStdString(), "household");
  }
}

TEST_F(HelpViewerTest, EnterOpensTheFirstPageFoundAndDownGoesToTheList)
{
  Open();
  Search().setFocus();
  QTest::keyClicks(&Search(), "quick-fill");
  EXPECT_EQ(FoundTitle(0), "Quick-fill");
  QTest::keyClick(&Search(), Qt::Key_Return);
  EXPECT_EQ(HelpOnScreen::Page(), "quick-fill.html");
  QTest::keyClick(&Search(), Qt::Key_Down);
  EXPECT_TRUE(Found().hasFocus());
  EXPECT_EQ(Found().currentRow(), 0);
  QTest::keyClick(&Found(), Qt::Key_Down);
  QTest::keyClick(&Found(), Qt::Key_Return);
  EXPECT_NE(HelpOnScreen::Page(), "quick-fill.html");
}

TEST_F(HelpViewerTest, AnEmptySearchBringsTheTopicsBackAndUnmarks)
{
  Open();
  QTest::keyClicks(&Search(), "backup");
  QTest::keyClick(&Search(), Qt::Key_Return);
  EXPECT_FALSE(Page().extraSelections().isEmpty());
  Search().clear();
  EXPECT_TRUE(Topics().isVisible());
  EXPECT_TRUE(Page().extraSelections().isEmpty());
  QTest::keyClicks(&Search(), "   ");
  EXPECT_TRUE(Topics().isVisible());
}

TEST_F(HelpViewerTest, WhatIsMarkedFollowsThePage)
{
  Open();
  QTest::keyClicks(&Search(), "backup");
  QTest::keyClick(&Search(), Qt::Key_Return);
  EXPECT_EQ(HelpOnScreen::Page(), "backup.html");
  Q_EMIT Page().anchorClicked(Page().source().resolved(QUrl("charts.html")));
  EXPECT_TRUE(Page().extraSelections().isEmpty()) << "charts say nothing of a backup";
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_FALSE(Page().extraSelections().isEmpty());
}

TEST_F(HelpViewerTest, ASearchForNothingThatIsThereSaysSo)
{
  Open();
  QTest::keyClicks(&Search(), "xylophone");
  ASSERT_EQ(Found().count(), 1);
  EXPECT_EQ(Found().item(0)->text().toStdString(), "No page has these words");
  QTest::keyClick(&Search(), Qt::Key_Return);
  QTest::mouseClick(Found().viewport(), Qt::LeftButton, {}, Found().visualItemRect(Found().item(0)).center());
  EXPECT_EQ(HelpOnScreen::Page(), "index.html");
}

TEST_F(HelpViewerTest, EscapeCloses)
{
  Open();
  Press(Qt::Key_Escape);
  EXPECT_EQ(HelpOnScreen::Window(), nullptr);
  HelpViewer::ShowContents();
  EXPECT_EQ(HelpOnScreen::WindowCount(), 1) << "and it opens again at once";
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(HelpOnScreen::WindowCount(), 1);
}

TEST_F(HelpViewerTest, QuitClosesAndDoesNothingOtherwise)
{
  HelpViewer::Quit();
  Open();
  HelpViewer::Quit();
  EXPECT_EQ(HelpOnScreen::Window(), nullptr);
  HelpViewer::Quit();
  HelpViewer::ShowContext(2);
  EXPECT_EQ(HelpOnScreen::Page(), "quick-fill.html");
}

TEST_F(HelpViewerTest, OtherAddressesGoToTheDesktop)
{
  Open();
  AddressCatcher catcher(QStringLiteral("https"));
  Q_EMIT Page().anchorClicked(QUrl("https://example.org/a"));
  ASSERT_EQ(catcher.Taken.size(), 1);
  EXPECT_EQ(catcher.Taken[0].toString().toStdString(), "https://example.org/a");
  EXPECT_EQ(HelpOnScreen::Page(), "index.html");
}

TEST_F(HelpViewerTest, AMissingFileIsSaid)
{
  for (int call = 0; call < 2; ++call) {
    boxes.Expect(kUnreadable);
    HelpViewer::ShowContents();
    boxes.Expect(kUnreadable);
    HelpViewer::ShowContext(2);
  }
  EXPECT_EQ(HelpOnScreen::Window(), nullptr);
  EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(HelpViewerTest, ADamagedFileIsSaidAndAWholeOneIsOpenedLater)
{
  HelpOnScreen::Lay(folder.path());
  QFile file(folder.filePath("Help.hlp"));
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  const QByteArray whole = file.readAll();
  ASSERT_TRUE(file.resize(file.size() / 2));
  file.close();
  boxes.Expect(kUnreadable);
  HelpViewer::ShowContents();
  ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  file.write("These are no pages.");
  file.close();
  boxes.Expect(kUnreadable);
  HelpViewer::ShowContents();
  EXPECT_EQ(HelpOnScreen::Window(), nullptr);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  file.write(whole);
  file.close();
  HelpViewer::ShowContents();
  EXPECT_EQ(HelpOnScreen::Page(), "index.html");
}

TEST_F(HelpViewerTest, AFileThatGoesWhileItIsReadDoesNoHarm)
{
  Open();
  QFile file(folder.filePath("Help.hlp"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  file.write("These are no pages.");
  file.close();
  ClickTopic("Charts");
  EXPECT_EQ(Page().toPlainText().toStdString(), "This page of the help cannot be read.");
  QTest::keyClicks(&Search(), "backup");
  EXPECT_GE(Found().count(), 1);
}

TEST_F(HelpViewerTest, PicturesAreShownNoWiderThanAPage)
{
  Open();
  HelpOnScreen::Window()->resize(976, 720);
  ClickTopic("Personal records");
  const QTextDocument& document = *Page().document();
  const QVariant picture = document.resource(QTextDocument::ImageResource, QUrl("pictures/record-editor.png"));
  EXPECT_EQ(picture.value<QImage>().deviceIndependentSize().width(), 576);
  const QVariant drawing = document.resource(QTextDocument::ImageResource, QUrl("drawings/card.svg"));
  EXPECT_EQ(drawing.value<QImage>().deviceIndependentSize(), QSizeF(96, 96));
  EXPECT_FALSE(Page().horizontalScrollBar()->isVisible());
}

TEST_F(HelpViewerTest, AWindowThatWaitsForItsUserLeavesTheHelpInUse)
{
  Open();
  ClickTopic("Charts");
  QDialog dialog;
  dialog.open();
  dialog.setWindowModality(Qt::ApplicationModal);
  dialog.hide();
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
  ASSERT_EQ(QGuiApplication::modalWindow(), dialog.windowHandle());
  Click(Button("cmdHome"));
  EXPECT_EQ(HelpOnScreen::Page(), "index.html");

  QDialog above;
  above.setModal(true);
  above.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&above));
  Click(Button("cmdBack"));
  EXPECT_EQ(HelpOnScreen::Page(), "charts.html");
  above.close();
  Click(Button("cmdHome"));
  EXPECT_EQ(HelpOnScreen::Page(), "index.html");
  dialog.close();
  Click(Button("cmdBack"));
  EXPECT_EQ(HelpOnScreen::Page(), "charts.html");
  EXPECT_EQ(HelpOnScreen::WindowCount(), 1);
}

TEST_F(HelpViewerTest, OpenedFromAWindowThatWaitsItStaysWhenThatCloses)
{
  HelpOnScreen::Lay(folder.path());
  auto dialog = std::make_unique<QDialog>();
  dialog->setModal(true);
  dialog->show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
  HelpViewer::ShowContext(2);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(HelpOnScreen::Window()));
  Click(Button("cmdHome"));
  EXPECT_EQ(HelpOnScreen::Page(), "index.html");
  dialog->close();
  EXPECT_EQ(HelpOnScreen::WindowCount(), 1);
  dialog.reset();
  EXPECT_EQ(HelpOnScreen::WindowCount(), 1);
  Click(Button("cmdBack"));
  EXPECT_EQ(HelpOnScreen::Page(), "quick-fill.html");
}
