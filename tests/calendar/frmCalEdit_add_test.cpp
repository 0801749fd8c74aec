// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CalendarTest.h"

namespace {

class EventEditorAdd : public CalendarTest
{
protected:
  void Add(const QString& event, const QString& time = {}, const QString& notes = {})
  {
    FillAdd(event, time, notes);
    Click(Editor::kAdd);
  }
};

}

TEST_F(EventEditorAdd, StoresWhatWasEntered)
{
  Open(kDay, Editor::kOpenAdd);
  Type("cboReminders", "Dentist");
  Type("txtAddTime", "9:30 pm");
  Type("txtNotes", "Bring the card");
  Click(Editor::kAdd);
  EXPECT_EQ(Rows(), Lines({Row("Dentist|21:30:00|Bring the card")}));
  EXPECT_EQ(Cell(), " Dentist 9:30pm");
}

TEST_F(EventEditorAdd, TheTimeAndTheDetailsMayBeLeftOut)
{
  Open(kDay, Editor::kOpenAdd);
  Add("Dentist");
  Add("Vet", "9 am");
  Add("Rent", "", "Pay it");
  EXPECT_EQ(Rows(), Lines({Row("Dentist|-|-"), Row("Vet|09:00:00|-"), Row("Rent|-|Pay it")}));
  EXPECT_EQ(Cell(), " Dentist | Rent | Vet 9:00am");
}

TEST_F(EventEditorAdd, ThePanelStaysOpenAndEmptyForTheNextEvent)
{
  Open(kDay, Editor::kOpenAdd);
  Add("Dentist", "9:30 pm", "Bring the card");
  EXPECT_EQ(OpenPanels(), "fraAdd");
  EXPECT_EQ(Heading(), "Add an event for May 12, 2026");
  EXPECT_EQ(AddBoxes(), "||");
  EXPECT_EQ(Focus(), "cboReminders");
  EXPECT_EQ(Done(), "lblDone3");
}

TEST_F(EventEditorAdd, APresetIsChosenFromTheList)
{
  Open(kDay, Editor::kOpenAdd);
  PickPreset(7);
  const std::string preset = Presets().List(7).toStdString();
  EXPECT_EQ(Text("cboReminders"), preset);
  Click(Editor::kAdd);
  EXPECT_EQ(Rows(), Lines({Row(preset + "|-|-")}));
  PickPreset(7);
  Click(Editor::kAdd);
  EXPECT_EQ(Rows().size(), 2U);
}

TEST_F(EventEditorAdd, ATitleOfTwelveCharactersIsStoredAsItStands)
{
  Open(kDay, Editor::kOpenAdd);
  for (const char* title : {"Twelve chars", "  Dentist   ", "A"}) {
    Paste("cboReminders", title);
    Click(Editor::kAdd);
  }
  Add(QString::fromUtf8("🎂").repeated(12));
  EXPECT_EQ(Rows(), Lines({Row("Twelve chars|-|-"), Row("  Dentist   |-|-"), Row("A|-|-"),
                           Row(QString::fromUtf8("🎂").repeated(12).toStdString() + "|-|-")}));
}

TEST_F(EventEditorAdd, APastedTitleOfThirteenCharactersIsRefused)
{
  Open(kDay, Editor::kOpenAdd);
  FillAdd("", "9:30 pm", "Bring the card");
  Paste("cboReminders", "Thirteen char");
  Control("txtNotes").setFocus();
  ExpectRefused(Editor::kAdd, Editor::kTooLong);
  EXPECT_EQ(Focus(), "cboReminders");
  EXPECT_EQ(AddBoxes(), "Thirteen char|9:30 pm|Bring the card");
}

TEST_F(EventEditorAdd, ThirteenCharactersOfWhichSomeAreBlanksAreRefused)
{
  Open(kDay, Editor::kOpenAdd);
  Paste("cboReminders", "Twelve chars ");
  ExpectRefused(Editor::kAdd, Editor::kTooLong);
}

TEST_F(EventEditorAdd, ATitleOfNothingButBlanksIsNone)
{
  Open(kDay, Editor::kOpenAdd);
  for (const int blanks : {0, 1, 12, 13, 40}) {
    Paste("cboReminders", QString(blanks, u' '));
    Control("txtNotes").setFocus();
    ExpectRefused(Editor::kAdd, Editor::kNoEvent);
    EXPECT_EQ(Focus(), "cboReminders");
  }
}

TEST_F(EventEditorAdd, TypingEndsAtTwelveCharacters)
{
  Open(kDay, Editor::kOpenAdd);
  Type("cboReminders", "Thirteen characters");
  EXPECT_EQ(Text("cboReminders"), "Thirteen cha");
}

TEST_F(EventEditorAdd, BackspaceWorksAtAnyLength)
{
  Open(kDay, Editor::kOpenAdd);
  for (const QString text : {"Twelve chars", "Far too long a title"}) {
    Paste("cboReminders", text);
    Press("cboReminders", Qt::Key_Backspace);
    EXPECT_EQ(Text("cboReminders"), text.chopped(1).toStdString());
  }
}

TEST_F(EventEditorAdd, TimesAreReadAsPeopleTypeThem)
{
  Open(kDay, Editor::kOpenAdd);
  const std::vector<std::pair<QString, std::string>> times = {
      {"9:30 pm", "21:30:00"}, {"9:30pm", "21:30:00"}, {"9:30PM", "21:30:00"},     {"21:30", "21:30:00"},
      {"9 pm", "21:00:00"},    {" 9 pm ", "21:00:00"}, {"9:30:15 am", "09:30:15"}, {"12 am", "00:00:00"},
  };
  Lines rows;
  for (const auto& [typed, stored] : times) {
    Type("cboReminders", "Dentist");
    Type("txtAddTime", typed);
    Click(Editor::kAdd);
    rows.push_back(Row("Dentist|" + stored + "|-"));
    EXPECT_EQ(Rows(), rows) << typed.toStdString();
    EXPECT_EQ(Text("txtAddTime"), "");
  }
}

TEST_F(EventEditorAdd, ATextThatIsNoTimeAddsNothing)
{
  Store("Vet", "14:00:00");
  Open(kDay, Editor::kOpenAdd);
  for (const char* time :
       {"25:00", "9:60 pm", "noonish", "9:30 pm tomorrow", " ", "9", "pm", "13:00 pm", "24:00", "2026-05-12"}) {
    FillAdd("Dentist", time, "Bring the card");
    ExpectRefused(Editor::kAdd, Editor::kBadTime);
    EXPECT_EQ(AddBoxes(), std::string("Dentist|") + time + "|Bring the card");
  }
  EXPECT_EQ(Cell(), " Vet 2:00pm");
}

TEST_F(EventEditorAdd, WhatWasRefusedForItsTimeIsStoredOnceThatIsMended)
{
  Open(kDay, Editor::kOpenAdd);
  FillAdd("Dentist", "noonish", "Bring the card");
  ExpectRefused(Editor::kAdd, Editor::kBadTime);
  Type("txtAddTime", "12 pm");
  Click(Editor::kAdd);
  EXPECT_EQ(Rows(), Lines({Row("Dentist|12:00:00|Bring the card")}));
}

TEST_F(EventEditorAdd, TheCellShowsTheLineAtItsPlaceByTime)
{
  Store("Vet", "14:00:00");
  Store("Rent");
  StoreOn(QDate(2026, 5, 13), "Tomorrow", "10:00:00");
  Open(kDay, Editor::kOpenAdd);
  EXPECT_EQ(Cell(), " Rent | Vet 2:00pm");
  Add("Dentist", "9:30 am");
  EXPECT_EQ(Cell(), " Rent | Dentist 9:30am| Vet 2:00pm");
  Add("Choir", "8 pm");
  EXPECT_EQ(Cell(), " Rent | Dentist 9:30am| Vet 2:00pm| Choir 8:00pm");
  Add("Bins out");
  EXPECT_EQ(Cell(), " Rent | Bins out | Dentist 9:30am| Vet 2:00pm| Choir 8:00pm");
  EXPECT_EQ(Cell(kCell + 1), " Tomorrow 10:00am");
}

TEST_F(EventEditorAdd, TheFirstEventOfADayShowsItsCell)
{
  Open(kDay, Editor::kOpenAdd);
  EXPECT_EQ(Cell(), "hidden");
  Add("Dentist");
  EXPECT_EQ(Cell(), " Dentist ");
  for (int cell = 0; cell < 37; ++cell) {
    if (cell != kCell) {
      EXPECT_EQ(Cell(cell), "hidden") << cell;
    }
  }
}

TEST_F(EventEditorAdd, TheIdsOfTheDayStandInTheOrderOfItsLines)
{
  const int vet = Store("Vet", "14:00:00");
  StoreOn(QDate(2026, 5, 13), "Tomorrow");
  Open(kDay, Editor::kOpenAdd);
  Add("Dentist", "9:30 am");
  Add("Choir", "8 pm");
  EXPECT_EQ(modCalVariables::CalEventIds, std::vector<int>({vet + 2, vet, vet + 3}));
}

TEST_F(EventEditorAdd, AnEventBelongsToTheDayThatWasChosen)
{
  struct Case
  {
    QDate day;
    std::string row;
  };
  for (const auto& [day, row] : {Case{QDate(2028, 2, 29), "February|2028-02-29|Dentist|-|-"},
                                 Case{QDate(1900, 1, 1), "January|1900-01-01|Dentist|-|-"},
                                 Case{QDate(2050, 12, 31), "December|2050-12-31|Dentist|-|-"}}) {
    Open(day, Editor::kOpenAdd);
    Add("Dentist");
    EXPECT_EQ(Rows().back(), row);
    EXPECT_EQ(Cell(modCalVariables::CalCellIndex), " Dentist ");
    Command::Run([] {
      Forms::Unload("frmCalEdit");
      Forms::Unload("frmReminders");
    });
    DropUnloaded();
  }
}

TEST_F(EventEditorAdd, TextsAreStoredAsTheyAre)
{
  Open(kDay, Editor::kOpenAdd);
  Add("O'Neil", "", "He said \"no\"; DROP TABLE Reminders\nsecond line\n\n%1 'x' 茶 🎂");
  Add("100% (%1)", "", " ");
  EXPECT_EQ(Rows(), Lines({Row("O'Neil|-|He said \"no\"; DROP TABLE Reminders\nsecond line\n\n%1 'x' 茶 🎂"),
                           Row("100% (%1)|-| ")}));
  EXPECT_EQ(Cell(), " O'Neil | 100% (%1) ");
}

TEST_F(EventEditorAdd, DetailsOfAMegabyteAreStored)
{
  Open(kDay, Editor::kOpenAdd);
  const QString notes = QString(1'000'000, u'n') + QStringLiteral(" end");
  FillAdd("Dentist", "", notes);
  Click(Editor::kAdd);
  EXPECT_EQ(folder.Value("SELECT Notes FROM Reminders").toString(), notes);
}

TEST_F(EventEditorAdd, DoneGoesAwayAtTheThirdTick)
{
  Open(kDay, Editor::kOpenAdd);
  EXPECT_EQ(Timer().interval(), 500);
  EXPECT_FALSE(Timer().isActive());
  for (int round = 0; round < 2; ++round) {
    Add("Dentist");
    EXPECT_TRUE(Timer().isActive());
    Tick();
    Tick();
    EXPECT_EQ(Done(), "lblDone3");
    Tick();
    EXPECT_EQ(Done(), "");
    EXPECT_FALSE(Timer().isActive());
  }
}

TEST_F(EventEditorAdd, DoneGoesAwayByItself)
{
  Open(kDay, Editor::kOpenAdd);
  Add("Dentist");
  EXPECT_EQ(Done(), "lblDone3");
  EXPECT_TRUE(QTest::qWaitFor([] { return Done().empty(); }, 5000));
}

TEST_F(EventEditorAdd, DoneOfALaterAddShowsForItsFullTime)
{
  Open(kDay, Editor::kOpenAdd);
  Add("Dentist");
  Tick();
  Tick();
  Add("Vet");
  Tick();
  Tick();
  EXPECT_EQ(Done(), "lblDone3");
  Tick();
  EXPECT_EQ(Done(), "");
}

TEST_F(EventEditorAdd, TheEditorCanBeClosedWhileDoneShows)
{
  Open(kDay, Editor::kOpenAdd);
  Add("Dentist");
  Click(Editor::kClose);
  DropUnloaded();
  Open();
  EXPECT_EQ(Done(), "");
  EXPECT_FALSE(Timer().isActive());
}
