// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Command.h"
#include "platform/InputBox.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

const QString kPrompt = QStringLiteral("Enter the full name to be found");
const QString kTitle = QStringLiteral("Search");

// Lets `act` answer the box that asks, and closes it if that does not; what was answered.
QString Answer(const std::function<void(QDialog& box, QLineEdit& line)>& act, const QString& prompt = kPrompt,
               const QString& title = kTitle)
{
  bool seen = false;
  QTimer::singleShot(0, qApp, [&] {
    QWidget* widget = QApplication::activeModalWidget();
    auto* box = qobject_cast<QDialog*>(widget);
    auto* line = box != nullptr ? box->findChild<QLineEdit*>() : nullptr;
    if (line != nullptr) {
      seen = true;
      act(*box, *line);
    }
    if (widget != nullptr && widget->isVisible()) {
      ADD_FAILURE() << "the box was not answered";
      widget->close();
    }
  });
  const QString answer = InputBox(prompt, title);
  EXPECT_TRUE(seen);
  return answer;
}

void Type(QLineEdit& line, const QString& text)
{
  line.insert(text);
}

}

TEST(InputBox, AsksItsQuestionUnderItsTitle)
{
  Answer([](QDialog& box, QLineEdit& line) {
    EXPECT_EQ(box.windowTitle().toStdString(), kTitle.toStdString());
    const QList<QLabel*> labels = box.findChildren<QLabel*>();
    ASSERT_EQ(labels.size(), 1);
    EXPECT_EQ(labels.front()->text().toStdString(), kPrompt.toStdString());
    EXPECT_TRUE(box.isModal());
    EXPECT_TRUE(line.text().isEmpty());
    EXPECT_EQ(line.echoMode(), QLineEdit::Normal);
    box.reject();
  });
}

TEST(InputBox, AnswersWithTheTextAsItWasTyped)
{
  for (const QString text : {"Smith, Ann", " Ann ", "é 茶 🎂", "O'Neill \"Bob\"", "<b>Ann</b>", "\u00a0"}) {
    EXPECT_EQ(Answer([&](QDialog& box, QLineEdit& line) {
                Type(line, text);
                box.accept();
              }),
              text)
        << text.toStdString();
  }
}

TEST(InputBox, IsAnsweredByKeyboard)
{
  const auto typeAndPress = [](Qt::Key key) {
    return Answer([=](QDialog& box, QLineEdit& line) {
      QTest::keyClicks(&line, QStringLiteral("Ann"));
      QTest::keyClick(key == Qt::Key_Escape ? static_cast<QWidget*>(&box) : &line, key);
    });
  };
  EXPECT_EQ(typeAndPress(Qt::Key_Return), QStringLiteral("Ann"));
  EXPECT_EQ(typeAndPress(Qt::Key_Enter), QStringLiteral("Ann"));
  EXPECT_EQ(typeAndPress(Qt::Key_Escape), QString());
}

TEST(InputBox, WithoutAnAnswerGivesTheEmptyText)
{
  EXPECT_EQ(Answer([](QDialog& box, QLineEdit& line) {
              Type(line, QStringLiteral("Ann"));
              box.reject();
            }),
            QString());
  EXPECT_EQ(Answer([](QDialog& box, QLineEdit& line) {
              Type(line, QStringLiteral("Ann"));
              box.close();
            }),
            QString());
  EXPECT_EQ(Answer([](QDialog& box, QLineEdit&) { box.accept(); }), QString());
}

TEST(InputBox, DoesNotRememberTheLastAnswer)
{
  Answer([](QDialog& box, QLineEdit& line) {
    Type(line, QStringLiteral("Ann"));
    box.accept();
  });
  EXPECT_EQ(Answer([](QDialog& box, QLineEdit&) { box.accept(); }), QString());
}

TEST(InputBox, TakesAVeryLongLine)
{
  const QString text(10'000, u'n');
  EXPECT_EQ(Answer([&](QDialog& box, QLineEdit& line) {
              Type(line, text);
              box.accept();
            }).size(),
            text.size());
}

TEST(InputBox, IsAPauseInTheRunningCommand)
{
  class Writer : public Command::Participant
  {
  public:
    ~Writer() override { Command::Withdraw(*this); }
    void Settle() override { ++settled; }
    void Abandon() noexcept override {}
    int settled = 0;
  } writer;

  Command::Run([&] {
    const long serial = Command::Serial();
    Command::Enlist(writer);
    Answer([&](QDialog& box, QLineEdit&) {
      EXPECT_EQ(writer.settled, 1);
      EXPECT_NE(Command::Serial(), serial);
      box.accept();
    });
    EXPECT_TRUE(Command::IsRunning());
  });
  EXPECT_EQ(writer.settled, 1);
}
