// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Command.h"
#include "platform/MsgBox.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <functional>
#include <optional>

namespace {

// Answers the message box that `show` opens by `act`, and fails if there is none.
MsgBoxAnswer Answer(const std::function<MsgBoxAnswer()>& show, const std::function<void(QMessageBox&)>& act)
{
  bool seen = false;
  QTimer::singleShot(0, qApp, [&] {
    QWidget* widget = QApplication::activeModalWidget();
    auto* box = qobject_cast<QMessageBox*>(widget);
    if (box != nullptr) {
      seen = true;
      act(*box);
    }
    if (widget != nullptr && widget->isVisible()) {
      widget->close();
    }
  });
  const MsgBoxAnswer answer = show();
  EXPECT_TRUE(seen);
  return answer;
}

void PressEscape(QMessageBox& box)
{
  QTest::keyClick(&box, Qt::Key_Escape);
}

std::function<void(QMessageBox&)> Clicking(QMessageBox::StandardButton button)
{
  return [button](QMessageBox& box) {
    QAbstractButton* widget = box.button(button);
    ASSERT_NE(widget, nullptr);
    QTest::mouseClick(widget, Qt::LeftButton);
  };
}

}

TEST(MsgBox, ShowsItsTextUnderTheProgramsName)
{
  Answer([] { return MsgBox("The file is in use."); },
         [](QMessageBox& box) {
           EXPECT_EQ(box.windowTitle(), "Quillmark");
           EXPECT_EQ(box.text(), "The file is in use.");
           EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
           EXPECT_TRUE(box.isModal());
         });
}

TEST(MsgBox, ShowsAnotherTitle)
{
  Answer([] { return MsgBox("Sure?", MsgBoxButtons::kYesNo, "Delete"); },
         [](QMessageBox& box) { EXPECT_EQ(box.windowTitle(), "Delete"); });
}

TEST(MsgBox, ShowsItsTextLetterByLetter)
{
  for (const QString text : {"<b>Ann</b> & <i>Bob</i>", "two\nlines", "&Save", "é 茶 🎂", ""}) {
    Answer([&] { return MsgBox(text); },
           [&](QMessageBox& box) {
             EXPECT_EQ(box.text(), text);
             EXPECT_EQ(box.textFormat(), Qt::PlainText);
           });
  }
}

TEST(MsgBox, HasTheButtonsAskedFor)
{
  const struct
  {
    MsgBoxButtons buttons;
    QMessageBox::StandardButtons expected;
  } kCases[] = {
      {MsgBoxButtons::kOk, QMessageBox::Ok},
      {MsgBoxButtons::kOkCancel, QMessageBox::Ok | QMessageBox::Cancel},
      {MsgBoxButtons::kYesNo, QMessageBox::Yes | QMessageBox::No},
  };
  for (const auto& [buttons, expected] : kCases) {
    Answer([&] { return MsgBox("Sure?", buttons); },
           [&](QMessageBox& box) { EXPECT_EQ(box.standardButtons(), expected); });
  }
}

TEST(MsgBox, AnswersWithTheButtonThatIsClicked)
{
  const struct
  {
    MsgBoxButtons buttons;
    QMessageBox::StandardButton clicked;
    MsgBoxAnswer answer;
  } kCases[] = {
      {MsgBoxButtons::kOk, QMessageBox::Ok, MsgBoxAnswer::kOk},
      {MsgBoxButtons::kOkCancel, QMessageBox::Ok, MsgBoxAnswer::kOk},
      {MsgBoxButtons::kOkCancel, QMessageBox::Cancel, MsgBoxAnswer::kCancel},
      {MsgBoxButtons::kYesNo, QMessageBox::Yes, MsgBoxAnswer::kYes},
      {MsgBoxButtons::kYesNo, QMessageBox::No, MsgBoxAnswer::kNo},
  };
  for (const auto& [buttons, clicked, answer] : kCases) {
    EXPECT_EQ(Answer([&] { return MsgBox("Sure?", buttons); }, Clicking(clicked)), answer) << clicked;
  }
}

TEST(MsgBox, EscapeAndClosingAreTheSafeAnswer)
{
  const struct
  {
    MsgBoxButtons buttons;
    MsgBoxAnswer answer;
  } kCases[] = {
      {MsgBoxButtons::kOk, MsgBoxAnswer::kOk},
      {MsgBoxButtons::kOkCancel, MsgBoxAnswer::kCancel},
      {MsgBoxButtons::kYesNo, MsgBoxAnswer::kNo},
  };
  for (const auto& [buttons, answer] : kCases) {
    EXPECT_EQ(Answer([&] { return MsgBox("Sure?", buttons); }, PressEscape), answer);
    EXPECT_EQ(Answer([&] { return MsgBox("Sure?", buttons); }, [](QMessageBox& box) { box.close(); }), answer);
  }
}

TEST(MsgBox, StandsOverTheActiveWindow)
{
  QWidget window;
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  Answer([] { return MsgBox("Sure?"); }, [&](QMessageBox& box) { EXPECT_EQ(box.parentWidget(), &window); });
}

TEST(MsgBox, StandsOverAnotherMessageBox)
{
  std::optional<MsgBoxAnswer> inner;
  const MsgBoxAnswer outer = Answer([] { return MsgBox("First?", MsgBoxButtons::kYesNo); },
                                    [&](QMessageBox& first) {
                                      inner = Answer([] { return MsgBox("Second?", MsgBoxButtons::kOkCancel); },
                                                     [&](QMessageBox& second) {
                                                       EXPECT_NE(&second, &first);
                                                       EXPECT_EQ(second.text(), "Second?");
                                                       PressEscape(second);
                                                     });
                                      EXPECT_TRUE(first.isVisible());
                                      Clicking(QMessageBox::Yes)(first);
                                    });
  EXPECT_EQ(inner, MsgBoxAnswer::kCancel);
  EXPECT_EQ(outer, MsgBoxAnswer::kYes);
}

TEST(MsgBox, IsAPauseInTheRunningCommand)
{
  class Writer : public Command::Participant
  {
  public:
    void Settle() override { ++settled; }
    void Abandon() noexcept override {}
    int settled = 0;
  } writer;

  Command::Run([&] {
    const long serial = Command::Serial();
    Command::Enlist(writer);
    Answer([] { return MsgBox("Saved."); },
           [&](QMessageBox&) {
             EXPECT_EQ(writer.settled, 1);
             EXPECT_NE(Command::Serial(), serial);
           });
    EXPECT_TRUE(Command::IsRunning());
    Command::Enlist(writer);
    EXPECT_EQ(writer.settled, 1);
  });
  EXPECT_EQ(writer.settled, 2);
}
