// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "RemindersTest.h"

namespace {

class RemindersLoad : public RemindersTest
{
protected:
  struct Command
  {
    const char* caption;
    const char* tip;
  };
  static constexpr std::array<Command, 4> kCommands = {{
      {"Next  >>", "Go forward one month"},
      {"<<  Previous ", "Go back one month"},
      {"<< Main", "Go back to the main page"},
      {"Print", "Print calendar"},
  }};

  static std::string Tip(const QString& name) { return Control(name).toolTip().toStdString(); }
  static void ExpectTips(bool on)
  {
    const auto expected = [&](const char* tip) { return std::string(on ? tip : ""); };
    for (int i = 0; i < 4; ++i) {
      EXPECT_EQ(Tip(Element("lblOptions", i)), expected(kCommands.at(static_cast<std::size_t>(i)).tip));
    }
    EXPECT_EQ(Tip("lblMonth"), expected("Click to select another month"));
    EXPECT_EQ(Tip("lblYear"), expected("Click to select another year"));
    EXPECT_EQ(Tip("lstMonth"), expected("Select a month"));
    EXPECT_EQ(Tip("lstYear"), expected("Select a year"));
    for (int i = 0; i < kCellCount; ++i) {
      EXPECT_EQ(Tip(Element("lblDay", i)), expected("Click to add or edit events for this date")) << i;
      EXPECT_EQ(Tip(Element("lstReminders", i)), expected("Click on an event for more details")) << i;
    }
  }
};

}

TEST_F(RemindersLoad, ThePageIsTitledAndOfItsSize)
{
  Open();
  EXPECT_EQ(Page().windowTitle().toStdString(), "Calendar");
  EXPECT_EQ(frame.placed, QStringList{"frmReminders"});
  EXPECT_EQ(Page().size(), QSize(10455 / 15, 7710 / 15));
}

TEST_F(RemindersLoad, TheCommandsHaveTheirCaptions)
{
  Open();
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(Caption(Element("lblOptions", i)), kCommands.at(static_cast<std::size_t>(i)).caption);
    EXPECT_TRUE(IsShown(Element("lblOptions", i))) << i;
  }
}

TEST_F(RemindersLoad, TheHeadingsNameTheDaysFromSundayOn)
{
  Open();
  const QStringList names = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  for (int i = 0; i < 7; ++i) {
    EXPECT_EQ(Caption(Element("Label2", i)), names[i].toStdString());
    EXPECT_EQ(Twips(Element("Label2", i)).left(), 1440 * i);
    EXPECT_EQ(Control(Element("Label2", i)).parentWidget(), &Control("picReminders"));
    EXPECT_TRUE(IsShown(Element("Label2", i)));
  }
}

TEST_F(RemindersLoad, TheGridStandsAsDesigned)
{
  Open();
  EXPECT_EQ(Twips("picReminders").topLeft(), QPoint(120, 840));
  EXPECT_EQ(Twips("picReminders").width(), 10155);
  const std::array<int, 6> rules = {1320, 2400, 3480, 4560, 5655, 6780};
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(Twips(Element("shpHLine", i)).top(), rules.at(static_cast<std::size_t>(i))) << i;
    EXPECT_EQ(Control(Element("shpHLine", i)).parentWidget(), &Control("picReminders"));
  }
  for (int i = 0; i < kCellCount; ++i) {
    const int left = 1440 * (i % 7);
    const int top = 600 + 1080 * (i / 7);
    EXPECT_EQ(Twips(Element("lstReminders", i)), QRect(left, top, 1455, 690)) << i;
    EXPECT_EQ(Twips(Element("lblDay", i)), QRect(left + 1080, top - 360, 375, 375)) << i;
    EXPECT_EQ(Cell(i).parentWidget(), &Control("picReminders")) << i;
    EXPECT_EQ(Day(i).parentWidget(), &Control("picReminders")) << i;
  }
  EXPECT_EQ(Page().findChild<QWidget*>("lblDay_37"), nullptr);
  EXPECT_EQ(Page().findChild<QWidget*>("lstReminders_37"), nullptr);
}

TEST_F(RemindersLoad, WhatStandsAboveTheGridStandsAsDesigned)
{
  Open();
  EXPECT_EQ(Twips("lblMonth"), QRect(3360, 480, 1815, 285));
  EXPECT_EQ(Twips("lstMonth"), QRect(3360, 840, 1815, 1710));
  EXPECT_EQ(Twips("lblYear"), QRect(5280, 480, 1815, 285));
  EXPECT_EQ(Twips("lstYear"), QRect(5280, 840, 1815, 1710));
  EXPECT_EQ(Twips("txtNotesDisplay").size(), QSize(3135, 855));
  for (const char* above : {"lstMonth", "lstYear", "txtNotesDisplay"}) {
    EXPECT_EQ(Control(above).parentWidget(), &Page()) << above;
    EXPECT_FALSE(IsShown(above)) << above;
  }
  EXPECT_FALSE(IsShown("picSelect"));
}

TEST_F(RemindersLoad, TipsAreSetWhileTheyAreOn)
{
  Open();
  ExpectTips(true);
  EXPECT_EQ(Tip("txtNotesDisplay"), "Click to close");
}

TEST_F(RemindersLoad, ThereAreNoTipsAtAllWhileTheyAreOff)
{
  modToolTips::SetTipsOff(true);
  Open();
  ExpectTips(false);
  for (const QWidget* control : Page().findChildren<QWidget*>()) {
    EXPECT_EQ(control->toolTip().toStdString(), "") << control->objectName().toStdString();
  }
}

TEST_F(RemindersLoad, AnotherChoiceOfTipsTakesEffectAtOnce)
{
  Open();
  modToolTips::Choose(true);
  ExpectTips(false);
  modToolTips::Choose(false);
  ExpectTips(true);
}

TEST_F(RemindersLoad, ItOpensOnTodaysMonth)
{
  Open();
  ExpectMonth(2026, 5);
  EXPECT_EQ(ShownDays().begin()->first, 5);
  EXPECT_EQ(ShownDays().rbegin()->first, 35);
  EXPECT_TRUE(ShownEvents().empty());
}

TEST_F(RemindersLoad, ItOpensOnTodaysMonthWhateverDayItIs)
{
  for (const QDate today : {QDate(2026, 1, 1), QDate(2025, 12, 31), QDate(2024, 2, 29), QDate(2026, 2, 10),
                            QDate(2026, 8, 31), QDate(2000, 2, 29), QDate(1999, 12, 31), QDate(2026, 4, 30)}) {
    OpenOn(today);
    ExpectMonth(today.year(), today.month());
    Forms::Unload("frmReminders");
    DropUnloaded();
  }
}

TEST_F(RemindersLoad, ATodayBeyondTheYearListHasNoYearToSelect)
{
  for (const QDate today : {QDate(2051, 3, 4), QDate(1899, 12, 31)}) {
    OpenOn(today);
    ExpectMonth(today.year(), today.month());
    Forms::Unload("frmReminders");
    DropUnloaded();
  }
}

TEST_F(RemindersLoad, TheListsHoldTheMonthsAndTheYears)
{
  Open();
  EXPECT_EQ(Hands::LinesOf(List("lstMonth")),
            (QStringList{"January", "February", "March", "April", "May", "June", "July", "August", "September",
                         "October", "November", "December"}));
  QStringList years;
  for (int year = 1900; year <= 2050; ++year) {
    years.append(QString::number(year));
  }
  EXPECT_EQ(years.size(), 151);
  EXPECT_EQ(Hands::LinesOf(List("lstYear")), years);
  EXPECT_EQ(List("lstMonth").ListIndex(), 4);
  EXPECT_EQ(List("lstYear").ListIndex(), 126);
}

TEST_F(RemindersLoad, EachLoadBeginsAtTodaysMonth)
{
  Open();
  Next();
  Next();
  ExpectMonth(2026, 7);
  Forms::Unload("frmReminders");
  DropUnloaded();
  Open();
  ExpectMonth(2026, 5);
}

TEST_F(RemindersLoad, TheDatabaseCannotBeCompactedOrBackedUpMeanwhile)
{
  Open();
  EXPECT_FALSE(frame.careAllowed);
  Next();
  EXPECT_FALSE(frame.careAllowed);
  Forms::Unload("frmReminders");
  EXPECT_TRUE(frame.careAllowed);
}

TEST_F(RemindersLoad, MainLeavesForTheMainPage)
{
  Open();
  Click("lblOptions_2");
  DropUnloaded();
  EXPECT_FALSE(IsOpen());
  ASSERT_TRUE(IsOpen("frmIntro"));
  EXPECT_EQ(frame.placed, (QStringList{"frmReminders", "frmIntro"}));
  EXPECT_TRUE(frame.careAllowed);
}

TEST_F(RemindersLoad, PrintShowsItsFormOverThePageWithTheThemeFlagSet)
{
  bool flagAtLoad = false;
  RegisterBeside("frmPrintCal", Form::Kind::kWindow, [&] { flagAtLoad = modThemes::CalendarHasPicture(); });
  Open();
  EXPECT_TRUE(Control("lblOptions_3").isEnabled());
  modThemes::SetCalendarHasPicture(false);
  WithModal(
      "frmPrintCal", [] { Click("lblOptions_3"); }, [] { EXPECT_TRUE(Page().isVisible()); });
  EXPECT_TRUE(flagAtLoad);
  EXPECT_TRUE(modThemes::CalendarHasPicture());
  ExpectMonth(2026, 5);
}
