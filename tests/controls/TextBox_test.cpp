// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/TextBox.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QTest>

namespace {

class TextBoxTest : public testing::Test
{
protected:
  void Show()
  {
    box_.resize(200, 24);
    box_.show();
    box_.activateWindow();
    box_.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box_));
  }

  TextBox box_;
  EntryBox& entry_ = box_;
};

}

TEST_F(TextBoxTest, IsEmptyAndOpenAtFirst)
{
  EXPECT_EQ(entry_.Text(), QString());
  EXPECT_FALSE(entry_.Locked());
  EXPECT_EQ(box_.TabIndex(), -1);
}

TEST_F(TextBoxTest, HoldsTextOfAnyLength)
{
  const QString text = QStringLiteral("0123456789").repeated(10'000);
  entry_.SetText(text);
  EXPECT_EQ(entry_.Text(), text);
  Show();
  QTest::keyClick(&box_, Qt::Key_End);
  QTest::keyClicks(&box_, QStringLiteral("!"));
  EXPECT_EQ(entry_.Text(), text + u'!');
}

TEST_F(TextBoxTest, KeepsEveryCharacter)
{
  for (const QString text : {" Ann ", "a\u00a0b\u00a0", "é 茶 🎂", "<b>&amp;</b>", "e\u0301", "a\tb"}) {
    entry_.SetText(text);
    EXPECT_EQ(entry_.Text(), text) << text.toStdString();
  }
  entry_.SetText({});
  EXPECT_EQ(entry_.Text(), QString());
}

TEST_F(TextBoxTest, IsTypedInto)
{
  Show();
  QTest::keyClicks(&box_, QStringLiteral("Ann  "));
  QTest::keyClick(&box_, Qt::Key_Backspace);
  EXPECT_EQ(entry_.Text(), QStringLiteral("Ann "));
}

TEST_F(TextBoxTest, ItsPropertiesAreThoseOfADesign)
{
  EXPECT_TRUE(box_.setProperty("TabIndex", 7));
  EXPECT_EQ(box_.TabIndex(), 7);
  EXPECT_TRUE(box_.setProperty("Locked", true));
  EXPECT_TRUE(entry_.Locked());
  entry_.SetLocked(false);
  EXPECT_FALSE(box_.property("Locked").toBool());
}

TEST_F(TextBoxTest, LockedIsChangedByNobodyButTheProgram)
{
  Show();
  QTest::keyClicks(&box_, QStringLiteral("Ann"));
  entry_.SetLocked(true);
  QTest::keyClicks(&box_, QStringLiteral("x"));
  QTest::keyClick(&box_, Qt::Key_Backspace);
  QTest::keyClick(&box_, Qt::Key_Delete);
  QTest::keyClick(&box_, Qt::Key_Z, Qt::ControlModifier);
  QApplication::clipboard()->setText(QStringLiteral("pasted"));
  QTest::keyClick(&box_, Qt::Key_V, Qt::ControlModifier);
  QTest::keyClick(&box_, Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_FALSE(box_.testAttribute(Qt::WA_InputMethodEnabled)) << "no input method writes into it";
  EXPECT_EQ(entry_.Text(), QStringLiteral("Ann"));
  entry_.SetText(QStringLiteral("Bob"));
  EXPECT_EQ(entry_.Text(), QStringLiteral("Bob"));
  entry_.SetLocked(false);
  QTest::keyClick(&box_, Qt::Key_End);
  QTest::keyClicks(&box_, QStringLiteral("by"));
  EXPECT_EQ(entry_.Text(), QStringLiteral("Bobby"));
}

TEST_F(TextBoxTest, LockedTakesTheFocusAndItsTextIsCopied)
{
  entry_.SetText(QStringLiteral("Ann"));
  entry_.SetLocked(true);
  Show();
  EXPECT_TRUE(box_.hasFocus());
  EXPECT_TRUE(box_.isEnabled());
  QApplication::clipboard()->clear();
  QTest::keyClick(&box_, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&box_, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Ann"));
}

TEST_F(TextBoxTest, AnotherRecordsTextIsNotTakenBack)
{
  Show();
  QTest::keyClicks(&box_, QStringLiteral("Ann"));
  entry_.SetText(QStringLiteral("Bob"));
  QTest::keyClick(&box_, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(entry_.Text(), QStringLiteral("Bob"));
}

TEST_F(TextBoxTest, LongTextOfALockedBoxEndsInAnEllipsisUntilItTakesTheFocus)
{
  QWidget page;
  page.resize(300, 60);
  box_.setParent(&page);
  box_.setGeometry(0, 0, 100, 24);
  QLineEdit other(&page);
  other.setGeometry(0, 30, 100, 24);
  page.show();
  page.activateWindow();
  other.setFocus();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
  const auto painted = [this](const QString& text) {
    entry_.SetText(text);
    return box_.grab().toImage();
  };
  const QString text = QStringLiteral("a text that is much too long for its box");
  const QImage open = painted(text);
  entry_.SetLocked(true);
  const QImage locked = painted(text);
  EXPECT_NE(locked, open);
  EXPECT_EQ(painted(text + QStringLiteral(" and goes on")), locked);
  entry_.SetText(text);
  QString cut = text;
  while (!cut.isEmpty() && painted(cut + QChar(0x2026)) != locked) {
    cut.chop(1);
  }
  EXPECT_FALSE(cut.isEmpty()) << "no beginning of the text with an ellipsis looks like it";
  entry_.SetText(text);
  box_.setFocus();
  EXPECT_NE(box_.grab().toImage(), locked);
  box_.setParent(nullptr);
}
