// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/MultiLineTextBox.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

namespace {

class MultiLineTextBoxTest : public testing::Test
{
protected:
  MultiLineTextBoxTest() : box_(&page_), next_(&page_)
  {
    page_.resize(400, 300);
    box_.setGeometry(0, 0, 200, 100);
    next_.setGeometry(0, 150, 200, 24);
  }

  void Show()
  {
    page_.show();
    page_.activateWindow();
    box_.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&page_));
  }

  QWidget page_;
  MultiLineTextBox box_;
  QLineEdit next_;
  EntryBox& entry_ = box_;
};

}

TEST_F(MultiLineTextBoxTest, IsEmptyAndOpenAtFirst)
{
  EXPECT_EQ(entry_.Text(), QString());
  EXPECT_FALSE(entry_.Locked());
  EXPECT_EQ(box_.TabIndex(), -1);
}

TEST_F(MultiLineTextBoxTest, KeepsEveryCharacter)
{
  for (const QString text :
       {"a", " ", "a\u00a0b", "\u00a0\u00a0", "two\nlines", "a\n", "\na", "\n", "\n\n\n", " a \n b ", "a\tb", "é 茶 🎂",
        "<b>&amp;</b>\n<br>", "e\u0301", "\u2009a\u202fb\u3000", "\u200b\ufeff"}) {
    entry_.SetText(text);
    EXPECT_EQ(entry_.Text(), text) << text.toStdString();
  }
}

TEST_F(MultiLineTextBoxTest, LinesEndWithALineFeedOnceTheUserHasChangedThem)
{
  Show();
  for (const QString text : {"one\r\ntwo", "one\rtwo", "one\u2028two", "one\u2029two"}) {
    entry_.SetText(text);
    EXPECT_EQ(entry_.Text(), text);
    QTest::keyClick(&box_, Qt::Key_X);
    EXPECT_EQ(entry_.Text(), QStringLiteral("xone\ntwo")) << text.toStdString();
  }
}

TEST_F(MultiLineTextBoxTest, EnterStartsALine)
{
  Show();
  QTest::keyClicks(&box_, QStringLiteral("one"));
  QTest::keyClick(&box_, Qt::Key_Return);
  QTest::keyClicks(&box_, QStringLiteral("two"));
  QTest::keyClick(&box_, Qt::Key_Enter);
  QTest::keyClicks(&box_, QStringLiteral("three"));
  QTest::keyClick(&box_, Qt::Key_Return, Qt::ShiftModifier);
  QTest::keyClicks(&box_, QStringLiteral("four"));
  EXPECT_EQ(entry_.Text().toStdString(), "one\ntwo\nthree\nfour");
  EXPECT_TRUE(box_.hasFocus());
}

TEST_F(MultiLineTextBoxTest, TabLeavesIt)
{
  Show();
  QTest::keyClick(&box_, Qt::Key_Tab);
  EXPECT_TRUE(next_.hasFocus());
  EXPECT_EQ(entry_.Text(), QString());
}

TEST_F(MultiLineTextBoxTest, HoldsAMegabyte)
{
  QString text;
  while (text.size() < 1'000'000) {
    text += QStringLiteral("She likes\u00a0butterflies, é 茶, and long walks in the %1th wood.\n").arg(text.size());
  }
  entry_.SetText(text);
  EXPECT_TRUE(entry_.Text() == text);
}

TEST_F(MultiLineTextBoxTest, WrapsItsLinesAndScrolls)
{
  entry_.SetText(QStringLiteral("short"));
  Show();
  EXPECT_FALSE(box_.verticalScrollBar()->isVisible());
  entry_.SetText(QStringLiteral("many words ").repeated(100));
  EXPECT_TRUE(QTest::qWaitFor([&] { return box_.verticalScrollBar()->isVisible(); }));
  EXPECT_EQ(box_.horizontalScrollBar()->maximum(), 0);
  EXPECT_EQ(entry_.Text(), QStringLiteral("many words ").repeated(100)) << "wrapping adds no line ends";
}

TEST_F(MultiLineTextBoxTest, ItsPropertiesAreThoseOfADesign)
{
  EXPECT_TRUE(box_.setProperty("TabIndex", 12));
  EXPECT_EQ(box_.TabIndex(), 12);
  EXPECT_TRUE(box_.setProperty("Locked", true));
  EXPECT_TRUE(entry_.Locked());
  entry_.SetLocked(false);
  EXPECT_FALSE(box_.property("Locked").toBool());
}

TEST_F(MultiLineTextBoxTest, LockedIsChangedByNobodyButTheProgram)
{
  Show();
  QTest::keyClicks(&box_, QStringLiteral("Ann"));
  entry_.SetLocked(true);
  QTest::keyClicks(&box_, QStringLiteral("x"));
  QTest::keyClick(&box_, Qt::Key_Return);
  QTest::keyClick(&box_, Qt::Key_Backspace);
  QTest::keyClick(&box_, Qt::Key_Z, Qt::ControlModifier);
  QApplication::clipboard()->setText(QStringLiteral("pasted"));
  QTest::keyClick(&box_, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(entry_.Text(), QStringLiteral("Ann"));
  entry_.SetText(QStringLiteral("Bob"));
  EXPECT_EQ(entry_.Text(), QStringLiteral("Bob"));
  entry_.SetLocked(false);
  QTest::keyClick(&box_, Qt::Key_End);
  QTest::keyClicks(&box_, QStringLiteral("by"));
  EXPECT_EQ(entry_.Text(), QStringLiteral("Bobby"));
}

TEST_F(MultiLineTextBoxTest, LockedTakesTheFocusAndItsTextIsCopied)
{
  entry_.SetText(QStringLiteral("one\ntwo"));
  entry_.SetLocked(true);
  Show();
  EXPECT_TRUE(box_.hasFocus());
  EXPECT_TRUE(box_.isEnabled());
  QApplication::clipboard()->clear();
  QTest::keyClick(&box_, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&box_, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("one\ntwo"));
}

TEST_F(MultiLineTextBoxTest, LockedStillLeavesByTab)
{
  entry_.SetLocked(true);
  Show();
  QTest::keyClick(&box_, Qt::Key_Tab);
  EXPECT_TRUE(next_.hasFocus());
}

TEST_F(MultiLineTextBoxTest, AnotherRecordsTextIsNotTakenBack)
{
  Show();
  QTest::keyClicks(&box_, QStringLiteral("Ann"));
  entry_.SetText(QStringLiteral("Bob"));
  QTest::keyClick(&box_, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(entry_.Text(), QStringLiteral("Bob"));
}

TEST_F(MultiLineTextBoxTest, AnEnormousLineIsTakenWithoutWrapping)
{
  Show();
  const QString line(1'000'000, QLatin1Char('n'));
  QApplication::clipboard()->setText(line);
  box_.paste();
  EXPECT_EQ(entry_.Text(), line);
  EXPECT_EQ(box_.lineWrapMode(), QPlainTextEdit::NoWrap);
  entry_.SetText(QStringLiteral("short"));
  EXPECT_EQ(box_.lineWrapMode(), QPlainTextEdit::WidgetWidth);
  entry_.SetText(line);
  EXPECT_EQ(box_.lineWrapMode(), QPlainTextEdit::NoWrap);
  entry_.SetText(
      QString(200'000, QLatin1Char('n')).replace(49'000, 1, QLatin1Char('\n')).replace(98'000, 1, QLatin1Char('\n')));
  EXPECT_EQ(box_.lineWrapMode(), QPlainTextEdit::NoWrap);
  QString lines;
  for (int i = 0; i < 10'000; ++i) {
    lines += QStringLiteral("a line of the notes\n");
  }
  entry_.SetText(lines);
  EXPECT_EQ(box_.lineWrapMode(), QPlainTextEdit::WidgetWidth);
}

TEST_F(MultiLineTextBoxTest, CaptionStandsAtTheLowerEdgeWithoutAScrollBarWhileItFits)
{
  box_.setFrameStyle(QFrame::NoFrame);
  box_.setProperty("role", QStringLiteral("caption"));
  const int line = box_.fontMetrics().lineSpacing();
  box_.resize(200, 3 * line + 5);
  Show();
  for (const auto& [text, lines] : {std::pair("one", 1), std::pair("one\ntwo", 2), std::pair("one\ntwo\nthree", 3)}) {
    entry_.SetText(QString::fromLatin1(text));
    EXPECT_EQ(box_.viewport()->height(), lines * line) << text;
    EXPECT_EQ(box_.viewport()->geometry().bottom(), box_.height() - 1) << text;
    EXPECT_FALSE(box_.verticalScrollBar()->isVisible()) << text;
  }
  entry_.SetText(QStringLiteral("one\ntwo\nthree\nfour"));
  EXPECT_TRUE(QTest::qWaitFor([this] { return box_.verticalScrollBar()->isVisible(); }));
}
