// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CalendarTest.h"

namespace {

class EventEditorPanels : public CalendarTest
{
protected:
  struct Panel
  {
    QString open;
    std::string name;
    std::string heading;
    QString close;
    std::string focus;
  };
  const std::vector<Panel> panels = {
      {Editor::kOpenAdd, "fraAdd", "Add an event for May 12, 2026", Editor::kCloseAdd, "cboReminders"},
      {Editor::kOpenDelete, "fraDelete", "Delete an event for May 12, 2026", Editor::kCloseDelete, "lstDelete"},
      {Editor::kOpenEdit, "fraEdit", "Edit an event for May 12, 2026", Editor::kCloseEdit, "lstChanges"},
  };

  static void ExpectOpen(const Panel& panel)
  {
    EXPECT_EQ(OpenPanels(), panel.name);
    EXPECT_EQ(Heading(), panel.heading);
    EXPECT_EQ(Focus(), panel.focus);
  }
};

}

TEST_F(EventEditorPanels, EachOpensAlone)
{
  Open();
  for (const Panel& from : panels) {
    for (const Panel& to : panels) {
      Click(from.open);
      ExpectOpen(from);
      Click(to.open);
      ExpectOpen(to);
    }
  }
}

TEST_F(EventEditorPanels, EachClosesToTheDate)
{
  Open();
  for (const Panel& panel : panels) {
    Click(panel.open);
    Click(panel.close);
    EXPECT_EQ(OpenPanels(), "");
    EXPECT_EQ(Heading(), "May 12, 2026");
  }
}

TEST_F(EventEditorPanels, OpeningAddEmptiesTheDetailsOnly)
{
  Open(kDay, Editor::kOpenAdd);
  FillAdd("Dentist", "9:30 pm", "Bring the card");
  Click(Editor::kCloseAdd);
  EXPECT_EQ(AddBoxes(), "Dentist|9:30 pm|Bring the card");
  Click(Editor::kOpenAdd);
  EXPECT_EQ(AddBoxes(), "Dentist|9:30 pm|");
}

TEST_F(EventEditorPanels, DeleteListsTheTitlesOfTheDay)
{
  const int vet = Store("Vet", "14:00:00");
  const int dentist = Store("Dentist", "09:30:00");
  const int rent = Store("Rent");
  StoreOn(QDate(2026, 5, 13), "Tomorrow");
  StoreOn(QDate(2025, 5, 12), "Last year");
  StoreOn(QDate(2026, 6, 12), "Next month");
  Open(kDay, Editor::kOpenDelete);
  EXPECT_EQ(LinesOf("lstDelete"), "Rent|Dentist|Vet");
  EXPECT_EQ(List("lstDelete").ListIndex(), -1);
  EXPECT_EQ(modCalVariables::CalEventIds, std::vector<int>({rent, dentist, vet}));
  Click(Editor::kOpenDelete);
  EXPECT_EQ(LinesOf("lstDelete"), "Rent|Dentist|Vet");
}

TEST_F(EventEditorPanels, EditListsTheTitlesOfTheDay)
{
  const int vet = Store("Vet", "14:00:00");
  const int rent = Store("Rent");
  Open(kDay, Editor::kOpenEdit);
  EXPECT_EQ(LinesOf("lstChanges"), "Rent|Vet");
  EXPECT_EQ(List("lstChanges").ListIndex(), -1);
  EXPECT_EQ(modCalVariables::CalEventIds, std::vector<int>({rent, vet}));
  ClickLine("lstChanges", 1);
  EXPECT_EQ(Text("txtEvent"), "Vet");
  Click(Editor::kOpenEdit);
  EXPECT_EQ(LinesOf("lstChanges"), "Rent|Vet");
  EXPECT_EQ(List("lstChanges").ListIndex(), -1);
  EXPECT_EQ(EditBoxes(), "||");
}

TEST_F(EventEditorPanels, ADayWithoutEventsListsNone)
{
  StoreOn(QDate(2026, 5, 13), "Tomorrow");
  Open(kDay, Editor::kOpenDelete);
  EXPECT_EQ(LinesOf("lstDelete"), "");
  Click(Editor::kOpenEdit);
  EXPECT_EQ(LinesOf("lstChanges"), "");
  EXPECT_EQ(modCalVariables::CalEventIds, std::vector<int>());
}

TEST_F(EventEditorPanels, ATableWithoutEventsListsNone)
{
  Open(kDay, Editor::kOpenDelete);
  EXPECT_EQ(LinesOf("lstDelete"), "");
  Click(Editor::kOpenEdit);
  EXPECT_EQ(LinesOf("lstChanges"), "");
}

TEST_F(EventEditorPanels, ListsAreFreshAtEachOpening)
{
  Open(kDay, Editor::kOpenAdd);
  FillAdd("Dentist");
  Click(Editor::kAdd);
  Click(Editor::kOpenDelete);
  EXPECT_EQ(LinesOf("lstDelete"), "Dentist");
  Click(Editor::kOpenEdit);
  EXPECT_EQ(LinesOf("lstChanges"), "Dentist");
}

TEST_F(EventEditorPanels, TabWalksThroughTheOpenPanel)
{
  const std::vector<std::pair<QString, QStringList>> walks = {
      {Editor::kOpenAdd, {"cboReminders", "txtAddTime", "txtNotes", "lblData_0", "lblData_5", "lblOptions_0"}},
      {Editor::kOpenDelete, {"lstDelete", "lblData_1", "lblData_3", "lblOptions_0", "lblOptions_1"}},
      {Editor::kOpenEdit,
       {"lstChanges", "txtEvent", "txtTime", "txtNotesEdit", "lblData_2", "lblData_4", "lblOptions_0"}},
  };
  Open();
  for (const auto& [command, walk] : walks) {
    Click(command);
    for (const QString& control : walk) {
      EXPECT_EQ(Focus(), control.toStdString());
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
  }
}

TEST_F(EventEditorPanels, EnterWalksFromBoxToBox)
{
  Open(kDay, Editor::kOpenAdd);
  for (const char* next : {"txtAddTime", "txtNotes"}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Focus(), next);
  }
  Click(Editor::kOpenEdit);
  Control("txtEvent").setFocus();
  for (const char* next : {"txtTime", "txtNotesEdit"}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter);
    EXPECT_EQ(Focus(), next);
  }
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(Text("txtNotesEdit"), "\n");
}

TEST_F(EventEditorPanels, ControlEnterFinishesWhatIsEntered)
{
  Store("Vet");
  Open(kDay, Editor::kOpenAdd);
  FillAdd("Dentist");
  Press("txtNotes", Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(Rows(), Lines({Row("Vet|-|-"), Row("Dentist|-|-")}));
  Click(Editor::kOpenEdit);
  ClickLine("lstChanges", 0);
  FillEdit("Doctor");
  Press("txtEvent", Qt::Key_Enter, Qt::ControlModifier);
  EXPECT_EQ(Rows(), Lines({Row("Doctor|-|-"), Row("Dentist|-|-")}));
  Click(Editor::kOpenDelete);
  ClickLine("lstDelete", 0);
  Press("lstDelete", Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(Rows(), Lines({Row("Doctor|-|-"), Row("Dentist|-|-")})) << "nothing is deleted in passing";
}

TEST_F(EventEditorPanels, CommandsArePressedByKeyboard)
{
  Open();
  Press("lblOptions_0", Qt::Key_Space);
  EXPECT_EQ(OpenPanels(), "fraAdd");
  FillAdd("Dentist");
  Press("lblData_0", Qt::Key_Return);
  EXPECT_EQ(Rows(), Lines({Row("Dentist|-|-")}));
  Press("lblData_5", Qt::Key_Space);
  EXPECT_EQ(OpenPanels(), "");
}

TEST_F(EventEditorPanels, CommandsLightUpUnderTheMouse)
{
  Open(kDay, Editor::kOpenAdd);
  Page().move(calendar.Window().frameGeometry().topRight());
  const auto label = [](const char* name) -> Label& { return dynamic_cast<Label&>(Control(name)); };
  Drive::MoveOver(Page(), "lblOptions_1");
  EXPECT_EQ(label("lblOptions_1").BackStyle(), Label::kOpaque);
  EXPECT_EQ(label("lblOptions_1").ForeColor(), QColor(0xD1, 0x8C, 0x41));
  Drive::MoveOver(Page(), "lblData_0");
  EXPECT_EQ(label("lblOptions_1").BackStyle(), Label::kTransparent);
  EXPECT_EQ(label("lblOptions_1").ForeColor(), QColor(Qt::black));
  EXPECT_EQ(label("lblData_0").BackStyle(), Label::kOpaque);
  EXPECT_EQ(label("lblData_0").ForeColor(), QColor(Qt::black));
  Drive::MoveOver(Page(), "txtNotes");
  EXPECT_EQ(label("lblData_0").BackStyle(), Label::kTransparent);
}
