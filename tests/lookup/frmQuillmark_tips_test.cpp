// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "LookupTest.h"

namespace {

class LookupTips : public LookupPageTest
{
protected:
  static void ExpectNone()
  {
    for (const QWidget* control : Page().Controls()) {
      EXPECT_EQ(control->toolTip().toStdString(), "") << control->objectName().toStdString();
    }
  }
};

const QList<std::pair<QString, std::string>> kTips = {
    {"lblNames_0", "Arrange by first name"},
    {"lblNames_1", "Arrange by last name"},
    {"lblAll_0", "Check all search options"},
    {"lblAll_1", "Clear all search options"},
    {"chkInfo_0", "Select items to retrieve"},
    {"chkInfo_1", "Select items to retrieve"},
    {"chkInfo_2", "Select items to retrieve"},
    {"chkPersonal_0", "Select items to retrieve"},
    {"chkPersonal_1", "Select items to retrieve"},
    {"chkNotes", "Select items to retrieve"},
    {"lblOptions_0", "Go back to the main page"},
    {"lblOptions_1", "Print lists of selected information"},
    {"lblOptions_2", "Start a letter to the selected individual"},
    {"lblOptions_3", "Send an email to the selected individual"},
    {"lblOptions_4", "Copy selected items to clipboard"},
    {"lblOptions_5", "Close"},
    {"lblOptions_6", "Open Notepad"},
    {"lblOptions_7", "Open Microsoft Word"},
    {"lblOptions_8", "Open Corel WordPerfect"},
    {"lblOptions_9", "Close"},
    {"lblOptions_10", "Print"},
    {"lblOptions_11", "Open database for editing"},
    {"lblOptions_12", "Close"},
    {"optData_0", "Edit records for an individual or add a new record"},
    {"optData_1", "Edit wedding annivarsary records"},
    {"optPrint_0", "Choose a name, select the records you wish to print, then click here"},
    {"optPrint_1", "Choose the records you wish to print, then click here"},
};

const QStringList kTipsOfTheForm = {"chkInfo_3", "chkInfo_4"};

}

TEST_F(LookupTips, EveryTipStandsInFull)
{
  AddPerson("Ann", "Wood");
  Open();
  for (const auto& [name, tip] : kTips) {
    EXPECT_EQ(TipOf(name), tip) << name.toStdString();
  }
  for (const QString& name : kTipsOfTheForm) {
    EXPECT_EQ(TipOf(name), "Select items to retrieve") << name.toStdString();
  }
}

TEST_F(LookupTips, NothingElseHasATip)
{
  Open();
  QStringList named = kTipsOfTheForm;
  for (const auto& [name, tip] : kTips) {
    named.append(name);
  }
  for (const QWidget* control : Page().Controls()) {
    EXPECT_EQ(control->toolTip().isEmpty(), !named.contains(control->objectName()))
        << control->objectName().toStdString();
  }
}

TEST_F(LookupTips, WithTheTipsOffNoControlHasOne)
{
  modToolTips::SetTipsOff(true);
  AddPerson("Ann", "Wood");
  Open();
  ExpectNone();
  Click(kCheckAll);
  ClickLine(0);
  Click(kLastNameOrder);
  ExpectNone();
}

TEST_F(LookupTips, ASwitchTakesEffectOnTheOpenPage)
{
  Open();
  Command::Run([] { modToolTips::Choose(true); });
  ExpectNone();
  Command::Run([] { modToolTips::Choose(false); });
  for (const auto& [name, tip] : kTips) {
    EXPECT_EQ(TipOf(name), tip) << name.toStdString();
  }
}
