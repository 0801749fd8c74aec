// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "RemindersTest.h"

namespace {

class RemindersDetails : public RemindersTest
{
protected:
  // Where the box opens for a cell, from the places of the page in its present size, in twips.
  static void ExpectPlace(int cell)
  {
    const QRect box = Twips("txtNotesDisplay");
    const QRect list = Twips(Element("lstReminders", cell));
    const QPoint picture = Twips("picReminders").topLeft();
    const int left = list.left() + picture.x();
    const int top = list.top() + picture.y();
    const bool leftwards = box.width() + left + list.width() > Page().width() * 15;
    const bool above = box.height() + top + list.height() > Page().height() * 15;
    const double x = leftwards ? left - box.width() / 2.0 - 1000 : left + list.width() / 2.0;
    const double y = above ? top - box.height() - 150 : top + list.height() + 100;
    EXPECT_NEAR(box.left(), x, 15) << cell;
    EXPECT_NEAR(box.top(), y, 15) << cell;
  }

  static void ExpectSelected(const QDate& date)
  {
    EXPECT_EQ(modCalVariables::CalSelectedDate, date) << date.toString().toStdString();
  }

  // Opens the details of the event that stands alone in its cell.
  void OpenDetails()
  {
    AddEvent("2026-05-12", "Dentist");
    Open();
    ClickEvent(16);
    ASSERT_TRUE(DetailsShown());
  }
};

}

TEST_F(RemindersDetails, NeitherNotesNorTime)
{
  OpenDetails();
  EXPECT_EQ(Details(), "Dentist -  No further information available.");
}

TEST_F(RemindersDetails, ATimeAlone)
{
  AddEvent("2026-05-12", "Dentist", "21:30:00");
  Open();
  ClickEvent(16);
  EXPECT_EQ(Details(), "Dentist - 9:30 pm. No further information available.");
}

TEST_F(RemindersDetails, NotesAlone)
{
  AddEvent("2026-05-12", "Dentist", {}, "Bring the card");
  Open();
  ClickEvent(16);
  EXPECT_EQ(Details(), "Dentist - Bring the card");
}

TEST_F(RemindersDetails, NotesAndATime)
{
  AddEvent("2026-05-12", "Dentist", "00:05:00", "Bring the card");
  Open();
  ClickEvent(16);
  EXPECT_EQ(Details(), "Dentist - 12:05 am. Bring the card");
}

TEST_F(RemindersDetails, LongNotesOfSeveralLinesAreToldWhole)
{
  const QString notes = QStringLiteral("first\nO'Neil & \"co\"\n") + QString(2000, 'x') + QStringLiteral("\nlast");
  AddEvent("2026-05-12", "Dentist", {}, notes);
  Open();
  ClickEvent(16);
  EXPECT_EQ(Details(), "Dentist - " + notes.toStdString());
}

TEST_F(RemindersDetails, AnEventWithoutATitle)
{
  AddEvent("2026-05-12", QVariant(), "10:00:00");
  Open();
  ClickEvent(16);
  EXPECT_TRUE(DetailsShown());
  EXPECT_EQ(Details(), " - 10:00 am. No further information available.");
}

TEST_F(RemindersDetails, TheBoxOpensBesideAndBelowItsCell)
{
  AddEvent("2026-05-12", "Dentist");  // Tuesday of the third row
  Open();
  ClickEvent(16);
  EXPECT_NEAR(Twips("txtNotesDisplay").left(), 2880 + 120 + 727, 15);
  EXPECT_NEAR(Twips("txtNotesDisplay").top(), 600 + 2160 + 690 + 840 + 100, 15);
  EXPECT_EQ(Twips("txtNotesDisplay").size(), QSize(3135, 855));
  ExpectPlace(16);
}

TEST_F(RemindersDetails, ABoxThatWouldLeaveThePageOpensToTheLeft)
{
  AddEvent("2026-05-16", "Saturday");
  Open();
  ClickEvent(20);
  EXPECT_NEAR(Twips("txtNotesDisplay").left(), 8640 + 120 - 1567 - 1000, 15);
  EXPECT_NEAR(Twips("txtNotesDisplay").top(), 600 + 2160 + 690 + 840 + 100, 15);
  ExpectPlace(20);
}

TEST_F(RemindersDetails, ABoxThatWouldLeaveThePageOpensAbove)
{
  AddEvent("2026-05-31", "Last");  // Sunday of the sixth row
  Open();
  ClickEvent(35);
  EXPECT_NEAR(Twips("txtNotesDisplay").left(), 120 + 727, 15);
  EXPECT_NEAR(Twips("txtNotesDisplay").top(), 6000 + 840 - 855 - 150, 15);
  ExpectPlace(35);
}

TEST_F(RemindersDetails, EveryCellOpensTheBoxOnThePage)
{
  for (int day = 1; day <= 31; ++day) {
    AddEvent(QDate(2026, 8, day).toString(Qt::ISODate), "Event");
  }
  OpenOn(QDate(2026, 8, 1));
  for (int cell = 6; cell <= 36; ++cell) {
    ClickEvent(cell);
    ExpectPlace(cell);
    EXPECT_TRUE(Page().rect().contains(Control("txtNotesDisplay").geometry())) << cell;
    ExpectSelected(QDate(2026, 8, cell - 5));
  }
}

TEST_F(RemindersDetails, TheBoxFollowsThePagesSize)
{
  AddEvent("2026-05-12", "Dentist");
  AddEvent("2026-05-16", "Saturday");
  AddEvent("2026-05-31", "Last");
  Open();
  Page().resize(1100, 900);
  for (const int cell : {16, 20, 35}) {
    ClickEvent(cell);
    EXPECT_TRUE(DetailsShown()) << cell;
    ExpectPlace(cell);
  }
}

TEST_F(RemindersDetails, TheBoxStandsAboveTheGridAndTheLists)
{
  OpenDetails();
  QWidget& box = Control("txtNotesDisplay");
  EXPECT_TRUE(box.isVisible());
  QWidget* at = Page().childAt(box.geometry().center());
  EXPECT_TRUE(at == &box || box.isAncestorOf(at));
}

TEST_F(RemindersDetails, TheDateOfTheEventIsTheSelectedOne)
{
  AddEvent("2024-02-29", "Leap");
  Open();
  ChooseMonth(2);
  ChooseYear(2024);
  ClickEvent(CellOf("2024-02-29"));
  ExpectSelected(QDate(2024, 2, 29));
}

TEST_F(RemindersDetails, TheIdsOfTheDayAreKeptInTheOrderOfTheLines)
{
  AddEvent("2026-05-11", "Before");
  const int late = AddEvent("2026-05-12", "Late", "20:00:00");
  const int early = AddEvent("2026-05-12", "Early", "08:00:00");
  AddEvent("2025-05-12", "Year before");
  AddEvent("2026-05-12", "Misfit", {}, {}, "June");
  const int untimed = AddEvent("2026-05-12", "Untimed");
  AddEvent("2026-05-13", "After");
  Open();
  ASSERT_EQ(Lines(16), " Untimed | Early 8:00am| Late 8:00pm");
  ClickEvent(16, 1);
  EXPECT_EQ(modCalVariables::CalEventIds, (std::vector<int>{untimed, early, late}));
  EXPECT_EQ(Details(), "Early - 8:00 am. No further information available.");
  ClickEvent(15);
  EXPECT_EQ(modCalVariables::CalEventIds, std::vector<int>{1});
  ExpectSelected(QDate(2026, 5, 11));
}

TEST_F(RemindersDetails, TheSecondOfTwoEventsOfOneTitleIsToldByItsOwnDetails)
{
  AddEvent("2026-05-12", "Dentist", {}, "Ann");
  AddEvent("2026-05-12", "Dentist", {}, "Bob");
  AddEvent("2026-05-12", "Dentist", "10:00:00", "Eve");
  Open();
  ClickEvent(16, 1);
  EXPECT_EQ(Details(), "Dentist - Bob");
  ClickEvent(16, 0);
  EXPECT_EQ(Details(), "Dentist - Ann");
  ClickEvent(16, 2);
  EXPECT_EQ(Details(), "Dentist - 10:00 am. Eve");
}

TEST_F(RemindersDetails, AnotherEventMovesTheBox)
{
  AddEvent("2026-05-12", "Dentist");
  AddEvent("2026-05-16", "Picnic");
  Open();
  ClickEvent(16);
  ClickEvent(20);
  EXPECT_TRUE(DetailsShown());
  EXPECT_EQ(Details(), "Picnic -  No further information available.");
  ExpectPlace(20);
  ClickEvent(16);
  EXPECT_EQ(Details(), "Dentist -  No further information available.");
  ExpectPlace(16);
}

TEST_F(RemindersDetails, TheSameLineOpensTheBoxAgain)
{
  OpenDetails();
  ClickPicture();
  ASSERT_FALSE(DetailsShown());
  ClickEvent(16);
  EXPECT_TRUE(DetailsShown());
}

TEST_F(RemindersDetails, TheKeyboardGoesFromLineToLine)
{
  AddEvent("2026-05-12", "One");
  AddEvent("2026-05-12", "Two");
  Open();
  ClickEvent(16, 0);
  QTest::keyClick(&Cell(16), Qt::Key_Down);
  EXPECT_TRUE(DetailsShown());
  EXPECT_EQ(Details(), "Two -  No further information available.");
}

TEST_F(RemindersDetails, ALeftClickClosesTheBox)
{
  OpenDetails();
  QTest::mouseClick(&DetailsViewport(), Qt::LeftButton, {}, QPoint(5, 5));
  EXPECT_FALSE(DetailsShown());
}

TEST_F(RemindersDetails, TheRightMouseButtonClosesTheBoxWhenItComesUp)
{
  OpenDetails();
  QTest::mousePress(&DetailsViewport(), Qt::RightButton, {}, QPoint(5, 5));
  EXPECT_TRUE(DetailsShown());
  QTest::mouseRelease(&DetailsViewport(), Qt::RightButton, {}, QPoint(5, 5));
  EXPECT_FALSE(DetailsShown());
}

TEST_F(RemindersDetails, TheMiddleMouseButtonLeavesTheBoxOpen)
{
  OpenDetails();
  QTest::mouseClick(&DetailsViewport(), Qt::MiddleButton, {}, QPoint(5, 5));
  EXPECT_TRUE(DetailsShown());
}

TEST_F(RemindersDetails, AClickOnThePictureClosesTheBox)
{
  OpenDetails();
  ClickPicture();
  EXPECT_FALSE(DetailsShown());
}

TEST_F(RemindersDetails, AnotherMonthOrYearClosesTheBox)
{
  AddEvent("2026-06-12", "Picnic");
  AddEvent("2025-06-12", "Sail");
  OpenDetails();
  ChooseMonth(6);
  EXPECT_FALSE(DetailsShown());
  ClickEvent(CellOf("2026-06-12"));
  ASSERT_TRUE(DetailsShown());
  ChooseYear(2025);
  EXPECT_FALSE(DetailsShown());
  ClickEvent(CellOf("2025-06-12"));
  ASSERT_TRUE(DetailsShown());
  ChooseYear(2025);
  EXPECT_FALSE(DetailsShown()) << "the same year again";
}

TEST_F(RemindersDetails, OtherPlacesOfThePageLeaveTheBoxOpen)
{
  OpenDetails();
  QTest::mouseClick(&Page(), Qt::LeftButton, {}, QPoint(690, 505));
  EXPECT_TRUE(DetailsShown());
  Click("lblMonth");
  EXPECT_TRUE(DetailsShown());
  Click("lblMonth");
  EXPECT_TRUE(DetailsShown());
}

TEST_F(RemindersDetails, NobodyWritesIntoTheBox)
{
  OpenDetails();
  QTest::keyClicks(&Control("txtNotesDisplay"), "abc");
  EXPECT_EQ(Details(), "Dentist -  No further information available.");
}

TEST_F(RemindersDetails, ADayClosesTheBoxAndOpensItsEditor)
{
  OpenDetails();
  QTest::mouseMove(Cell(16).viewport(), QPoint(5, 5));
  WithModal(
      "frmCalEdit", [] { Click("lblDay_17"); },
      [] {
        EXPECT_FALSE(DetailsShown());
        EXPECT_FALSE(IsShown("picSelect"));
        EXPECT_TRUE(Page().isVisible());
        EXPECT_EQ(modCalVariables::CalSelectedDate, QDate(2026, 5, 13));
        EXPECT_EQ(modCalVariables::CalDateText.toStdString(), "May 13, 2026");
        EXPECT_EQ(modCalVariables::CalCellIndex, 17);
      });
  EXPECT_FALSE(DetailsShown());
  ExpectMonth(2026, 5);
}

TEST_F(RemindersDetails, ADayOpenedByKeyTakesTheMarkOfTheMouseAway)
{
  Open();
  Control("picSelect").show();
  Day(17).setFocus();
  WithModal(
      "frmCalEdit", [] { QTest::keyClick(&Day(17), Qt::Key_Return); }, [] { EXPECT_FALSE(IsShown("picSelect")); });
}

TEST_F(RemindersDetails, TheDaysOfOtherMonthsAndYearsOpenTheirEditors)
{
  struct Case
  {
    int year;
    int month;
    int day;
    const char* text;
  };
  Open();
  for (const Case& c : {Case{2024, 2, 29, "February 29, 2024"}, Case{1900, 1, 1, "January 1, 1900"},
                        Case{2050, 12, 31, "December 31, 2050"}, Case{2026, 8, 31, "August 31, 2026"}}) {
    ChooseYear(c.year);
    ChooseMonth(c.month);
    const int cell = CellOf(QDate(c.year, c.month, c.day));
    WithModal("frmCalEdit", [&] { Click(Element("lblDay", cell)); });
    ExpectSelected(QDate(c.year, c.month, c.day));
    EXPECT_EQ(modCalVariables::CalDateText.toStdString(), c.text);
    EXPECT_EQ(modCalVariables::CalCellIndex, cell);
  }
}

TEST_F(RemindersDetails, TheIndexOfADayIsKeptWhenAnEventIsClicked)
{
  AddEvent("2026-05-14", "Picnic");
  Open();
  WithModal("frmCalEdit", [] { Click("lblDay_17"); });
  ClickEvent(18);
  EXPECT_EQ(modCalVariables::CalCellIndex, 17);
  EXPECT_EQ(modCalVariables::CalDateText.toStdString(), "May 13, 2026");
  ExpectSelected(QDate(2026, 5, 14));
}

TEST_F(RemindersDetails, AnEventDeletedByAnotherProgramEndsNothing)
{
  AddEvent("2026-05-12", "Dentist");
  AddEvent("2026-05-14", "Picnic");
  Open();
  folder.Execute("DELETE FROM Reminders WHERE Event='Dentist'");
  ClickEvent(16);
  ASSERT_TRUE(IsOpen());
  ClickEvent(18);
  EXPECT_EQ(Details(), "Picnic -  No further information available.");
}

TEST_F(RemindersDetails, ALineInACellBeforeTheFirstEndsNothing)
{
  AddEvent("2026-07-27", "Early", {}, {}, "August");
  AddEvent("2026-08-03", "Right");
  OpenOn(QDate(2026, 8, 10));
  ClickEvent(1);
  ASSERT_TRUE(IsOpen());
  ClickEvent(8);
  EXPECT_EQ(Details(), "Right -  No further information available.");
  ExpectMonth(2026, 8);
}
