// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "RemindersTest.h"

namespace {

class RemindersKeys : public RemindersTest
{
protected:
  static void Press(Qt::Key key)
  {
    QWidget* focus = Page().window()->focusWidget();
    QTest::keyClick(focus == nullptr ? &Page() : focus, key);
  }
  static void FocusOn(const QString& name)
  {
    Control(name).setFocus(Qt::TabFocusReason);
    ASSERT_EQ(Focus(), name.toStdString());
  }
  static std::string Focus()
  {
    const QWidget* widget = Page().window()->focusWidget();
    return widget == nullptr ? std::string() : widget->objectName().toStdString();
  }
};

}

TEST_F(RemindersKeys, PageDownAndPageUpStepByMonths)
{
  Open();
  Press(Qt::Key_PageDown);
  ExpectMonth(2026, 6);
  Press(Qt::Key_PageUp);
  Press(Qt::Key_PageUp);
  ExpectMonth(2026, 4);
}

TEST_F(RemindersKeys, PageDownAndPageUpStepFromADay)
{
  AddEvent("2026-05-12", "Dentist");
  Open();
  ClickEvent(16);
  FocusOn("lblDay_16");
  Press(Qt::Key_PageDown);
  ExpectMonth(2026, 6);
  EXPECT_FALSE(DetailsShown());
  Press(Qt::Key_PageUp);
  ExpectMonth(2026, 5);
}

TEST_F(RemindersKeys, TheArrowsGoFromDayToDay)
{
  Open();
  FocusOn("lblDay_16");
  Press(Qt::Key_Right);
  EXPECT_EQ(Focus(), "lblDay_17");
  Press(Qt::Key_Down);
  EXPECT_EQ(Focus(), "lblDay_24");
  Press(Qt::Key_Left);
  EXPECT_EQ(Focus(), "lblDay_23");
  Press(Qt::Key_Up);
  EXPECT_EQ(Focus(), "lblDay_16");
}

TEST_F(RemindersKeys, TheArrowsGoOnFromOneWeekToTheNext)
{
  Open();
  FocusOn("lblDay_20");
  Press(Qt::Key_Right);
  EXPECT_EQ(Focus(), "lblDay_21");
  Press(Qt::Key_Left);
  EXPECT_EQ(Focus(), "lblDay_20");
}

TEST_F(RemindersKeys, TheArrowsNeverLeaveTheDaysThatShow)
{
  Open();
  for (const auto& [start, key] : {std::pair{5, Qt::Key_Left},
                                   {5, Qt::Key_Up},
                                   {35, Qt::Key_Right},
                                   {35, Qt::Key_Down},
                                   {11, Qt::Key_Up},
                                   {29, Qt::Key_Down}}) {
    FocusOn(Element("lblDay", start));
    Press(key);
    const std::string focus = Focus();
    EXPECT_EQ(focus.rfind("lblDay_", 0), 0U) << focus;
    EXPECT_TRUE(IsShown(QString::fromStdString(focus))) << focus;
  }
}

TEST_F(RemindersKeys, EnterAndSpaceOpenTheEditorOfADay)
{
  Open();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    FocusOn("lblDay_18");
    modCalVariables::CalSelectedDate = {};
    WithModal("frmCalEdit", [=] { Press(key); });
    EXPECT_EQ(modCalVariables::CalSelectedDate, QDate(2026, 5, 14));
    EXPECT_EQ(modCalVariables::CalDateText.toStdString(), "May 14, 2026");
    EXPECT_EQ(modCalVariables::CalCellIndex, 18);
  }
}

TEST_F(RemindersKeys, EscapeClosesTheDetailsAndTheLists)
{
  AddEvent("2026-05-12", "Dentist");
  Open();
  ClickEvent(16);
  ASSERT_TRUE(DetailsShown());
  Press(Qt::Key_Escape);
  EXPECT_FALSE(DetailsShown());
  Click("lblMonth");
  Click("lblYear");
  Press(Qt::Key_Escape);
  EXPECT_FALSE(IsShown("lstMonth"));
  EXPECT_FALSE(IsShown("lstYear"));
  EXPECT_TRUE(IsOpen());
  Press(Qt::Key_Escape);
  EXPECT_TRUE(IsOpen());
  ExpectMonth(2026, 5);
}

TEST_F(RemindersKeys, EscapeClosesTheDetailsFromWithinThem)
{
  AddEvent("2026-05-12", "Dentist");
  Open();
  ClickEvent(16);
  Control("txtNotesDisplay").setFocus();
  Press(Qt::Key_Escape);
  EXPECT_FALSE(DetailsShown());
}

TEST_F(RemindersKeys, EscapeClosesAListFromWithinIt)
{
  Open();
  for (const auto& [label, list] : {std::pair{"lblMonth", "lstMonth"}, {"lblYear", "lstYear"}}) {
    Click(label);
    Control(list).setFocus();
    Press(Qt::Key_Escape);
    EXPECT_FALSE(IsShown(list)) << list;
  }
}

TEST_F(RemindersKeys, TheCommandsArePressedByEnterAndSpace)
{
  Open();
  FocusOn("lblOptions_0");
  Press(Qt::Key_Return);
  ExpectMonth(2026, 6);
  FocusOn("lblOptions_1");
  Press(Qt::Key_Space);
  ExpectMonth(2026, 5);
  FocusOn("lblMonth");
  Press(Qt::Key_Return);
  EXPECT_TRUE(IsShown("lstMonth"));
}

TEST_F(RemindersKeys, TabGoesFromADayToItsEventsAndOn)
{
  AddEvent("2026-05-12", "Dentist");
  Open();
  FocusOn("lblDay_15");
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focus(), "lblDay_16");
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focus(), "lstReminders_16");
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focus(), "lblDay_17");
}

TEST_F(RemindersKeys, TheFocusIsNotLostWithTheDayThatIsHidden)
{
  OpenOn(QDate(2026, 8, 10));
  FocusOn("lblDay_36");
  Press(Qt::Key_PageDown);
  ExpectMonth(2026, 9);
  const std::string focus = Focus();
  EXPECT_FALSE(focus.empty());
  Press(Qt::Key_PageDown);
  ExpectMonth(2026, 10);
}

TEST_F(RemindersKeys, PageDownStepsFromTheEventJustClicked)
{
  AddEvent("2026-05-12", "Dentist");
  Open();
  ClickEvent(16);
  Press(Qt::Key_PageDown);
  ExpectMonth(2026, 6);
  EXPECT_FALSE(DetailsShown());
}

TEST_F(RemindersKeys, AListClosedByItsLabelDoesNotKeepTheKeyboard)
{
  Open();
  for (const char* label : {"lblMonth", "lblYear"}) {
    Click(label);
    Click(label);
    ASSERT_NE(Page().window()->focusWidget(), nullptr) << label;
    EXPECT_TRUE(IsShown(*Page().window()->focusWidget())) << label << " " << Focus();
  }
  Press(Qt::Key_PageDown);
  ExpectMonth(2026, 6);
}
