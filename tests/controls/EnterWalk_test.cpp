// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/ComboBox.h"
#include "controls/EnterWalk.h"
#include "controls/TextBox.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QTest>

namespace {

// A page that notices keys which its controls leave to it.
class Page : public QWidget
{
public:
  std::vector<int> keys;

protected:
  void keyPressEvent(QKeyEvent* event) override { keys.push_back(event->key()); }
};

class EnterWalkTest : public testing::Test
{
protected:
  EnterWalkTest() : month_(&page_), day_(&page_), sex_(&page_), phone_(&page_)
  {
    month_.SetTyping(ComboBox::BackspaceOnly);
    day_.SetTyping(ComboBox::BackspaceOnly);
    sex_.SetTyping(ComboBox::NoTyping);
    int top = 0;
    for (QWidget* box : std::initializer_list<QWidget*>{&month_, &day_, &sex_, &phone_}) {
      box->setGeometry(0, top, 100, 24);
      top += 30;
    }
    month_.AddItems({QStringLiteral("January"), QStringLiteral("February")});
    page_.show();
    page_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&page_));
  }

  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
  {
    QWidget* box = QApplication::focusWidget();
    ASSERT_NE(box, nullptr);
    QTest::keyClick(box, key, modifiers);
  }

  Page page_;
  ComboBox month_;
  ComboBox day_;
  ComboBox sex_;
  TextBox phone_;
  EnterWalk walk_;
};

}

TEST_F(EnterWalkTest, EnterGivesTheFocusToTheNextBox)
{
  walk_.Join(month_, day_);
  walk_.Join(day_, sex_);
  walk_.Join(sex_, phone_);
  walk_.Join(phone_, month_);
  for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
    month_.setFocus();
    for (QWidget* next : std::initializer_list<QWidget*>{&day_, &sex_, &phone_, &month_}) {
      Press(enter, enter == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier);
      EXPECT_TRUE(next->hasFocus());
    }
  }
  EXPECT_TRUE(page_.keys.empty()) << "the walk keeps Enter to itself";
}

TEST_F(EnterWalkTest, EnterStaysWhereNoWalkBegins)
{
  walk_.Join(month_, day_);
  for (QWidget* box : std::initializer_list<QWidget*>{&day_, &sex_, &phone_}) {
    box->setFocus();
    Press(Qt::Key_Return);
    EXPECT_TRUE(box->hasFocus());
  }
}

TEST_F(EnterWalkTest, OtherKeysDoWhatTheyAlwaysDo)
{
  walk_.Join(phone_, month_);
  phone_.setFocus();
  QTest::keyClicks(&phone_, QStringLiteral("555"));
  Press(Qt::Key_Backspace);
  Press(Qt::Key_Space);
  EXPECT_EQ(phone_.Text(), QStringLiteral("55 "));
  EXPECT_TRUE(phone_.hasFocus());
}

TEST_F(EnterWalkTest, LeavesTheTextsAndTheListAlone)
{
  walk_.Join(month_, day_);
  month_.SetListIndex(0);
  month_.setFocus();
  Press(Qt::Key_Backspace);
  Press(Qt::Key_Return);
  EXPECT_TRUE(day_.hasFocus());
  EXPECT_EQ(month_.Text(), QStringLiteral("Januar"));
  EXPECT_EQ(month_.ListCount(), 2);
}

TEST_F(EnterWalkTest, TheLastJoinCounts)
{
  walk_.Join(month_, day_);
  walk_.Join(month_, phone_);
  month_.setFocus();
  Press(Qt::Key_Return);
  EXPECT_TRUE(phone_.hasFocus());
}

TEST_F(EnterWalkTest, EndsWithTheWalk)
{
  {
    EnterWalk shortLived;
    shortLived.Join(month_, day_);
  }
  month_.setFocus();
  Press(Qt::Key_Return);
  EXPECT_TRUE(month_.hasFocus());
}
