// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CalendarTest.h"

#include "looks/modResize.h"
#include "looks/modThemes.h"
#include "platform/HelpViewer.h"
#include "store/Options.h"
#include "support/HelpOnScreen.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QFile>
#include <QGroupBox>
#include <QWindow>

namespace {

class EventEditorLoad : public CalendarTest
{
protected:
  void WritePresets(const QByteArray& contents) const
  {
    QFile file(folder.File("/reminders.txt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(contents);
  }
  static std::string PresetLines()
  {
    QStringList lines;
    for (int i = 0; i < Presets().ListCount(); ++i) {
      lines.append(Presets().List(i));
    }
    return lines.join('|').toStdString();
  }

  // The click on a day ends the program with this failure.
  void ExpectProgramEnds(const QString& failure)
  {
    calendar.Open(kDay);
    expectedEndings = 1;
    boxes.Expect(failure);
    Drive::Click(CalendarBehind::Page(), "lblDay_16");
    EXPECT_EQ(endings, 1);
    EXPECT_FALSE(IsOpen());
  }
};

}

TEST_F(EventEditorLoad, ShowsTheDateAndNoPanel)
{
  Open(QDate(2026, 9, 3));
  EXPECT_EQ(Page().windowTitle(), "Add or edit events for calendar");
  EXPECT_EQ(Heading(), "September 3, 2026");
  EXPECT_EQ(OpenPanels(), "");
  EXPECT_EQ(Done(), "");
}

TEST_F(EventEditorLoad, SaysWhatItsCommandsDo)
{
  Open();
  EXPECT_EQ(dynamic_cast<QGroupBox&>(Control("fraOptions")).title(), " Options");
  const std::vector<std::pair<QString, std::string>> captions = {
      {"lblOptions_0", "  Add a new event"},
      {"lblOptions_1", "  Delete an existing event"},
      {"lblOptions_2", "  Edit an existing event"},
      {"lblOptions_3", "Close window"},
      {"lblData_0", "Add to calendar"},
      {"lblData_1", "Delete"},
      {"lblData_2", "Apply"},
      {"lblData_3", "Close"},
      {"lblData_4", "Close"},
      {"lblData_5", "Close"},
      {"lblDone", "Done"},
      {"lblDone2", "Done"},
      {"lblDone3", "Done"},
      {"lblAddStep_0", "Step 1. Select an event or type your own (limit 12 characters)"},
      {"lblAddStep_1", "Step 2. Add a time (optional)"},
      {"lblAddStep_2", "Step 3. Add further details for your event (optional)"},
      {"lblDeleteStep", "Select an event to delete"},
      {"lblEditStep_0", "Step 1. Select an event to edit"},
      {"lblEditStep_1", "Step  2. Make your changes..."},
      {"lblEvent", "Event:"},
      {"lblTime", "Time:"},
      {"lblDetails", "Details:"},
  };
  for (const auto& [label, caption] : captions) {
    EXPECT_EQ(Caption(label), caption) << label.toStdString();
  }
}

TEST_F(EventEditorLoad, ControlsStandBelowTheirSteps)
{
  Open();
  const std::vector<std::pair<QString, QString>> steps = {
      {"lblAddStep_0", "cboReminders"}, {"lblAddStep_1", "txtAddTime"},  {"lblAddStep_2", "txtNotes"},
      {"lblDeleteStep", "lstDelete"},   {"lblEditStep_0", "lstChanges"}, {"lblEditStep_1", "txtEvent"},
  };
  for (const auto& [step, control] : steps) {
    EXPECT_EQ(Control(step).parentWidget(), Control(control).parentWidget()) << step.toStdString();
    EXPECT_LE(Control(step).geometry().bottom(), Control(control).y()) << step.toStdString();
  }
  EXPECT_EQ(Control("fraAdd").geometry(), Control("fraEdit").geometry());
  EXPECT_EQ(Control("fraAdd").geometry(), Control("fraDelete").geometry());
}

TEST_F(EventEditorLoad, TipsShowWhenTheyAreOn)
{
  Open();
  const std::vector<std::pair<QString, QString>> tips = {
      {"lblOptions_0", "Add a new event to the calendar"},
      {"lblOptions_1", "Delete an event on the calendar"},
      {"lblOptions_2", "Edit an event on the calendar"},
      {"lblOptions_3", "Close"},
      {"cboReminders", "Click to select an event"},
      {"txtAddTime", "Add time"},
      {"txtNotes", "Add details"},
      {"lblData_0", "Add event to calendar"},
      {"lblData_5", "Close panel"},
      {"lstDelete", "Click to select"},
      {"lblData_1", "Delete event from calendar"},
      {"lblData_3", "Close panel"},
      {"lstChanges", "Click to select"},
      {"txtEvent", "Edit event"},
      {"txtTime", "Edit time"},
      {"txtNotesEdit", "Edit details"},
      {"lblData_2", "Apply changes to calendar"},
      {"lblData_4", "Close panel"},
  };
  for (const auto& [control, tip] : tips) {
    EXPECT_EQ(Control(control).toolTip(), tip) << control.toStdString();
  }
}

TEST_F(EventEditorLoad, TipsAreEmptyWhenTheyAreOff)
{
  modToolTips::SetTipsOff(true);
  Open();
  for (const QWidget* control : Page().Controls()) {
    EXPECT_EQ(control->toolTip(), "") << control->objectName().toStdString();
  }
}

TEST_F(EventEditorLoad, TakesTheBackgroundOfTheTheme)
{
  for (const auto& [theme, colour] : {std::pair(4, "#ffffff"), std::pair(5, "#fff9e9"), std::pair(1, "#ffffff")}) {
    folder.Execute("UPDATE Options SET Theme=?", {theme});
    Open();
    EXPECT_EQ(Page().BackColor().name(), colour) << theme;
    Command::Run([] { Forms::Unload("frmCalEdit"); });
    DropUnloaded();
  }
}

TEST_F(EventEditorLoad, OffersThePresetTitles)
{
  WritePresets("Dentist,\"Tea, 4 cups\"\r\nVet\r\n");
  Open();
  EXPECT_EQ(PresetLines(), "Dentist|Tea, 4 cups|Vet");
  EXPECT_EQ(Text("cboReminders"), "");
}

TEST_F(EventEditorLoad, OffersNothingFromAnEmptyFile)
{
  WritePresets("");
  Open();
  EXPECT_EQ(PresetLines(), "");
}

TEST_F(EventEditorLoad, OffersPresetsInAnotherEncoding)
{
  WritePresets("Caf\xE9\r\nF\xEAte");
  Open();
  EXPECT_EQ(PresetLines(), "Café|Fête");
}

TEST_F(EventEditorLoad, TenMegabytesOfPresetsDoNotHoldItUp)
{
  QByteArray contents;
  int count = 0;
  for (; contents.size() < 10'000'000; ++count) {
    contents += "Event " + QByteArray::number(count) + "\n";
  }
  contents += QByteArray(1'000'000, 'x');
  WritePresets(contents);
  QElapsedTimer clock;
  clock.start();
  Open(kDay, Editor::kOpenAdd);
  EXPECT_EQ(Presets().ListCount(), count);
  Type("cboReminders", "Event 5");
  PickPreset(count - 1);
  EXPECT_EQ(Text("cboReminders"), "Event " + std::to_string(count - 1));
  Click(Editor::kAdd);
  EXPECT_EQ(Text("cboReminders"), "");
  EXPECT_LT(clock.elapsed(), 60'000) << "the limit of a hang, not of what is quick";
}

TEST_F(EventEditorLoad, AMissingFileEndsTheProgram)
{
  ASSERT_TRUE(QFile::remove(folder.File("/reminders.txt")));
  ExpectProgramEnds("Run-time error '53':\n\nFile not found");
}

TEST_F(EventEditorLoad, WritesTheDatesOfTheCellsBack)
{
  calendar.Open(kDay);
  for (int cell = 0; cell < 37; ++cell) {
    modResize::SetTag(CellList(cell), "another");
  }
  Open();
  EXPECT_EQ(modCalVariables::CalDaysInMonth, 31);
  EXPECT_EQ(modCalVariables::CalFirstWeekday, 6);
  for (int cell = 0; cell < 37; ++cell) {
    const QString date = QDate(2026, 4, 26).addDays(cell).toString(Qt::ISODate);
    EXPECT_EQ(modResize::TagOf(CellList(cell)), cell < 36 ? date : "another") << cell;
  }
}

TEST_F(EventEditorLoad, IsModalOverTheCalendar)
{
  calendar.Open(kDay);
  int shown = 0;
  Drive::WhenShown("frmCalEdit", [&](QWidget& form) {
    ++shown;
    EXPECT_TRUE(form.isModal());
    EXPECT_EQ(form.windowHandle()->transientParent(), calendar.Window().windowHandle());
    EXPECT_EQ(Heading(), "May 12, 2026");
    Click(Editor::kOpenAdd);
    FillAdd("Dentist", "9:30 pm");
    Click(Editor::kAdd);
    EXPECT_EQ(Cell(), " Dentist 9:30pm");
    Click(Editor::kClose);
  });
  Drive::Click(CalendarBehind::Page(), "lblDay_16");
  EXPECT_EQ(shown, 1);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Cell(), " Dentist 9:30pm");
  EXPECT_EQ(Rows(), Lines({Row("Dentist|21:30:00|-")}));
}

TEST_F(EventEditorLoad, StandsOverTheMiddleOfTheCalendar)
{
  calendar.Open(kDay);
  calendar.Window().move(200, 100);
  Open();
  const QPoint middle = calendar.Window().frameGeometry().center();
  EXPECT_LE((Page().frameGeometry().center() - middle).manhattanLength(), 8);
}

TEST_F(EventEditorLoad, CloseWindowUnloadsIt)
{
  Open();
  Click(Editor::kClose);
  EXPECT_FALSE(IsOpen());
}

TEST_F(EventEditorLoad, TheCloseBoxUnloadsIt)
{
  Open(kDay, Editor::kOpenAdd);
  Page().close();
  EXPECT_FALSE(IsOpen());
}

TEST_F(EventEditorLoad, EscapeUnloadsItFromEveryControl)
{
  const std::vector<std::pair<QString, QStringList>> panels = {
      {Editor::kOpenAdd, {"cboReminders", "txtAddTime", "txtNotes", "lblData_0", "lblData_5"}},
      {Editor::kOpenDelete, {"lstDelete", "lblData_1"}},
      {Editor::kOpenEdit, {"lstChanges", "txtEvent", "txtTime", "txtNotesEdit", "lblData_2", "lblOptions_0"}},
  };
  Store("Dentist");
  for (const auto& [command, controls] : panels) {
    for (const QString& control : controls) {
      Open(kDay, command);
      Control(control).setFocus();
      Press(control, Qt::Key_Escape);
      EXPECT_FALSE(IsOpen()) << control.toStdString();
      DropUnloaded();
    }
  }
}

TEST_F(EventEditorLoad, EscapeClosesTheListOfPresetsAlone)
{
  Open(kDay, Editor::kOpenAdd);
  Presets().showPopup();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(Presets().view()->window()));
  QTest::keyClick(Presets().view(), Qt::Key_Escape);
  EXPECT_TRUE(QTest::qWaitFor([] { return !IsOpen() || !Presets().view()->isVisible(); }));
  EXPECT_TRUE(IsOpen());
}

TEST_F(EventEditorLoad, NothingIsKeptFromOneOpeningToTheNext)
{
  Open(kDay, Editor::kOpenAdd);
  FillAdd("Dentist", "9:30 pm", "Bring the card");
  Click(Editor::kClose);
  DropUnloaded();
  Open();
  EXPECT_EQ(Heading(), "May 12, 2026");
  EXPECT_EQ(OpenPanels(), "");
  EXPECT_EQ(AddBoxes(), "||");
}

TEST_F(EventEditorLoad, EveryControlHasANameForReaders)
{
  Open();
  for (const char* name : {"cboReminders", "txtAddTime", "txtNotes", "lstDelete", "lstChanges", "txtEvent", "txtTime",
                           "txtNotesEdit", "lblOptions_0", "lblOptions_3", "lblData_0", "lblData_5"}) {
    QAccessibleInterface* control = QAccessible::queryAccessibleInterface(&Control(name));
    ASSERT_NE(control, nullptr) << name;
    EXPECT_NE(control->text(QAccessible::Name), "") << name;
  }
}

// The help follows what waits for its user, which must not stand over the help in turn.
TEST_F(EventEditorLoad, StandsOverTheCalendarAlsoWhileTheHelpIsActive)
{
  HelpOnScreen::Lay(folder.Path());
  calendar.Open(kDay);
  const QWidget& below = *CalendarBehind::Page().window();
  HelpViewer::ShowContents();
  ASSERT_TRUE(QTest::qWaitForWindowActive(HelpOnScreen::Window()));
  int shown = 0;
  Drive::WhenShown("frmCalEdit", [&](QWidget& form) {
    ++shown;
    EXPECT_EQ(form.windowHandle()->transientParent(), below.windowHandle());
    HelpViewer::Quit();
    EXPECT_TRUE(IsOpen());
    Click(Editor::kClose);
  });
  Drive::Click(CalendarBehind::Page(), "lblDay_16");
  EXPECT_EQ(shown, 1);
}
