// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CalendarTest.h"

namespace {

class EventEditorChange : public CalendarTest
{
protected:
  // Opens the panel and selects a line.
  void OpenLine(int line)
  {
    Open(kDay, Editor::kOpenEdit);
    ClickLine("lstChanges", line);
  }
  void Apply(const QString& event, const QString& time = {}, const QString& notes = {})
  {
    FillEdit(event, time, notes);
    Click(Editor::kApply);
  }
};

}

TEST_F(EventEditorChange, SelectingALineShowsTheEvent)
{
  Store("Dentist", "09:30:00", "Bring the card");
  Store("Vet", "14:05:00");
  Store("Rent", {}, "Pay it\nat last");
  Store("Bins out");
  OpenLine(2);
  EXPECT_EQ(EditBoxes(), "Dentist|9:30 am|Bring the card");
  ClickLine("lstChanges", 3);
  EXPECT_EQ(EditBoxes(), "Vet|2:05 pm|");
  ClickLine("lstChanges", 0);
  EXPECT_EQ(EditBoxes(), "Rent||Pay it\nat last");
  ClickLine("lstChanges", 1);
  EXPECT_EQ(EditBoxes(), "Bins out||");
}

TEST_F(EventEditorChange, MidnightAndNoonAreTimes)
{
  Store("Midnight", "00:00:00");
  Store("Noon", "12:00:00");
  OpenLine(0);
  EXPECT_EQ(Text("txtTime"), "12:00 am");
  ClickLine("lstChanges", 1);
  EXPECT_EQ(Text("txtTime"), "12:00 pm");
}

TEST_F(EventEditorChange, SelectingALineDropsWhatWasTyped)
{
  Store("Dentist", "09:30:00", "Bring the card");
  OpenLine(0);
  FillEdit("Doctor", "x", "y");
  ClickLine("lstChanges", 0);
  EXPECT_EQ(EditBoxes(), "Dentist|9:30 am|Bring the card");
}

TEST_F(EventEditorChange, StoresWhatWasChanged)
{
  Store("Dentist", "09:30:00", "Bring the card");
  OpenLine(0);
  Type("txtEvent", "Doctor");
  Type("txtTime", "4:15 PM");
  Type("txtNotesEdit", "Ask");
  Click(Editor::kApply);
  EXPECT_EQ(Rows(), Lines({Row("Doctor|16:15:00|Ask")}));
  EXPECT_EQ(Cell(), " Doctor 4:15pm");
}

TEST_F(EventEditorChange, ATitleIsChangedAtOnceInTheCellAndTheDateStays)
{
  const int id = Store("Dentist", "09:30:00", "Bring the card");
  folder.Execute("UPDATE Reminders SET Month='MAY' WHERE ID=?", {id});
  OpenLine(0);
  Type("txtEvent", "Doctor");
  Click(Editor::kApply);
  EXPECT_EQ(Rows(), Lines({"MAY|2026-05-12|Doctor|09:30:00|Bring the card"}));
  EXPECT_EQ(Dump("SELECT ID FROM Reminders"), Lines({std::to_string(id)}));
  EXPECT_EQ(Cell(), " Doctor 9:30am");
}

TEST_F(EventEditorChange, EmptyTimeAndDetailsBecomeNull)
{
  Store("Dentist", "09:30:00", "Bring the card");
  OpenLine(0);
  Apply("Dentist");
  EXPECT_EQ(Rows(), Lines({Row("Dentist|-|-")}));
  EXPECT_EQ(Cell(), " Dentist ");
}

TEST_F(EventEditorChange, AChangedTimeMovesTheLineInTheCell)
{
  Store("Dentist", "09:30:00");
  Store("Vet", "14:00:00");
  OpenLine(0);
  Apply("Dentist", "15:00");
  EXPECT_EQ(Cell(), " Vet 2:00pm| Dentist 3:00pm");
  EXPECT_EQ(LinesOf("lstChanges"), "Vet|Dentist");
  ClickLine("lstChanges", 0);
  EXPECT_EQ(Text("txtEvent"), "Vet");
}

TEST_F(EventEditorChange, ThePanelIsSetUpAgain)
{
  Store("Dentist", "09:30:00");
  Store("Vet", "14:00:00");
  OpenLine(1);
  Apply("Cat to vet", "14:00", "x");
  EXPECT_EQ(OpenPanels(), "fraEdit");
  EXPECT_EQ(Heading(), "Edit an event for May 12, 2026");
  EXPECT_EQ(LinesOf("lstChanges"), "Dentist|Cat to vet");
  EXPECT_EQ(List("lstChanges").ListIndex(), -1);
  EXPECT_EQ(EditBoxes(), "||");
  EXPECT_EQ(Focus(), "lstChanges");
  EXPECT_EQ(Done(), "lblDone");
  Tick();
  Tick();
  EXPECT_EQ(Done(), "lblDone");
  Tick();
  EXPECT_EQ(Done(), "");
}

TEST_F(EventEditorChange, EventsOfOneTitleAreToldApart)
{
  Store("Dentist", "09:30:00", "first");
  Store("Dentist", "09:30:00", "second");
  Store("Dentist", "09:30:00", "third");
  OpenLine(1);
  EXPECT_EQ(EditBoxes(), "Dentist|9:30 am|second");
  Apply("Doctor", "9:30 am", "changed");
  EXPECT_EQ(Rows(),
            Lines({Row("Dentist|09:30:00|first"), Row("Doctor|09:30:00|changed"), Row("Dentist|09:30:00|third")}));
}

TEST_F(EventEditorChange, WithNoLineSelectedItDoesNothing)
{
  Store("Dentist", "09:30:00");
  Open(kDay, Editor::kOpenEdit);
  FillEdit("Doctor", "noonish", "Ask");
  const std::string before = Everything();
  Click(Editor::kApply);
  EXPECT_EQ(Rows(), Lines({Row("Dentist|09:30:00|-")}));
  EXPECT_EQ(Everything(), before);
}

TEST_F(EventEditorChange, ABlankTitleIsRefused)
{
  Store("Dentist", "09:30:00", "Bring the card");
  OpenLine(0);
  for (const int blanks : {0, 1, 12, 13}) {
    FillEdit(QString(blanks, u' '), "9:30 am", "Ask");
    Control("txtNotesEdit").setFocus();
    ExpectRefused(Editor::kApply, Editor::kBlank);
    EXPECT_EQ(Focus(), "txtEvent");
  }
}

TEST_F(EventEditorChange, ABlankTitleIsRefusedBeforeTheSelectionIsLookedAt)
{
  Store("Dentist");
  Open(kDay, Editor::kOpenEdit);
  ExpectRefused(Editor::kApply, Editor::kBlank);
}

TEST_F(EventEditorChange, APastedTitleOfThirteenCharactersIsRefused)
{
  Store("Dentist", "09:30:00");
  OpenLine(0);
  Paste("txtEvent", "Thirteen char");
  ExpectRefused(Editor::kApply, Editor::kTooLong);
  EXPECT_EQ(Text("txtEvent"), "Thirteen char");
  EXPECT_EQ(List("lstChanges").ListIndex(), 0);
}

TEST_F(EventEditorChange, ATitleOfTwelveCharactersIsStoredAsItStands)
{
  Store("Dentist");
  OpenLine(0);
  Paste("txtEvent", "  Dentist   ");
  Click(Editor::kApply);
  EXPECT_EQ(Rows(), Lines({Row("  Dentist   |-|-")}));
}

TEST_F(EventEditorChange, TypingEndsAtTwelveCharacters)
{
  Open(kDay, Editor::kOpenEdit);
  Type("txtEvent", "Thirteen characters");
  EXPECT_EQ(Text("txtEvent"), "Thirteen cha");
  Type("txtTime", "nine thirty in the evening");
  EXPECT_EQ(Text("txtTime"), "nine thirty in the evening");
}

TEST_F(EventEditorChange, BackspaceWorksAtAnyLength)
{
  Open(kDay, Editor::kOpenEdit);
  for (const QString text : {"Twelve chars", "Far too long a title"}) {
    Paste("txtEvent", text);
    Press("txtEvent", Qt::Key_Backspace);
    EXPECT_EQ(Text("txtEvent"), text.chopped(1).toStdString());
  }
}

TEST_F(EventEditorChange, ATextThatIsNoTimeChangesNothing)
{
  Store("Dentist", "09:30:00", "Bring the card");
  OpenLine(0);
  for (const char* time : {"25:00", "9:60 pm", "noonish", "9:30 pm tomorrow", " ", "9"}) {
    FillEdit("Doctor", time, "Ask");
    ExpectRefused(Editor::kApply, Editor::kBadTime);
    EXPECT_EQ(EditBoxes(), std::string("Doctor|") + time + "|Ask");
    EXPECT_EQ(List("lstChanges").ListIndex(), 0);
  }
  Type("txtTime", "12 pm");
  Click(Editor::kApply);
  EXPECT_EQ(Rows(), Lines({Row("Doctor|12:00:00|Ask")}));
}

TEST_F(EventEditorChange, ATimeThatIsNoneInTheFileIsShownAsNone)
{
  Store("Dentist", "soon");
  OpenLine(0);
  EXPECT_EQ(EditBoxes(), "Dentist||");
}

TEST_F(EventEditorChange, AnEventDeletedMeanwhileIsNotDone)
{
  const int id = Store("Dentist");
  Store("Vet");
  OpenLine(0);
  folder.Execute("DELETE FROM Reminders WHERE ID=?", {id});
  Apply("Doctor");
  EXPECT_EQ(Rows(), Lines({Row("Vet|-|-")}));
  EXPECT_EQ(LinesOf("lstChanges"), "Vet");
  EXPECT_EQ(Cell(), " Vet ");
  EXPECT_EQ(Done(), "");
}

TEST_F(EventEditorChange, SelectingAnEventDeletedMeanwhileShowsNothing)
{
  Store("Dentist");
  Open(kDay, Editor::kOpenEdit);
  folder.Execute("DELETE FROM Reminders");
  ClickLine("lstChanges", 0);
  EXPECT_EQ(EditBoxes(), "||");
}
