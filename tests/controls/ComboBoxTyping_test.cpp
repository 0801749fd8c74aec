// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/ComboBox.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

namespace {

// A box of each kind that can show other texts than its lines.
class TypingComboBox : public testing::TestWithParam<ComboBox::TypingKind>
{
protected:
  TypingComboBox() : box_(&page_)
  {
    page_.resize(300, 200);
    box_.setGeometry(10, 10, 150, 24);
    box_.SetTyping(GetParam());
    box_.AddItems({QStringLiteral("January"), QStringLiteral("February"), QStringLiteral("March")});
    page_.show();
    page_.activateWindow();
    box_.setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&page_));
  }

  // A key as the window's focus gets it.
  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
  {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }

  static void PressAllThatChangesTexts()
  {
    for (const char letter : std::string("aJ1 .,x")) {
      QTest::keyClick(QApplication::focusWidget(), letter);
    }
    for (const auto& [key, modifiers] :
         std::initializer_list<std::pair<Qt::Key, Qt::KeyboardModifiers>>{{Qt::Key_Delete, Qt::ShiftModifier},
                                                                          {Qt::Key_V, Qt::ControlModifier},
                                                                          {Qt::Key_Insert, Qt::ShiftModifier},
                                                                          {Qt::Key_X, Qt::ControlModifier},
                                                                          {Qt::Key_K, Qt::ControlModifier},
                                                                          {Qt::Key_Z, Qt::ControlModifier},
                                                                          {Qt::Key_Return, Qt::NoModifier}}) {
      Press(key, modifiers);
    }
  }

  // A turn of the wheel over the box or over what stands in it.
  static void Turn(QWidget& over, int angle)
  {
    const QPointF middle = over.rect().center();
    QWheelEvent event(middle, over.mapToGlobal(middle), {}, {0, angle}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&over, &event);
  }

  // A click that opens the list: into the text, or, where that is typed, on the arrow.
  void ClickInto()
  {
    constexpr int kArrow = 8;
    const QPoint place = GetParam() == ComboBox::TypedLines
                             ? QPoint(box_.geometry().right() - kArrow, box_.y() + kArrow)
                             : box_.geometry().center();
    QWidget* under = page_.childAt(place);
    ASSERT_NE(under, nullptr);
    QTest::mouseMove(under, under->mapFrom(&page_, place));
    QTest::mouseClick(under, Qt::LeftButton, {}, under->mapFrom(&page_, place));
  }

  QWidget page_;
  ComboBox box_;
  QSignalSpy clicks_{&box_, &ComboBox::Click};
};

INSTANTIATE_TEST_SUITE_P(Kinds, TypingComboBox, testing::Values(ComboBox::BackspaceOnly, ComboBox::NoTyping));

// Those that hold for boxes which show their lines only, as well.
class AnyComboBox : public TypingComboBox
{
};

INSTANTIATE_TEST_SUITE_P(Kinds, AnyComboBox,
                         testing::Values(ComboBox::Listed, ComboBox::BackspaceOnly, ComboBox::NoTyping,
                                         ComboBox::TypedLines));

class TypedLinesComboBox : public TypingComboBox
{
protected:
  static void Type(const char* text) { QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(text)); }
};

INSTANTIATE_TEST_SUITE_P(Kinds, TypedLinesComboBox, testing::Values(ComboBox::TypedLines));

}

TEST_P(AnyComboBox, NothingIsChosenWhenLinesCome)
{
  EXPECT_EQ(box_.ListIndex(), -1);
  EXPECT_EQ(box_.Text(), QString());
  EXPECT_EQ(box_.Typing(), GetParam());
  EXPECT_EQ(clicks_.count(), 0);
}

TEST_P(AnyComboBox, TextOfALineChoosesItQuietly)
{
  box_.SetText(QStringLiteral("March"));
  EXPECT_EQ(box_.ListIndex(), 2);
  EXPECT_EQ(box_.Text(), QStringLiteral("March"));
  box_.SetText({});
  EXPECT_EQ(box_.ListIndex(), -1);
  EXPECT_EQ(box_.Text(), QString());
  EXPECT_EQ(clicks_.count(), 0);
  box_.SetText(QStringLiteral("march"));
  EXPECT_EQ(box_.ListIndex(), -1) << "lines are compared exactly";
}

TEST_P(AnyComboBox, WheelLeavesItAlone)
{
  box_.SetListIndex(1);
  for (const int angle : {120, -120}) {
    Turn(box_, angle);
    if (box_.lineEdit() != nullptr) {
      Turn(*box_.lineEdit(), angle);
    }
  }
  EXPECT_EQ(box_.ListIndex(), 1);
  EXPECT_EQ(clicks_.count(), 1);
}

TEST_P(AnyComboBox, ArrowKeysStepAndClick)
{
  Press(Qt::Key_Down);
  EXPECT_EQ(box_.Text(), QStringLiteral("January"));
  Press(Qt::Key_Down);
  EXPECT_EQ(box_.Text(), QStringLiteral("February"));
  Press(Qt::Key_Up);
  EXPECT_EQ(box_.Text(), QStringLiteral("January"));
  EXPECT_EQ(box_.ListIndex(), 0);
  EXPECT_EQ(clicks_.count(), 3);
  Press(Qt::Key_Up);
  EXPECT_EQ(clicks_.count(), 3);
}

TEST_P(AnyComboBox, ClickOpensTheList)
{
  ClickInto();
  ASSERT_TRUE(QTest::qWaitFor([&] { return box_.view()->isVisible(); }));
  ASSERT_TRUE(QTest::qWaitForWindowExposed(box_.view()->window()));
  QAbstractItemView& view = *box_.view();
  const QPoint line = view.visualRect(view.model()->index(1, 0)).center();
  QTest::mouseMove(view.viewport(), line);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, line);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !view.isVisible(); }));
  EXPECT_EQ(box_.Text(), QStringLiteral("February"));
  EXPECT_EQ(clicks_.count(), 1);
}

TEST_P(AnyComboBox, KeyOpensTheList)
{
  Press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return box_.view()->isVisible(); }));
  box_.hidePopup();
  EXPECT_EQ(clicks_.count(), 0);
}

TEST_P(AnyComboBox, LockedIsChangedByNobodyButTheProgram)
{
  box_.SetListIndex(1);
  box_.SetLocked(true);
  EXPECT_TRUE(box_.property("Locked").toBool());
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End, Qt::Key_PageDown, Qt::Key_PageUp,
                            Qt::Key_Backspace, Qt::Key_M, Qt::Key_Space, Qt::Key_F4}) {
    Press(key);
    EXPECT_FALSE(box_.view()->isVisible()) << key;
  }
  Press(Qt::Key_Down, Qt::AltModifier);
  ClickInto();
  QCoreApplication::processEvents();
  EXPECT_FALSE(box_.view()->isVisible());
  Turn(box_, -120);
  EXPECT_EQ(box_.Text(), QStringLiteral("February"));
  EXPECT_EQ(clicks_.count(), 1);
  box_.SetText(QStringLiteral("March"));
  EXPECT_EQ(box_.ListIndex(), 2);
  box_.SetLocked(false);
  Press(Qt::Key_Up);
  EXPECT_EQ(box_.Text(), QStringLiteral("February"));
}

TEST_P(AnyComboBox, NoMenuOpensThatWouldCutOrPaste)
{
  for (QWidget* under : {page_.childAt(box_.geometry().center()), static_cast<QWidget*>(&box_)}) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, under->rect().center(),
                            under->mapToGlobal(under->rect().center()));
    QTimer::singleShot(0, [] {
      if (QWidget* menu = QApplication::activePopupWidget()) {
        ADD_FAILURE() << "a menu opened";
        menu->close();
      }
    });
    QApplication::sendEvent(under, &event);
    QCoreApplication::processEvents();
  }
}

TEST_P(AnyComboBox, LockedStillTakesTheFocus)
{
  box_.SetLocked(true);
  box_.clearFocus();
  box_.setFocus();
  EXPECT_TRUE(box_.hasFocus() || box_.isAncestorOf(QApplication::focusWidget()));
  EXPECT_TRUE(box_.isEnabled());
}

TEST_P(AnyComboBox, ClearedItIsEmptyAndQuiet)
{
  box_.SetListIndex(1);
  box_.Clear();
  EXPECT_EQ(box_.Text(), QString());
  EXPECT_EQ(box_.ListIndex(), -1);
  EXPECT_EQ(box_.ListCount(), 0);
  EXPECT_EQ(clicks_.count(), 1);
}

TEST_P(TypingComboBox, ShowsATextThatIsNoLine)
{
  box_.SetListIndex(1);
  box_.SetText(QStringLiteral("Thermidor"));
  EXPECT_EQ(box_.Text(), QStringLiteral("Thermidor"));
  EXPECT_EQ(box_.ListIndex(), -1);
  EXPECT_EQ(box_.ListCount(), 3);
  EXPECT_EQ(clicks_.count(), 1);
}

TEST_P(TypingComboBox, LinesLeaveItsTextAlone)
{
  box_.SetText(QStringLiteral("Thermidor"));
  box_.AddItems({QStringLiteral("April"), QStringLiteral("May")});
  box_.AddItem(QStringLiteral("June"));
  EXPECT_EQ(box_.Text(), QStringLiteral("Thermidor"));
  box_.SetListIndex(5);
  box_.AddItem(QStringLiteral("July"));
  EXPECT_EQ(box_.Text(), QStringLiteral("June"));
}

TEST_P(TypingComboBox, KeysBesideBackspaceLeaveItsTextAlone)
{
  QApplication::clipboard()->setText(QStringLiteral("pasted"));
  box_.SetText(QStringLiteral("Thermidor"));
  PressAllThatChangesTexts();
  EXPECT_EQ(box_.Text(), QStringLiteral("Thermidor"));
  Press(Qt::Key_A, Qt::ControlModifier);
  PressAllThatChangesTexts();
  EXPECT_EQ(box_.Text(), QStringLiteral("Thermidor"));
  box_.SetText({});
  PressAllThatChangesTexts();
  EXPECT_EQ(box_.Text(), QString());
  EXPECT_EQ(box_.ListCount(), 3);
  EXPECT_EQ(clicks_.count(), 0);
}

TEST_P(TypingComboBox, BackspaceShortensWhereItMay)
{
  box_.SetListIndex(0);
  Press(Qt::Key_End);
  Press(Qt::Key_Backspace);
  Press(Qt::Key_Backspace);
  const bool shortens = GetParam() == ComboBox::BackspaceOnly;
  EXPECT_EQ(box_.Text(), shortens ? QStringLiteral("Janua") : QStringLiteral("January"));
  Press(Qt::Key_Return);
  box_.clearFocus();
  EXPECT_EQ(box_.Text(), shortens ? QStringLiteral("Janua") : QStringLiteral("January"));
  EXPECT_EQ(box_.ListCount(), 3) << "a text becomes no line";
  EXPECT_EQ(clicks_.count(), 1);
}

TEST_P(TypingComboBox, ShortenedTextIsSetAgain)
{
  box_.SetListIndex(0);
  Press(Qt::Key_End);
  Press(Qt::Key_Backspace);
  box_.SetText(QStringLiteral("January"));
  EXPECT_EQ(box_.Text(), QStringLiteral("January"));
  EXPECT_EQ(box_.ListIndex(), 0);
  Press(Qt::Key_End);
  Press(Qt::Key_Backspace);
  box_.SetText({});
  EXPECT_EQ(box_.Text(), QString());
}

TEST_P(TypingComboBox, InputMethodsWriteNothing)
{
  box_.SetText(QStringLiteral("Thermidor"));
  QInputMethodQueryEvent asking(Qt::ImEnabled);
  QApplication::sendEvent(QApplication::focusWidget(), &asking);
  if (asking.value(Qt::ImEnabled).toBool()) {
    QInputMethodEvent input;
    input.setCommitString(QStringLiteral("茶"));
    QApplication::sendEvent(QApplication::focusWidget(), &input);
  }
  EXPECT_EQ(box_.Text().toStdString(), "Thermidor");
}

TEST_P(TypingComboBox, DroppedTextStaysOut)
{
  box_.SetText(QStringLiteral("Thermidor"));
  QWidget* under = page_.childAt(box_.geometry().center());
  ASSERT_NE(under, nullptr);
  QMimeData data;
  data.setText(QStringLiteral("dropped"));
  const QPoint place = under->rect().center();
  QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(under, &enter);
  QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(under, &drop);
  EXPECT_EQ(box_.Text().toStdString(), "Thermidor");
}

TEST_P(TypingComboBox, MiddleClickPastesNothing)
{
  QClipboard& clipboard = *QApplication::clipboard();
  if (!clipboard.supportsSelection()) {
    GTEST_SKIP() << "this display has no selection to paste";
  }
  clipboard.setText(QStringLiteral("pasted"), QClipboard::Selection);
  QTest::mouseClick(page_.childAt(box_.geometry().center()), Qt::MiddleButton);
  EXPECT_EQ(box_.Text(), QString());
}

TEST_P(TypingComboBox, TextIsCopied)
{
  box_.SetText(QStringLiteral("Thermidor"));
  box_.SetLocked(true);
  QApplication::clipboard()->clear();
  Press(Qt::Key_A, Qt::ControlModifier);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Thermidor"));
}

TEST_P(TypingComboBox, LeavingAShortenedTextChoosesNoLine)
{
  box_.AddItem(QStringLiteral("Mar"));
  box_.SetText(QStringLiteral("March"));
  Press(Qt::Key_End);
  Press(Qt::Key_Backspace);
  Press(Qt::Key_Backspace);
  QWidget elsewhere(&page_);
  elsewhere.setFocusPolicy(Qt::StrongFocus);
  elsewhere.show();
  elsewhere.setFocus();
  EXPECT_FALSE(box_.hasFocus());
  EXPECT_EQ(clicks_.count(), 0);
}

TEST_P(TypedLinesComboBox, TypedLineIsShownAndNotChosen)
{
  Type("March");
  EXPECT_EQ(box_.Text(), QStringLiteral("March"));
  Press(Qt::Key_Return);
  QWidget elsewhere(&page_);
  elsewhere.setFocusPolicy(Qt::StrongFocus);
  elsewhere.show();
  elsewhere.setFocus();
  EXPECT_FALSE(box_.hasFocus());
  EXPECT_EQ(box_.Text(), QStringLiteral("March"));
  EXPECT_EQ(box_.ListCount(), 3);
  EXPECT_EQ(clicks_.count(), 0);
}

TEST_P(TypedLinesComboBox, OnlyWhatALineBeginsWithIsTyped)
{
  Type("Fox");
  EXPECT_EQ(box_.Text(), QStringLiteral("F"));
  Type("ebb");
  EXPECT_EQ(box_.Text(), QStringLiteral("Feb"));
  QApplication::clipboard()->setText(QStringLiteral("Thermidor"));
  Press(Qt::Key_A, Qt::ControlModifier);
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(box_.Text(), QStringLiteral("Feb"));
  QApplication::clipboard()->setText(QStringLiteral("March"));
  Press(Qt::Key_A, Qt::ControlModifier);
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(box_.Text(), QStringLiteral("March"));
  EXPECT_EQ(clicks_.count(), 0);
}

TEST_P(TypedLinesComboBox, ListOpensOnTheTypedLineAndEnterChoosesIt)
{
  box_.SetListIndex(0);
  Press(Qt::Key_A, Qt::ControlModifier);
  Type("March");
  Press(Qt::Key_Down, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([&] { return box_.view()->isVisible(); }));
  ASSERT_TRUE(QTest::qWaitForWindowExposed(box_.view()->window()));
  EXPECT_EQ(box_.view()->currentIndex().row(), 2);
  EXPECT_EQ(clicks_.count(), 1);
  QTest::keyClick(box_.view(), Qt::Key_Return);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !box_.view()->isVisible(); }));
  EXPECT_EQ(box_.ListIndex(), 2);
  EXPECT_EQ(clicks_.count(), 2);
}

TEST_P(TypedLinesComboBox, ArrowKeysStepFromTheTypedLine)
{
  Type("February");
  Press(Qt::Key_Down);
  EXPECT_EQ(box_.Text(), QStringLiteral("March"));
  EXPECT_EQ(clicks_.count(), 1);
}

TEST_P(TypedLinesComboBox, ClickIntoTheTextOpensNoList)
{
  box_.clearFocus();
  QTest::mouseClick(page_.childAt(box_.geometry().center()), Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_TRUE(box_.hasFocus());
  EXPECT_FALSE(box_.view()->isVisible());
}

TEST_P(TypedLinesComboBox, KeysAreToldBeforeTheyDoAnything)
{
  box_.SetText(QStringLiteral("March"));
  QStringList seen;
  QObject::connect(&box_, &ComboBox::KeyDown, &box_, [&](int key) {
    seen.append(QStringLiteral("%1 at %2").arg(QKeySequence(key).toString(), box_.Text()));
  });
  Press(Qt::Key_Backspace);
  Press(Qt::Key_Left);
  Press(Qt::Key_Delete);
  box_.SetLocked(true);
  Press(Qt::Key_Delete);
  EXPECT_EQ(seen, QStringList({"Backspace at March", "Left at Marc", "Del at Marc"}));
  EXPECT_EQ(box_.Text(), QStringLiteral("Mar"));
}
