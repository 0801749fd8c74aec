// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CalendarTest.h"

namespace {

class EventEditorDelete : public CalendarTest
{
protected:
  // Opens the panel, selects the line and deletes it.
  void DeleteLine(int line)
  {
    ClickLine("lstDelete", line);
    Click(Editor::kDelete);
  }
  static QWidget& Mark() { return Drive::Control(CalendarBehind::Page(), "picSelect"); }
  static bool IsMarked() { return Mark().isVisibleTo(&CalendarBehind::Page()); }
};

}

TEST_F(EventEditorDelete, DeletesTheSelectedEvent)
{
  Store("Rent");
  Store("Dentist", "09:30:00");
  Store("Vet", "14:00:00");
  Open(kDay, Editor::kOpenDelete);
  DeleteLine(1);
  EXPECT_EQ(Rows(), Lines({Row("Rent|-|-"), Row("Vet|14:00:00|-")}));
  EXPECT_EQ(LinesOf("lstDelete"), "Rent|Vet");
  EXPECT_EQ(List("lstDelete").ListIndex(), -1);
  EXPECT_EQ(Cell(), " Rent | Vet 2:00pm");
  EXPECT_EQ(Done(), "lblDone2");
  EXPECT_EQ(OpenPanels(), "fraDelete");
}

TEST_F(EventEditorDelete, EventsOfOneTitleAreToldApart)
{
  Store("Dentist", "09:30:00", "first");
  Store("Dentist", "09:30:00", "second");
  Store("Dentist", "09:30:00", "third");
  Open(kDay, Editor::kOpenDelete);
  EXPECT_EQ(LinesOf("lstDelete"), "Dentist|Dentist|Dentist");
  DeleteLine(1);
  EXPECT_EQ(Rows(), Lines({Row("Dentist|09:30:00|first"), Row("Dentist|09:30:00|third")}));
  DeleteLine(0);
  EXPECT_EQ(Rows(), Lines({Row("Dentist|09:30:00|third")}));
}

TEST_F(EventEditorDelete, OneAfterTheOtherUntilTheDayIsEmpty)
{
  StoreOn(QDate(2026, 5, 13), "Tomorrow");
  Store("Dentist", "09:30:00");
  Store("Rent");
  Store("Vet", "14:00:00");
  Open(kDay, Editor::kOpenDelete);
  DeleteLine(2);
  DeleteLine(0);
  EXPECT_EQ(Cell(), " Dentist 9:30am");
  DeleteLine(0);
  EXPECT_EQ(Cell(), "hidden");
  EXPECT_EQ(Rows(), Lines({"May|2026-05-13|Tomorrow|-|-"}));
}

TEST_F(EventEditorDelete, OfTheLastEventOfADayHidesTheCellAndTheMark)
{
  StoreOn(QDate(2026, 5, 13), "Tomorrow");
  Store("Dentist", "09:30:00");
  Open(kDay, Editor::kOpenDelete);
  Mark().show();
  DeleteLine(0);
  EXPECT_EQ(Rows(), Lines({"May|2026-05-13|Tomorrow|-|-"}));
  EXPECT_EQ(LinesOf("lstDelete"), "");
  EXPECT_EQ(Cell(), "hidden");
  EXPECT_EQ(CellList().ListCount(), 0);
  EXPECT_FALSE(IsMarked());
  EXPECT_EQ(Cell(kCell + 1), " Tomorrow ");
  EXPECT_EQ(Done(), "lblDone2");
}

TEST_F(EventEditorDelete, OfTheLastEventOfAMonthHidesTheCell)
{
  StoreOn(QDate(2026, 6, 12), "Next month");
  Store("Dentist");
  Open(kDay, Editor::kOpenDelete);
  DeleteLine(0);
  EXPECT_EQ(Cell(), "hidden");
  EXPECT_EQ(LinesOf("lstDelete"), "");
  EXPECT_EQ(Done(), "lblDone2");
}

TEST_F(EventEditorDelete, OfTheVeryLastEventEmptiesAndHidesTheCell)
{
  Store("Dentist", "09:30:00");
  Open(kDay, Editor::kOpenDelete);
  DeleteLine(0);
  EXPECT_EQ(Rows(), Lines());
  EXPECT_EQ(LinesOf("lstDelete"), "");
  EXPECT_EQ(Cell(), "hidden");
  EXPECT_EQ(CellList().ListCount(), 0);
  EXPECT_EQ(Done(), "lblDone2");
  Tick();
  Tick();
  EXPECT_EQ(Done(), "lblDone2");
  Tick();
  EXPECT_EQ(Done(), "");
}

TEST_F(EventEditorDelete, WithEventsLeftTheMarkStays)
{
  Store("Dentist");
  Store("Vet");
  Open(kDay, Editor::kOpenDelete);
  Mark().show();
  DeleteLine(0);
  EXPECT_TRUE(IsMarked());
  EXPECT_EQ(Cell(), " Vet ");
}

TEST_F(EventEditorDelete, WithNoLineSelectedItDoesNothing)
{
  Store("Dentist", "09:30:00");
  Open(kDay, Editor::kOpenDelete);
  const std::string before = Everything();
  Click(Editor::kDelete);
  EXPECT_EQ(Rows(), Lines({Row("Dentist|09:30:00|-")}));
  EXPECT_EQ(Everything(), before);
  EXPECT_FALSE(Timer().isActive());
}

TEST_F(EventEditorDelete, AfterADeletionNoLineIsSelected)
{
  Store("Dentist");
  Store("Vet");
  Open(kDay, Editor::kOpenDelete);
  DeleteLine(0);
  Click(Editor::kDelete);
  Click(Editor::kDelete);
  EXPECT_EQ(Rows(), Lines({Row("Vet|-|-")}));
}

TEST_F(EventEditorDelete, WithNoEventsAtAllItDoesNothing)
{
  Open(kDay, Editor::kOpenDelete);
  Click(Editor::kDelete);
  EXPECT_EQ(Done(), "");
  EXPECT_EQ(Cell(), "hidden");
}

TEST_F(EventEditorDelete, WithTheTableEmptiedMeanwhileItDoesNothing)
{
  Store("Dentist");
  Open(kDay, Editor::kOpenDelete);
  ClickLine("lstDelete", 0);
  folder.Execute("DELETE FROM Reminders");
  const std::string before = Everything();
  Click(Editor::kDelete);
  EXPECT_EQ(Everything(), before);
}

TEST_F(EventEditorDelete, OfAnEventThatIsGoneReadsTheListAfreshAndSaysDone)
{
  const int gone = Store("Dentist", "09:30:00");
  Store("Vet", "14:00:00");
  Open(kDay, Editor::kOpenDelete);
  ClickLine("lstDelete", 0);
  folder.Execute("DELETE FROM Reminders WHERE ID=?", {gone});
  Click(Editor::kDelete);
  EXPECT_EQ(Rows(), Lines({Row("Vet|14:00:00|-")}));
  EXPECT_EQ(LinesOf("lstDelete"), "Vet");
  EXPECT_EQ(List("lstDelete").ListIndex(), -1);
  EXPECT_EQ(Cell(), " Vet 2:00pm");
  EXPECT_EQ(Done(), "lblDone2");
}

TEST_F(EventEditorDelete, AnEventAddedMeanwhileElsewhereIsNotMistakenForIt)
{
  Store("Dentist", "09:30:00");
  Store("Vet", "14:00:00");
  Open(kDay, Editor::kOpenDelete);
  ClickLine("lstDelete", 0);
  Store("Rent");
  Click(Editor::kDelete);
  EXPECT_EQ(Rows(), Lines({Row("Vet|14:00:00|-"), Row("Rent|-|-")}));
  EXPECT_EQ(LinesOf("lstDelete"), "Rent|Vet");
  EXPECT_EQ(Cell(), " Rent | Vet 2:00pm");
}

TEST_F(EventEditorDelete, ALineIsSelectedByKeyboard)
{
  Store("Dentist");
  Store("Vet");
  Open(kDay, Editor::kOpenDelete);
  Press("lstDelete", Qt::Key_Down);
  Press("lstDelete", Qt::Key_Down);
  Click(Editor::kDelete);
  EXPECT_EQ(Rows(), Lines({Row("Dentist|-|-")}));
}
