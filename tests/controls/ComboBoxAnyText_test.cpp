// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/ComboBox.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

namespace {

// A box that any text can be typed into.
class AnyTextComboBox : public testing::Test
{
protected:
  AnyTextComboBox() : box_(&page_), other_(&page_)
  {
    page_.resize(300, 200);
    box_.setGeometry(10, 10, 150, 24);
    other_.setGeometry(10, 60, 150, 24);
    box_.SetTyping(ComboBox::AnyText);
    box_.AddItems({QStringLiteral("Dentist"), QStringLiteral("Doctor"), QStringLiteral("Vet")});
    page_.show();
    page_.activateWindow();
    box_.setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&page_));
  }

  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
  {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  static void Type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }

  void ExpectText(const QString& text, int index)
  {
    EXPECT_EQ(box_.Text().toStdString(), text.toStdString());
    EXPECT_EQ(box_.ListIndex(), index);
  }

  QWidget page_;
  ComboBox box_;
  QLineEdit other_;
  QSignalSpy clicks_{&box_, &ComboBox::Click};
};

}

TEST_F(AnyTextComboBox, TakesATextThatIsNoLine)
{
  ExpectText("", -1);
  Type("Book club");
  ExpectText("Book club", -1);
  Press(Qt::Key_Return);
  other_.setFocus();
  ExpectText("Book club", -1);
  EXPECT_EQ(box_.ListCount(), 3) << "a text becomes no line";
  EXPECT_EQ(clicks_.count(), 0);
}

TEST_F(AnyTextComboBox, ATypedTextChoosesNoLineAndIsNotCompleted)
{
  Type("vet");
  other_.setFocus();
  ExpectText("vet", -1);
  box_.setFocus();
  Press(Qt::Key_A, Qt::ControlModifier);
  Type("Vet");
  other_.setFocus();
  ExpectText("Vet", -1);
  box_.setFocus();
  Press(Qt::Key_A, Qt::ControlModifier);
  Type("Do");
  ExpectText("Do", -1);
  EXPECT_EQ(clicks_.count(), 0);
}

TEST_F(AnyTextComboBox, TakesATextThatIsPasted)
{
  QApplication::clipboard()->setText(QStringLiteral("pasted"));
  Type("It is ");
  Press(Qt::Key_V, Qt::ControlModifier);
  ExpectText("It is pasted", -1);
  EXPECT_EQ(box_.lineEdit()->contextMenuPolicy(), Qt::DefaultContextMenu) << "the menu can paste";
  EXPECT_TRUE(box_.lineEdit()->acceptDrops());
}

TEST_F(AnyTextComboBox, TakesTheTextOfAnInputMethod)
{
  QInputMethodQueryEvent asking(Qt::ImEnabled);
  QApplication::sendEvent(QApplication::focusWidget(), &asking);
  EXPECT_TRUE(asking.value(Qt::ImEnabled).toBool());
  QInputMethodEvent input;
  input.setCommitString(QStringLiteral("茶"));
  QApplication::sendEvent(QApplication::focusWidget(), &input);
  ExpectText(QStringLiteral("茶"), -1);
}

TEST_F(AnyTextComboBox, ClickIntoTheTextLeavesTheListClosed)
{
  Type("Book club");
  QTest::mouseClick(page_.childAt(box_.geometry().center()), Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_FALSE(box_.view()->isVisible());
  EXPECT_TRUE(box_.hasFocus());
  ExpectText("Book club", -1);
}

TEST_F(AnyTextComboBox, ClickOnTheArrowOpensTheList)
{
  Type("Book club");
  QTest::mouseClick(&box_, Qt::LeftButton, {}, QPoint(box_.width() - 8, box_.height() / 2));
  QAbstractItemView& view = *box_.view();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(view.window()));
  const QPoint line = view.visualRect(view.model()->index(1, 0)).center();
  QTest::mouseMove(view.viewport(), line);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, line);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !view.isVisible(); }));
  ExpectText("Doctor", 1);
  EXPECT_EQ(clicks_.count(), 1);
}

TEST_F(AnyTextComboBox, ALineIsChosenAgainAfterItsTextWasChanged)
{
  box_.SetListIndex(1);
  Press(Qt::Key_End);
  Type("s");
  ExpectText("Doctors", 1);
  box_.showPopup();
  QAbstractItemView& view = *box_.view();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(view.window()));
  ExpectText("Doctors", -1);
  const QPoint line = view.visualRect(view.model()->index(1, 0)).center();
  QTest::mouseMove(view.viewport(), line);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, line);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !view.isVisible(); }));
  ExpectText("Doctor", 1);
  EXPECT_EQ(clicks_.count(), 2);
}

TEST_F(AnyTextComboBox, ArrowKeysStepAndClick)
{
  Press(Qt::Key_Down);
  ExpectText("Dentist", 0);
  Press(Qt::Key_Down);
  ExpectText("Doctor", 1);
  Press(Qt::Key_Up);
  ExpectText("Dentist", 0);
  EXPECT_EQ(clicks_.count(), 3);
}

TEST_F(AnyTextComboBox, WheelLeavesItAlone)
{
  Type("Book club");
  for (QWidget* over : {static_cast<QWidget*>(&box_), static_cast<QWidget*>(box_.lineEdit())}) {
    const QPointF middle = over->rect().center();
    QWheelEvent event(middle, over->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(over, &event);
  }
  ExpectText("Book club", -1);
}

TEST_F(AnyTextComboBox, LockedTakesNoText)
{
  QApplication::clipboard()->setText(QStringLiteral("pasted"));
  box_.SetText("Book club");
  box_.SetLocked(true);
  Type("x");
  Press(Qt::Key_V, Qt::ControlModifier);
  Press(Qt::Key_Backspace);
  Press(Qt::Key_Down);
  ExpectText("Book club", -1);
  box_.SetLocked(false);
  Press(Qt::Key_End);
  Type("s");
  ExpectText("Book clubs", -1);
}

TEST_F(AnyTextComboBox, IsEmptiedByTheProgram)
{
  box_.SetListIndex(1);
  box_.SetText({});
  ExpectText("", -1);
  Type("Book club");
  box_.SetText({});
  ExpectText("", -1);
}

TEST_F(AnyTextComboBox, EscapeAndEnterAreLeftToTheForm)
{
  class Listener : public QObject
  {
  public:
    bool eventFilter(QObject*, QEvent* event) override
    {
      keys += event->type() == QEvent::KeyPress ? 1 : 0;
      return false;
    }
    int keys = 0;
  } listener;
  page_.installEventFilter(&listener);
  Type("Book club");
  EXPECT_EQ(listener.keys, 0);
  Press(Qt::Key_Escape);
  EXPECT_EQ(listener.keys, 1);
  ExpectText("Book club", -1);
}
