// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures/Tour.h"

#include "pictures/Hand.h"

namespace {

const QString kNotices = QStringLiteral("frmTextNotice");
const QString kMain = QStringLiteral("frmIntro");
const QString kLookUp = QStringLiteral("frmQuillmark");
const QString kOccasions = QStringLiteral("frmSpecial");
const QString kCharts = QStringLiteral("frmCharts");
const QString kCalendar = QStringLiteral("frmReminders");
const QString kEvents = QStringLiteral("frmCalEdit");
const QString kPrintCalendar = QStringLiteral("frmPrintCal");
const QString kRecords = QStringLiteral("frmNew");
const QString kCouples = QStringLiteral("frmAnn");
const QString kReminders = QStringLiteral("frmNotice");
const QString kAutostart = QStringLiteral("frmAutoStart");
const QString kAbout = QStringLiteral("frmAbout");
const QString kHelp = QStringLiteral("HelpViewer");

void Click(const QString& form, const char* control)
{
  Hand::Click(form, QLatin1String(control));
}

void Notices()
{
  Hand::ClickLine(kNotices, QStringLiteral("lstNotices"), QString());
  Hand::AwaitShown(kNotices, QStringLiteral("lstMoreInfo"));
}

void MainPage()
{
  Click(kNotices, "lblOptions_0");
  Hand::AwaitShown(kMain, QStringLiteral("shpOne_11"));
}

void LookUp()
{
  Click(kMain, "lblOptions_0");
  Hand::ClickLine(kLookUp, QStringLiteral("lstNames"), QStringLiteral("Aoife"));
  Click(kLookUp, "lblAll_0");
}

void LookUpPrint()
{
  Click(kLookUp, "lblOptions_1");
  Hand::AwaitShown(kLookUp, QStringLiteral("fraPrint"));
}

void LookUpLetter()
{
  Click(kLookUp, "lblOptions_5");
  Click(kLookUp, "lblOptions_2");
  Hand::AwaitShown(kLookUp, QStringLiteral("fraLetter"));
}

void LookUpDatabase()
{
  Click(kLookUp, "lblOptions_9");
  Click(kLookUp, "lblOptions_11");
  Hand::AwaitShown(kLookUp, QStringLiteral("fraDatabase"));
}

void Occasions()
{
  Click(kLookUp, "lblOptions_12");
  Click(kLookUp, "lblOptions_0");
  Click(kMain, "lblOptions_1");
  Hand::ClickLine(kOccasions, QStringLiteral("lstBirthdays"), QString());
  Hand::ClickLine(kOccasions, QStringLiteral("lstAnn"), QString());
}

void OccasionsCalendar()
{
  Click(kOccasions, "lblOptions_1");
  Hand::AwaitShown(kOccasions, QStringLiteral("fraCalendar"));
}

void OccasionsPrint()
{
  Click(kOccasions, "lblOptions_10");
  Click(kOccasions, "lblOptions_4");
  Hand::AwaitShown(kOccasions, QStringLiteral("fraPrint"));
}

void OccasionsFamous()
{
  Click(kOccasions, "lblOptions_3");
  Click(kOccasions, "lblOptions_5");
  Hand::AwaitShown(kOccasions, QStringLiteral("fraFamous"));
}

void OccasionsDatabase()
{
  Click(kOccasions, "lblOptions_9");
  Click(kOccasions, "lblOptions_6");
  Hand::AwaitShown(kOccasions, QStringLiteral("fraDatabase"));
}

void Charts()
{
  Click(kOccasions, "lblOptions_7");
  Click(kOccasions, "lblOptions_0");
  Click(kMain, "lblOptions_2");
  Click(kCharts, "optChoices_2");
}

void ChartsCircles()
{
  Click(kCharts, "optChoices_1");
  Click(kCharts, "optOptions_1");
}

void Calendar()
{
  Click(kCharts, "lblOptions_0");
  Click(kMain, "lblOptions_3");
  Hand::AwaitShown(kCalendar);
}

void CalendarDetails()
{
  Hand::ClickLine(kCalendar, QStringLiteral("lstReminders_16"), QString());
  Hand::AwaitShown(kCalendar, QStringLiteral("txtNotesDisplay"));
}

void Events()
{
  Click(kCalendar, "lblDay_16");
  Hand::AwaitShown(kEvents);
}

// Enter goes from box to box.
void Fill(const QStringList& texts)
{
  for (const QString& text : texts) {
    Hand::Type(text);
    Hand::Press(QStringLiteral("Return"));
  }
}

void EventsAdd()
{
  Click(kEvents, "lblOptions_0");
  Hand::AwaitShown(kEvents, QStringLiteral("fraAdd"));
  Fill({"Ballet", "4:30 pm"});
  Hand::Type(QStringLiteral("Shoes are in the blue bag."));
}

void EventsDelete()
{
  Click(kEvents, "lblData_5");
  Click(kEvents, "lblOptions_1");
  Hand::AwaitShown(kEvents, QStringLiteral("fraDelete"));
}

void EventsChange()
{
  Click(kEvents, "lblData_3");
  Click(kEvents, "lblOptions_2");
  Hand::ClickLine(kEvents, QStringLiteral("lstChanges"), QString());
}

void PrintCalendar()
{
  Click(kEvents, "lblData_4");
  Click(kEvents, "lblOptions_3");
  Click(kCalendar, "lblOptions_3");
  Hand::AwaitShown(kPrintCalendar);
}

void Records()
{
  Click(kPrintCalendar, "lblOptions_1");
  Hand::ClickMenu({"mnuAdd", "mnuPersonal"});
  Click(kRecords, "cmdLast");
  Click(kRecords, "lblOptions_3");
  Hand::Answer(QStringLiteral("Halvorsrud, Margit"));
}

void RecordsAdd()
{
  Click(kRecords, "lblOptions_6");
  Hand::AwaitShown(kRecords, QStringLiteral("fraAdd"));
  Fill({"Runa", "Halvorsrud"});
}

void RecordsEdit()
{
  Click(kRecords, "lblOptions_1");
  Click(kRecords, "lblOptions_7");
  Hand::AwaitShown(kRecords, QStringLiteral("fraEdit"));
}

void Couples()
{
  Click(kRecords, "lblOptions_4");
  Hand::ClickMenu({"mnuAdd", "mnuAnn"});
  Hand::ClickLine(kCouples, QStringLiteral("lstPartner1"), QStringLiteral("Halvorsrud, Margit"));
}

void Reminders()
{
  Hand::ClickMenu({"mnuAudio", "mnuSetReminders"});
  Hand::AwaitShown(kReminders);
}

void Autostart()
{
  Click(kReminders, "lblOptions_0");
  Hand::ClickMenu({"mnuOptions", "mnuAutostart"});
  Hand::AwaitShown(kAutostart);
}

void About()
{
  Click(kAutostart, "lblOptions_0");
  Hand::ClickMenu({"mnuHelp", "mnuAbout"});
  Hand::AwaitShown(kAbout);
}

void Help()
{
  Click(kAbout, "lblOptions_0");
  Hand::ClickMenu({"mnuHelp", "mnuContents"});
  Hand::AwaitShown(kHelp);
}

}

const std::vector<Stop>& Tour()
{
  static const std::vector<Stop> stops = {
      {"notices", kNotices, Notices},
      {"main-page", kMain, MainPage},
      {"look-up", kLookUp, LookUp},
      {"look-up-print", kLookUp, LookUpPrint},
      {"look-up-letter", kLookUp, LookUpLetter},
      {"look-up-database", kLookUp, LookUpDatabase},
      {"occasions", kOccasions, Occasions},
      {"occasions-calendar", kOccasions, OccasionsCalendar},
      {"occasions-print", kOccasions, OccasionsPrint},
      {"occasions-famous", kOccasions, OccasionsFamous},
      {"occasions-database", kOccasions, OccasionsDatabase},
      {"charts", kCharts, Charts},
      {"charts-circles", kCharts, ChartsCircles},
      {"calendar", kCalendar, Calendar},
      {"calendar-details", kCalendar, CalendarDetails},
      {"event-editor", kEvents, Events},
      {"event-editor-add", kEvents, EventsAdd},
      {"event-editor-delete", kEvents, EventsDelete},
      {"event-editor-change", kEvents, EventsChange},
      {"calendar-print", kPrintCalendar, PrintCalendar},
      {"record-editor", kRecords, Records},
      {"record-editor-add", kRecords, RecordsAdd},
      {"record-editor-edit", kRecords, RecordsEdit},
      {"couple-editor", kCouples, Couples},
      {"reminder-settings", kReminders, Reminders},
      {"autostart", kAutostart, Autostart},
      {"about", kAbout, About},
      {"help", kHelp, Help},
  };
  return stops;
}
