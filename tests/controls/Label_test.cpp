// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/Label.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

namespace {

const QColor kAround = Qt::white;
const QColor kBack(0xFF, 0xF1, 0xCE);

int CountOf(const QImage& image, const QColor& color)
{
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      count += image.pixelColor(x, y) == color ? 1 : 0;
    }
  }
  return count;
}

// A label of 120 by 30 pixels in the middle of a white window of 200 by 100.
class LabelTest : public testing::Test
{
protected:
  LabelTest()
  {
    QPalette palette;
    palette.setColor(QPalette::Window, kAround);
    window_.setPalette(palette);
    window_.resize(200, 100);
    label_.setGeometry(40, 30, 120, 30);
    label_.SetBackColor(kBack);
  }

  void MakeCommand() { label_.SetRole(QStringLiteral("command")); }

  void Show()
  {
    window_.show();
    window_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  }

  QColor At(int x, int y) { return window_.grab().toImage().pixelColor(x, y); }
  QColor Middle() { return At(100, 45); }

  QWidget window_;
  Label label_{&window_};
  QSignalSpy clicks_{&label_, &Label::Click};
};

}

TEST_F(LabelTest, IsClickedByTheLeftButtonPressedAndLetGoInside)
{
  struct Case
  {
    const char* what;
    Qt::MouseButton button;
    QPoint press;
    QPoint release;
    int clicks;
  };
  const std::vector<Case> cases = {
      {"left, inside", Qt::LeftButton, {60, 15}, {10, 5}, 1},
      {"left, at the corners", Qt::LeftButton, {0, 0}, {119, 29}, 1},
      {"left, let go beside", Qt::LeftButton, {60, 15}, {130, 15}, 0},
      {"left, let go below", Qt::LeftButton, {60, 15}, {60, 30}, 0},
      {"left, let go above", Qt::LeftButton, {60, 15}, {60, -1}, 0},
      {"right, inside", Qt::RightButton, {60, 15}, {60, 15}, 0},
      {"middle, inside", Qt::MiddleButton, {60, 15}, {60, 15}, 0},
  };
  for (const bool isCommand : {false, true}) {
    label_.SetRole(isCommand ? QStringLiteral("command") : QString());
    for (const Case& c : cases) {
      clicks_.clear();
      QTest::mousePress(&label_, c.button, {}, c.press);
      EXPECT_EQ(clicks_.count(), 0) << c.what;
      QTest::mouseRelease(&label_, c.button, {}, c.release);
      EXPECT_EQ(clicks_.count(), c.clicks) << c.what << (isCommand ? ", command" : ", text");
    }
  }
}

TEST_F(LabelTest, ButtonPressedElsewhereAndLetGoInsideIsNoClick)
{
  QTest::mouseRelease(&label_, Qt::LeftButton, {}, QPoint(60, 15));
  EXPECT_EQ(clicks_.count(), 0);
  QTest::mousePress(&label_, Qt::LeftButton, {}, QPoint(60, 15));
  QTest::mouseRelease(&label_, Qt::LeftButton, {}, QPoint(300, 15));
  QTest::mouseRelease(&label_, Qt::LeftButton, {}, QPoint(60, 15));
  EXPECT_EQ(clicks_.count(), 0);
}

TEST_F(LabelTest, CommandIsPressedByKeys)
{
  struct Case
  {
    Qt::Key key;
    int clicks;
  };
  const std::vector<Case> cases = {
      {Qt::Key_Space, 1}, {Qt::Key_Return, 1}, {Qt::Key_Enter, 1}, {Qt::Key_Escape, 0},
      {Qt::Key_A, 0},     {Qt::Key_Down, 0},   {Qt::Key_F1, 0},
  };
  for (const Case& c : cases) {
    MakeCommand();
    clicks_.clear();
    QTest::keyClick(&label_, c.key);
    EXPECT_EQ(clicks_.count(), c.clicks) << c.key;

    label_.SetRole(QStringLiteral("heading"));
    clicks_.clear();
    QTest::keyClick(&label_, c.key);
    EXPECT_EQ(clicks_.count(), 0) << c.key << " on a plain text";
  }
}

TEST_F(LabelTest, DisabledLabelIsNotPressed)
{
  MakeCommand();
  label_.setEnabled(false);
  QTest::mouseClick(&label_, Qt::LeftButton);
  QTest::keyClick(&label_, Qt::Key_Space);
  QTest::keyClick(&label_, Qt::Key_Return);
  EXPECT_EQ(clicks_.count(), 0);
  label_.setEnabled(true);
  QTest::mouseClick(&label_, Qt::LeftButton);
  QTest::keyClick(&label_, Qt::Key_Return);
  EXPECT_EQ(clicks_.count(), 2);
}

TEST_F(LabelTest, LabelDisabledBetweenPressAndReleaseIsNotPressed)
{
  QTest::mousePress(&label_, Qt::LeftButton);
  label_.setEnabled(false);
  QTest::mouseRelease(&label_, Qt::LeftButton);
  EXPECT_EQ(clicks_.count(), 0);
  label_.setEnabled(true);
  QTest::mouseClick(&label_, Qt::LeftButton);
  EXPECT_EQ(clicks_.count(), 1);
}

TEST_F(LabelTest, OnlyACommandTakesTheFocus)
{
  EXPECT_FALSE(label_.IsCommand());
  EXPECT_EQ(label_.focusPolicy(), Qt::NoFocus);
  MakeCommand();
  EXPECT_TRUE(label_.IsCommand());
  EXPECT_TRUE(label_.focusPolicy() & Qt::TabFocus);
  label_.SetRole(QStringLiteral("title"));
  EXPECT_FALSE(label_.IsCommand());
  EXPECT_EQ(label_.focusPolicy(), Qt::NoFocus);
}

TEST_F(LabelTest, TabGoesFromCommandToCommand)
{
  MakeCommand();
  Label text(&window_);
  Label next(&window_);
  next.SetRole(QStringLiteral("command"));
  Show();
  label_.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&label_, Qt::Key_Tab);
  EXPECT_TRUE(next.hasFocus());
  QTest::keyClick(&next, Qt::Key_Backtab);
  EXPECT_TRUE(label_.hasFocus());
}

TEST_F(LabelTest, ClickByMouseLeavesTheFocusWhereItWas)
{
  MakeCommand();
  QLineEdit box(&window_);
  Show();
  box.setFocus();
  ASSERT_TRUE(box.hasFocus());
  QTest::mouseClick(window_.windowHandle(), Qt::LeftButton, {}, QPoint(100, 45));
  EXPECT_EQ(clicks_.count(), 1);
  EXPECT_TRUE(box.hasFocus());
}

TEST_F(LabelTest, BackColourShowsOnlyWhileOpaque)
{
  EXPECT_EQ(label_.BackStyle(), Label::kTransparent);
  EXPECT_EQ(Middle(), kAround);
  label_.SetBackStyle(Label::kOpaque);
  EXPECT_EQ(Middle(), kBack);
  EXPECT_EQ(At(20, 45), kAround);
  label_.SetBackColor(Qt::cyan);
  EXPECT_EQ(Middle(), QColor(Qt::cyan));
  label_.SetBackStyle(Label::kTransparent);
  EXPECT_EQ(Middle(), kAround);
  EXPECT_EQ(label_.BackColor(), QColor(Qt::cyan));
}

TEST_F(LabelTest, TextIsPaintedInTheForeColour)
{
  label_.setGeometry(0, 0, 200, 100);
  QFont font = label_.font();
  font.setPixelSize(60);
  font.setBold(true);
  label_.setFont(font);
  label_.setText(QStringLiteral("HHH"));
  const QColor ink(0xD1, 0x8C, 0x41);
  EXPECT_EQ(CountOf(window_.grab().toImage(), ink), 0);
  label_.SetForeColor(ink);
  EXPECT_EQ(label_.ForeColor(), ink);
  EXPECT_GT(CountOf(window_.grab().toImage(), ink), 100);
  label_.SetForeColor(Qt::blue);
  EXPECT_EQ(CountOf(window_.grab().toImage(), ink), 0);
  EXPECT_GT(CountOf(window_.grab().toImage(), Qt::blue), 100);
}

TEST_F(LabelTest, ForeColourIsThePagesUntilOneIsSet)
{
  QPalette palette = window_.palette();
  palette.setColor(QPalette::WindowText, QColor(0x80, 0x40, 0x00));
  window_.setPalette(palette);
  EXPECT_EQ(label_.ForeColor(), QColor(0x80, 0x40, 0x00));
  label_.SetForeColor(Qt::black);
  EXPECT_EQ(label_.ForeColor(), QColor(Qt::black));
}

TEST_F(LabelTest, UnderlineIsSwitched)
{
  EXPECT_FALSE(label_.FontUnderline());
  label_.SetFontUnderline(true);
  EXPECT_TRUE(label_.FontUnderline());
  EXPECT_TRUE(label_.font().underline());
  label_.SetFontUnderline(false);
  EXPECT_FALSE(label_.FontUnderline());
}

TEST_F(LabelTest, LooksAndRoleAreSetByName)
{
  label_.setProperty("BackStyle", 1);
  label_.setProperty("BackColor", QColor(Qt::cyan));
  label_.setProperty("ForeColor", QColor(Qt::blue));
  label_.setProperty("role", QStringLiteral("command"));
  EXPECT_EQ(label_.BackStyle(), Label::kOpaque);
  EXPECT_EQ(label_.BackColor(), QColor(Qt::cyan));
  EXPECT_EQ(label_.ForeColor(), QColor(Qt::blue));
  EXPECT_TRUE(label_.IsCommand());
}

TEST_F(LabelTest, FocusIsMarkedOnlyWhenItCameByKeyboard)
{
  struct Case
  {
    Qt::FocusReason reason;
    bool isMarked;
  };
  const std::vector<Case> cases = {
      {Qt::TabFocusReason, true},
      {Qt::BacktabFocusReason, true},
      {Qt::MouseFocusReason, false},
      {Qt::OtherFocusReason, false},
  };
  MakeCommand();
  QLineEdit other(&window_);
  other.setGeometry(0, 0, 30, 20);
  Show();
  for (const Case& c : cases) {
    other.setFocus();
    const QImage without = label_.grab().toImage();
    label_.setFocus(c.reason);
    ASSERT_TRUE(label_.hasFocus());
    EXPECT_EQ(label_.grab().toImage() != without, c.isMarked) << c.reason;
    other.setFocus();
    EXPECT_EQ(label_.grab().toImage(), without) << c.reason;
  }
}

TEST_F(LabelTest, FocusMarkIsSeenOnAnOpaqueCommandToo)
{
  MakeCommand();
  label_.SetBackStyle(Label::kOpaque);
  Show();
  label_.clearFocus();
  const QImage without = label_.grab().toImage();
  label_.setFocus(Qt::TabFocusReason);
  EXPECT_NE(label_.grab().toImage(), without);
}

TEST_F(LabelTest, BlanksAroundACaptionAreNotPaintedSaveInDetails)
{
  label_.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  const auto painted = [this](const char* text) {
    label_.setText(QString::fromLatin1(text));
    return window_.grab().toImage();
  };
  for (const char* role : {"heading", "caption", "title", "command"}) {
    label_.SetRole(QString::fromLatin1(role));
    const QImage plain = painted("Name");
    EXPECT_EQ(painted("  Name "), plain) << role;
    EXPECT_EQ(label_.text(), "  Name ");
  }
  label_.SetRole(QStringLiteral("details"));
  EXPECT_NE(painted("  Name"), painted("Name"));
}

TEST_F(LabelTest, RoomBesideTheCaptionOfACommandGrowsWithTheLabel)
{
  EXPECT_EQ(label_.TextInset(), 0);
  MakeCommand();
  for (const auto& [height, inset] : {std::pair(20, 8), std::pair(28, 8), std::pair(30, 8), std::pair(56, 16)}) {
    label_.resize(120, height);
    EXPECT_EQ(label_.TextInset(), inset) << height;
  }
}
