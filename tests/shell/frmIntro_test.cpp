// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ShellTest.h"

#include <QTimer>

namespace {

const std::pair<const char*, const char*> kCaptionsAndTips[] = {
    {" Find personal information", "Find addresses, phone numbers, birthdays..."},
    {" View birthdays and anniversaries by month", "Birthdays and wedding anniversaries by month"},
    {" Make charts ", "Graphical presentation of your records"},
    {" Open calendar", "Monthly calendar of your important events"},
    {" Exit program", "Close Quillmark"},
    {" Check for event reminders", "Check for birthday, anniversary, or calendar event reminders"},
};

class MainPageTest : public ShellTest
{
protected:
  static Label& Command(int index)
  {
    return static_cast<Label&>(Drive::Control(MainPage(), QStringLiteral("lblOptions_%1").arg(index)));
  }

  static QTimer& Timer() { return *MainPage().findChild<QTimer*>("tmrTimer"); }

  // Which of the circles 4 to 11 show.
  static int CirclesShown()
  {
    int shown = 0;
    for (int circle = 4; circle <= 11; ++circle) {
      shown += Drive::Control(MainPage(), QStringLiteral("shpOne_%1").arg(circle)).isVisibleTo(&MainPage()) ? 1 : 0;
    }
    return shown;
  }

  static void Tick(int times)
  {
    for (int i = 0; i < times; ++i) {
      QMetaObject::invokeMethod(&MainPage(), "tmrTimer_Timer");
    }
  }
};

}

TEST_F(MainPageTest, CommandsHaveTheirCaptionsAndTips)
{
  Start();
  EXPECT_EQ(MainPage().windowTitle(), QStringLiteral("Main page"));
  for (int index = 0; index < 6; ++index) {
    EXPECT_EQ(Command(index).text().toStdString(), kCaptionsAndTips[index].first);
    EXPECT_EQ(Command(index).toolTip().toStdString(), kCaptionsAndTips[index].second);
  }
}

TEST_F(MainPageTest, TheProgramsNameAndItsMottoStandInTimesNewRomanOnTheLeft)
{
  Start();
  for (const auto& [name, text] :
       {std::pair("lblQuillmark", "Quillmark"), std::pair("lblPeople", "the people you keep in mind")}) {
    const auto& label = static_cast<Label&>(Drive::Control(MainPage(), name));
    EXPECT_EQ(label.text().toStdString(), text);
    EXPECT_EQ(label.font().family(), QStringLiteral("Times New Roman")) << name;
    EXPECT_LT(label.geometry().center().x(), MainPage().width() / 2) << name;
    EXPECT_TRUE(label.isVisible()) << name;
  }
}

TEST_F(MainPageTest, ThePageTakesItsThemeAtItsLoad)
{
  LayThemes();
  const struct
  {
    int theme;
    const char* picture;
    const char* colour;
  } cases[] = {{0, "snowboardw.jpg", "#ffffff"}, {1, "flowersw.jpg", "#ffffff"}, {2, "guitarw.jpg", "#ffffff"},
               {3, "butterflyw.jpg", "#ffffff"}, {4, nullptr, "#ffffff"},        {5, nullptr, "#fff9e9"}};
  for (const auto& [theme, picture, colour] : cases) {
    SCOPED_TRACE(theme);
    Set(QStringLiteral("Theme=%1").arg(theme));
    Start();
    EXPECT_EQ(PictureIn(MainPage(), "imgTheme"), ThemePicture(picture));
    EXPECT_EQ(MainPage().BackColor().name().toStdString(), colour);
    frame->Unload();
    frame.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

TEST_F(MainPageTest, WithTipsOffNoControlHasOne)
{
  Set("ToolTips=1");
  Start();
  for (const QWidget* control : MainPage().Controls()) {
    EXPECT_EQ(control->toolTip(), QString()) << control->objectName().toStdString();
  }
}

TEST_F(MainPageTest, EveryCommandIsEnabled)
{
  Start();
  for (int index = 0; index < 6; ++index) {
    EXPECT_TRUE(Command(index).isEnabled()) << index;
  }
}

TEST_F(MainPageTest, CommandsOpenTheirPages)
{
  const char* const pages[] = {"frmQuillmark", "frmSpecial", "frmCharts", "frmReminders"};
  for (const char* page : pages) {
    RegisterPage(page);
  }
  Start();
  for (int index = 0; index < 4; ++index) {
    Drive::MoveOver(MainPage(), Command(index).objectName());
    EXPECT_EQ(Command(index).BackStyle(), Label::kOpaque);
    QTest::mouseClick(&Command(index), Qt::LeftButton);
    ASSERT_NE(Forms::Loaded(pages[index]), nullptr);
    EXPECT_TRUE(Forms::Loaded(pages[index])->isVisible());
    EXPECT_FALSE(MainPage().isVisible());
    EXPECT_EQ(Command(index).BackStyle(), Label::kTransparent) << "not lit when the page comes back";
    Forms::Unload(pages[index]);
    MainPage().Show();
  }
}

TEST_F(MainPageTest, CommandsArePressedByKeyboard)
{
  RegisterPage("frmQuillmark");
  Start();
  Command(0).setFocus(Qt::TabFocusReason);
  QTest::keyClick(&Command(0), Qt::Key_Return);
  EXPECT_NE(Forms::Loaded("frmQuillmark"), nullptr);
}

TEST_F(MainPageTest, ExitEndsTheProgram)
{
  Start();
  QTest::mouseClick(&Command(4), Qt::LeftButton);
  EXPECT_TRUE(frame->HasEnded());
  EXPECT_EQ(Option("WindowState"), 0);
}

TEST_F(MainPageTest, CheckForEventRemindersStartsWithTheFirstClip)
{
  Start();
  modTextNotices::ClipIndex = 2;
  bool seen = false;
  Drive::WhenShown("frmTextNotice", [&](QWidget& form) {
    seen = true;
    EXPECT_EQ(modTextNotices::ClipIndex, 0);
    EXPECT_TRUE(MainPage().isVisible()) << "the page stays";
    Drive::Click(form, "lblOptions_0");
  });
  QTest::mouseClick(&Command(5), Qt::LeftButton);
  EXPECT_TRUE(seen);
}

TEST_F(MainPageTest, CirclesComeUpOneByOneFromTheFourthTick)
{
  Start();
  EXPECT_EQ(Timer().interval(), 100);
  EXPECT_TRUE(Timer().isActive());
  Timer().stop();
  EXPECT_EQ(CirclesShown(), 0);
  Tick(3);
  EXPECT_EQ(CirclesShown(), 0);
  for (int shown = 1; shown <= 8; ++shown) {
    Tick(1);
    EXPECT_EQ(CirclesShown(), shown);
  }
  Timer().start();
  Tick(1);
  EXPECT_FALSE(Timer().isActive()) << "for good";
  EXPECT_EQ(CirclesShown(), 8);
}

TEST_F(MainPageTest, MinimisedTheCirclesWait)
{
  folder.Execute("INSERT INTO People (FirstName, BirthMonth, BirthDate) VALUES ('Ann', 'May', '5')");
  Start();
  Timer().stop();
  Tick(20);
  EXPECT_EQ(CirclesShown(), 0);
  Drive::Click(*Forms::Loaded("frmTextNotice"), "lblOptions_0");
  Tick(4);
  EXPECT_EQ(CirclesShown(), 1);
}

TEST_F(MainPageTest, CirclesStayOnLaterReturns)
{
  RegisterPage("frmQuillmark");
  Start();
  Tick(12);
  QTest::mouseClick(&Command(0), Qt::LeftButton);
  Forms::Unload("frmQuillmark");
  MainPage().Show();
  EXPECT_EQ(CirclesShown(), 8);
}

TEST_F(MainPageTest, CirclesGrowFromTheTopRightCornerTowardTheMiddle)
{
  Start();
  for (int circle = 5; circle <= 11; ++circle) {
    const QRect before = Drive::Control(MainPage(), QStringLiteral("shpOne_%1").arg(circle - 1)).geometry();
    const QRect after = Drive::Control(MainPage(), QStringLiteral("shpOne_%1").arg(circle)).geometry();
    EXPECT_GT(after.width(), before.width());
    EXPECT_LT(after.center().x(), before.center().x());
    EXPECT_GT(after.center().y(), before.center().y());
  }
}

TEST_F(MainPageTest, ThePageFillsTheFrameAndScalesWithIt)
{
  Start();
  frame->resize(1536, 1100);
  QCoreApplication::processEvents();
  EXPECT_EQ(MainPage().size(), frame->centralWidget()->size());
  const QRect picture = Drive::Control(MainPage(), "imgTheme").geometry();
  EXPECT_NEAR(picture.left() * 744.0 / MainPage().width(), 392, 1);
  EXPECT_NEAR(picture.height() * 529.0 / MainPage().height(), 320, 1);
}

TEST_F(MainPageTest, APageSizedWhileMinimisedIsFittedWhenTheFrameComesBack)
{
  folder.Execute("INSERT INTO People (FirstName, BirthMonth, BirthDate) VALUES ('Ann', 'May', '5')");
  Start();
  Drive::Click(*Forms::Loaded("frmTextNotice"), "lblOptions_0");
  QCoreApplication::processEvents();
  const QRect picture = Drive::Control(MainPage(), "imgTheme").geometry();
  EXPECT_NEAR(picture.left() * 744.0 / MainPage().width(), 392, 1);
}
