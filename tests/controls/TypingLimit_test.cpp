// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/TypingLimit.h"

#include "controls/ComboBox.h"
#include "controls/TextBox.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QTest>

namespace {

constexpr int kLongest = 5;

// A text box and a combo box that hold five typed characters.
class TypingLimitTest : public testing::Test
{
protected:
  TypingLimitTest() : limit_(kLongest)
  {
    combo_.setGeometry(0, 40, 100, 24);
    combo_.SetTyping(ComboBox::AnyText);
    combo_.AddItem("A long preset");
    limit_.Join(text_);
    limit_.Join(combo_);
    page_.show();
    page_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&page_));
  }

  static void Commit(QWidget& box, const QString& text)
  {
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(&box, &event);
  }

  // Works on each of the boxes, and on what in it takes the keys.
  void ForEach(const std::function<void(EntryBox& box, QWidget& keys)>& work)
  {
    for (auto& [box, keys] : std::initializer_list<std::pair<EntryBox&, QWidget&>>{
             {text_, text_}, {combo_, combo_}, {combo_, *combo_.lineEdit()}}) {
      keys.setFocus();
      box.SetText({});
      work(box, keys);
    }
  }

  QWidget page_;
  TextBox text_{&page_};
  ComboBox combo_{&page_};
  TypingLimit limit_;
};

}

TEST_F(TypingLimitTest, TypingEndsAtTheLongestText)
{
  ForEach([](EntryBox& box, QWidget& keys) {
    QTest::keyClicks(&keys, "abc fgh");
    EXPECT_EQ(box.Text(), "abc f");
  });
}

TEST_F(TypingLimitTest, BackspaceWorksAtAnyLength)
{
  ForEach([](EntryBox& box, QWidget& keys) {
    for (const QString& text : {QString("abcde"), QString("far too long")}) {
      box.SetText(text);
      QTest::keyClick(&keys, Qt::Key_End);
      QTest::keyClick(&keys, Qt::Key_Backspace);
      EXPECT_EQ(box.Text(), text.chopped(1));
    }
    QTest::keyClick(&keys, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&keys, Qt::Key_Backspace);
    EXPECT_EQ(box.Text(), "");
    QTest::keyClicks(&keys, "abc");
    EXPECT_EQ(box.Text(), "abc");
  });
}

TEST_F(TypingLimitTest, AFullBoxTakesNothingButBackspaceAlsoWhileAllOfItIsSelected)
{
  ForEach([](EntryBox& box, QWidget& keys) {
    QTest::keyClicks(&keys, "abcde");
    QTest::keyClick(&keys, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&keys, "x ");
    EXPECT_EQ(box.Text(), "abcde");
    QTest::keyClick(&keys, Qt::Key_Backspace);
    EXPECT_EQ(box.Text(), "");
  });
}

TEST_F(TypingLimitTest, APastedTextPasses)
{
  QApplication::clipboard()->setText("pasted text");
  ForEach([](EntryBox& box, QWidget& keys) {
    QTest::keyClicks(&keys, "abcde");
    QTest::keyClick(&keys, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), "abcdepasted text");
    QTest::keyClicks(&keys, "x");
    EXPECT_EQ(box.Text(), "abcdepasted text");
  });
}

TEST_F(TypingLimitTest, KeysThatWriteNothingPass)
{
  ForEach([](EntryBox& box, QWidget& keys) {
    box.SetText("abcde");
    QTest::keyClick(&keys, Qt::Key_Home);
    QTest::keyClick(&keys, Qt::Key_Delete);
    EXPECT_EQ(box.Text(), "bcde");
    QTest::keyClick(&keys, Qt::Key_Right);
    QTest::keyClicks(&keys, "xy");
    EXPECT_EQ(box.Text(), "bxcde");
  });
}

TEST_F(TypingLimitTest, InputMethodsAreHeldToItToo)
{
  ForEach([](EntryBox& box, QWidget& keys) {
    Commit(keys, QStringLiteral("茶茶茶茶"));
    Commit(keys, QStringLiteral("é"));
    EXPECT_EQ(box.Text(), QStringLiteral("茶茶茶茶é"));
    Commit(keys, QStringLiteral("茶"));
    EXPECT_EQ(box.Text(), QStringLiteral("茶茶茶茶é"));
  });
}

TEST_F(TypingLimitTest, CharactersAreThoseOfTheUser)
{
  ForEach([](EntryBox& box, QWidget& keys) {
    box.SetText(QString("🎂").repeated(4));
    QTest::keyClick(&keys, Qt::Key_End);
    QTest::keyClicks(&keys, "ab");
    EXPECT_EQ(box.Text(), QString("🎂").repeated(4) + "a");
  });
}

TEST_F(TypingLimitTest, AChosenLineMayBeLonger)
{
  combo_.SetListIndex(0);
  EXPECT_EQ(combo_.Text(), "A long preset");
}
