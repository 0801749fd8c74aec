// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "PeopleTest.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QTimer>

using namespace PeopleTexts;

namespace {

const QString kThirty = QString(30, 'x');

// A key with the text that the system gives for it.
struct Stroke
{
  const char* what;
  Qt::KeyboardModifiers modifiers;
  QString text;
};

class EditorKeyDetails : public PeopleTest
{
protected:
  void OpenForEntry()
  {
    AddPerson("Ann", "Adams",
              {{"BirthMonth", "May"}, {"BirthDate", "12"}, {"BirthYear", "1980"}, {"Phone", "555 1234"}});
    AddPerson("Bob", "Brown");
    Open();
    Click(kEdit);
  }

  // What has the focus gets the key.
  static void Strike(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    QTest::keyClick(Page().window()->focusWidget(), key, modifiers);
  }
  static void Strike(const QString& box, const Stroke& stroke)
  {
    QKeyEvent event(QEvent::KeyPress, Qt::Key_unknown, stroke.modifiers, stroke.text);
    QCoreApplication::sendEvent(&Control(box), &event);
  }
  // A key that is held down comes again and again.
  static void Hold(QWidget& widget, Qt::Key key)
  {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QStringLiteral("\r"), true);
    QCoreApplication::sendEvent(&widget, &event);
  }

  void ExpectUnchangedByAnEdit(int person)
  {
    Open(person);
    const auto before = People();
    const auto bytes = Bytes();
    Click(kEdit);
    Click(kFinishEdit);
    EXPECT_FALSE(IsShown("fraEdit"));
    EXPECT_EQ(People(), before);
    EXPECT_EQ(Bytes(), bytes);
  }
  [[nodiscard]] std::vector<std::string> Bytes() const
  {
    return Dump("SELECT hex(Street), hex(City), hex(Email), hex(Notes) FROM People ORDER BY PeopleID");
  }
};

}

TEST_F(EditorKeyDetails, TabGoesThroughAllBoxesToTheFinish)
{
  const QStringList path = {"txtFirst",     "txtLast",      "txtStreet", "txtSecondAddress", "txtCity",
                            "txtProv",      "txtCountry",   "txtPostal", "txtPhone",         "txtMobile",
                            "txtBus",       "txtEmail",     "txtNotes",  "cboSex",           "cboBirthMonth",
                            "cboBirthYear", "cboBirthDate", "cboStreet", kFinishAdd};
  AddPerson("Ann", "Adams");
  Open();
  Click(kAdd);
  ASSERT_TRUE(HasFocus(path.first()));
  for (qsizetype i = 1; i < path.size(); ++i) {
    Strike(Qt::Key_Tab);
    EXPECT_EQ(Focus(), path[i].toStdString()) << "from " << path[i - 1].toStdString();
  }
}

TEST_F(EditorKeyDetails, AFullBoxThrowsAwayEveryKindOfCharacter)
{
  const std::vector<Stroke> strokes = {{"Alt+y", Qt::AltModifier, "y"},
                                       {"an emoji", Qt::NoModifier, QStringLiteral("😀")},
                                       {"a joiner", Qt::NoModifier, QStringLiteral("\u200D")}};
  OpenForEntry();
  for (const Stroke& stroke : strokes) {
    Type("txtCity", kThirty.left(29));
    Strike("txtCity", stroke);
    EXPECT_EQ(Shown("txtCity"), (kThirty.left(29) + stroke.text).toStdString()) << stroke.what;
    Type("txtCity", kThirty);
    Strike("txtCity", stroke);
    EXPECT_EQ(Shown("txtCity"), kThirty.toStdString()) << stroke.what;
  }
}

TEST_F(EditorKeyDetails, BackspaceWithShiftShortensADate)
{
  OpenForEntry();
  Control("cboBirthMonth").setFocus();
  Press("cboBirthMonth", Qt::Key_End);
  Press("cboBirthMonth", Qt::Key_Backspace, Qt::ShiftModifier);
  EXPECT_EQ(Shown("cboBirthMonth"), "Ma");
}

TEST_F(EditorKeyDetails, AnEditWithoutAChangeKeepsTheEndsOfLinesInTheNotes)
{
  ExpectUnchangedByAnEdit(AddPerson("Ann", "Adams", {{"Notes", "a\r\n\tb\r\n\r\nc\td\r\n"}}));
}

TEST_F(EditorKeyDetails, AnEditWithoutAChangeKeepsALoneTab)
{
  ExpectUnchangedByAnEdit(AddPerson("Ann", "Adams", {{"Notes", "\t"}, {"Street", "\t"}, {"Email", "\t"}}));
}

TEST_F(EditorKeyDetails, AnEditWithoutAChangeKeepsAnUnbreakableBlank)
{
  const QString blank = QStringLiteral("\u00A0");
  ExpectUnchangedByAnEdit(AddPerson("Ann", "Adams", {{"City", blank}, {"Notes", blank}}));
}

TEST_F(EditorKeyDetails, BackspaceShortensADateReachedByEnter)
{
  OpenForEntry();
  Control("txtPostal").setFocus();
  for (const auto& [box, text] : {std::pair("cboBirthMonth", "Ma"), {"cboBirthDate", "1"}, {"cboBirthYear", "198"}}) {
    Strike(Qt::Key_Return);
    ASSERT_TRUE(HasFocus(box)) << box;
    Strike(Qt::Key_Backspace);
    EXPECT_EQ(Shown(box), text) << box;
  }
}

TEST_F(EditorKeyDetails, AHomePhoneReachedByEnterIsTypedAnew)
{
  OpenForEntry();
  Control("cboSex").setFocus();
  Strike(Qt::Key_Return);
  ASSERT_TRUE(HasFocus("txtPhone"));
  QTest::keyClicks(Page().window()->focusWidget(), "99");
  EXPECT_EQ(Shown("txtPhone"), "99");
}

TEST_F(EditorKeyDetails, AHeldEnterPressesNoCommand)
{
  AddPerson("Ann", "Adams");
  Open();
  for (const QString& command : {kAdd, kEdit, kDelete, kSearch, kAnniversary, kMain}) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
      Control(command).setFocus();
      Hold(Control(command), key);
      ASSERT_TRUE(IsOpen()) << command.toStdString();
      EXPECT_FALSE(IsShown("fraAdd")) << command.toStdString();
      EXPECT_FALSE(IsShown("fraEdit")) << command.toStdString();
    }
  }
  EXPECT_EQ(boxes.Count(), 0U);
  EXPECT_EQ(questions.Count(), 0U);
  Press(kAdd, Qt::Key_Return);
  EXPECT_TRUE(IsShown("fraAdd"));
}

TEST_F(EditorKeyDetails, AHeldEnterDoesNotAnswerTheQuestionOfTheDelete)
{
  AddPerson("Ann", "Adams");
  Open();
  int held = 0;
  AtMessageBox atBox([&] {
    QTimer::singleShot(0, qApp, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      for (QWidget* widget : {static_cast<QWidget*>(box->button(QMessageBox::Yes)), static_cast<QWidget*>(box)}) {
        Hold(*widget, Qt::Key_Return);
        EXPECT_TRUE(box->isVisible()) << widget->metaObject()->className();
        ++held;
      }
    });
  });
  boxes.Expect(kDeleteQuestion, QMessageBox::Yes | QMessageBox::No, QMessageBox::No, "Delete Record");
  Control(kDelete).setFocus();
  Press(kDelete, Qt::Key_Return);
  EXPECT_EQ(held, 2);
  EXPECT_EQ(Stored(1, "FirstName"), "Ann");
}
