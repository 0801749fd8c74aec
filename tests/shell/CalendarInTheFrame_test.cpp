// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ShellTest.h"

#include "controls/EntryBox.h"
#include "controls/ListBox.h"
#include "looks/modThemes.h"
#include "support/Hands.h"
#include "support/PrintDialogScript.h"
#include "support/PrintedPages.h"

namespace {

// The real calendar and its event editor in the real frame, on 5 May 2026, which is cell 9.
class CalendarInTheFrame : public ShellTest
{
};

}

TEST_F(CalendarInTheFrame, AnEventIsAddedToADayAndShowsInItsCell)
{
  Start();
  Drive::Click(MainPage(), "lblOptions_3");
  Form* calendar = Forms::Loaded("frmReminders");
  ASSERT_NE(calendar, nullptr);
  int shown = 0;
  Drive::WhenShown("frmCalEdit", [&](QWidget& editor) {
    ++shown;
    EXPECT_TRUE(editor.isModal());
    Drive::Click(editor, "lblOptions_0");
    dynamic_cast<EntryBox&>(Drive::Control(editor, "cboReminders")).SetText("Dentist");
    dynamic_cast<EntryBox&>(Drive::Control(editor, "txtAddTime")).SetText("9:30 pm");
    Drive::Click(editor, "lblData_0");
    Drive::Click(editor, "lblOptions_3");
  });
  Drive::Click(*calendar, "lblDay_9");
  EXPECT_EQ(shown, 1);
  EXPECT_EQ(Forms::Loaded("frmCalEdit"), nullptr);
  const auto& cell = dynamic_cast<ListBox&>(Drive::Control(*calendar, "lstReminders_9"));
  EXPECT_TRUE(cell.isVisible());
  EXPECT_EQ(cell.List(0), " Dentist 9:30pm");
  EXPECT_EQ(folder.Value("SELECT Date || ' ' || Event || ' ' || Time FROM Reminders").toString(),
            "2026-05-05 Dentist 21:30:00");
  Drive::Click(*calendar, "lblOptions_2");
}

TEST_F(CalendarInTheFrame, TheMenuOpensItWithItsPrintDialogAndPrintsTheMonth)
{
  LayThemes();
  folder.Execute("INSERT INTO Reminders (Month, Date, Event) VALUES ('May', '2026-05-05', 'Dentist')");
  const QString path = folder.File("/month.pdf");
  Start();
  bool seen = false;
  Drive::WhenShown("frmPrintCal", [&](QWidget& dialog) {
    seen = true;
    Form& calendar = *Forms::Loaded("frmReminders");
    EXPECT_TRUE(dialog.isModal());
    EXPECT_TRUE(calendar.isVisible());
    EXPECT_TRUE(modThemes::CalendarHasPicture());
    EXPECT_EQ(PictureIn(calendar, "picReminders"), ThemePicture("amaryllisw.jpg"));
    Hands::Tick(Drive::Control(dialog, "optFormat_0"));
    PrintDialogScript dialogs;
    dialogs.ExpectPdf(path);
    boxes.Expect("Printing completed");
    Drive::Click(dialog, "lblOptions_0");
    EXPECT_EQ(boxes.Count(), 1U);
    Drive::Click(dialog, "lblOptions_1");
  });
  Menu("mnuLists_2").trigger();
  EXPECT_TRUE(seen);
  EXPECT_EQ(Forms::Loaded("frmPrintCal"), nullptr);
  EXPECT_TRUE(Forms::Loaded("frmReminders")->isVisible());
  EXPECT_FALSE(MainPage().isVisible());
  const PrintedPages pages(path);
  EXPECT_EQ(pages.Word("May").page, 1);
  EXPECT_EQ(pages.Word("Dentist").page, 1);
}
