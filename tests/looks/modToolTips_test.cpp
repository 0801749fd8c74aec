// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "looks/modToolTips.h"

#include "controls/ComboBox.h"
#include "controls/Form.h"
#include "controls/Forms.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "looks/ToolTipTable.h"
#include "platform/Command.h"
#include "support/MessageBoxScript.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <map>
#include <set>

namespace {

// The tips that the user is to see. "lblMonth" of frmSpecial, "lblDay" and
// "lstReminders" stand for all elements of these arrays.
const std::vector<ToolTipRow> kExpected = {
    {"frmAbout", "lblOptions_0", "Go back to the main page"},
    {"frmAbout", "lblOptions_1", "Click to send email"},
    {"frmSpecial", "lstBirthdays", "Click on a name for more information"},
    {"frmSpecial", "lstAnn", "Click on a couple for more information"},
    {"frmSpecial", "lblOptions_0", "Go back to the main page"},
    {"frmSpecial", "lblOptions_1", "Click to open a monthly calendar"},
    {"frmSpecial", "lblOptions_2", "Print"},
    {"frmSpecial", "lblOptions_3", "Close"},
    {"frmSpecial", "lblOptions_4", "Print special events by month"},
    {"frmSpecial", "lblOptions_5", "View celebrity birthdays for any day in the year"},
    {"frmSpecial", "lblOptions_6", "Open database for editing"},
    {"frmSpecial", "lblOptions_7", "Close"},
    {"frmSpecial", "lblOptions_8", "Go to Famous birthdays"},
    {"frmSpecial", "lblOptions_9", "Close"},
    {"frmSpecial", "lblOptions_10", "Close calendar"},
    {"frmSpecial", "optPrint_0", "Print special events for the displayed month"},
    {"frmSpecial", "optPrint_1", " Print special events for the entire year"},
    {"frmSpecial", "optData_0", "Edit records for an individual or add a new record"},
    {"frmSpecial", "optData_1", "Edit wedding annivarsary records"},
    {"frmSpecial", "cboMonth", "Select a month"},
    {"frmSpecial", "cboDay", "Select a day"},
    {"frmSpecial", "lblMonth", "Click to select a month"},
    {"frmSpecial", "cboYear", "Click to select a year"},
    {"frmAnn", "lstPartner1", "Select a name"},
    {"frmAnn", "lstPartner2", "Select a name"},
    {"frmAnn", "cboAnnMonth", "Select a month"},
    {"frmAnn", "cboAnnDate", "Select a day"},
    {"frmAnn", "cboAnnYear", "Select a year"},
    {"frmAnn", "lstDelete", "Select a couple, then click Delete"},
    {"frmAnn", "lblOptions_0", "Click here after you've entered your information"},
    {"frmAnn", "lblOptions_1", "Go back to the main page"},
    {"frmAnn", "lblOptions_2", "Click to delete couple"},
    {"frmAnn", "lblOptions_3", "Click to cancel addition of anniversary"},
    {"frmNew", "lblOptions_0", "Click here after you've entered all your information"},
    {"frmNew", "lblOptions_1", "Cancel addition"},
    {"frmNew", "lblOptions_2", "Go back to the main page"},
    {"frmNew", "lblOptions_3", "Find a specific name"},
    {"frmNew", "lblOptions_4", "Cancel editing"},
    {"frmNew", "lblOptions_5", "Click here after making your changes"},
    {"frmNew", "lblOptions_6", "Start a new blank form"},
    {"frmNew", "lblOptions_7", "Edit records for this person"},
    {"frmNew", "lblOptions_8", "Delete this person from the database"},
    {"frmNew", "lblOptions_9", "Click to add or edit an anniversary for this person"},
    {"frmNew", "lblOptions_10", "Go to the Help file"},
    {"frmNew", "cmdNext", "Click to go to the next record"},
    {"frmNew", "cmdPrevious", "Click to go to the previous record"},
    {"frmNew", "cmdFirst", "Click to go to the first record"},
    {"frmNew", "cmdLast", "Click to go to the last record"},
    {"frmNew", "cboStreet", "Fills in boxes with information already entered for another person."},
    {"frmCharts", "optOptions_0", "Information is presented as a bar graph"},
    {"frmCharts", "optOptions_1", "Information is presented as pie charts"},
    {"frmCharts", "optChoices_0", "Plots number of people in each city "},
    {"frmCharts", "optChoices_1", "Plots number of people in each age class"},
    {"frmCharts", "optChoices_2", "Plots number of birthdays in each month"},
    {"frmCharts", "optChoices_3", "Plots number of anniversaries in each month"},
    {"frmCharts", "optChoices_4", "Plots number of people in each state or province"},
    {"frmCharts", "lblOptions_0", "Go back to the main page"},
    {"frmReminders", "lblOptions_0", "Go forward one month"},
    {"frmReminders", "lblOptions_1", "Go back one month"},
    {"frmReminders", "lblOptions_2", "Go back to the main page"},
    {"frmReminders", "lblOptions_3", "Print calendar"},
    {"frmReminders", "lstMonth", "Select a month"},
    {"frmReminders", "lstYear", "Select a year"},
    {"frmReminders", "lblMonth", "Click to select another month"},
    {"frmReminders", "lblYear", "Click to select another year"},
    {"frmReminders", "lblDay", "Click to add or edit events for this date"},
    {"frmReminders", "lstReminders", "Click on an event for more details"},
    {"frmQuillmark", "lblNames_0", "Arrange by first name"},
    {"frmQuillmark", "lblNames_1", "Arrange by last name"},
    {"frmQuillmark", "lblAll_0", "Check all search options"},
    {"frmQuillmark", "lblAll_1", "Clear all search options"},
    {"frmQuillmark", "chkInfo_0", "Select items to retrieve"},
    {"frmQuillmark", "chkInfo_1", "Select items to retrieve"},
    {"frmQuillmark", "chkInfo_2", "Select items to retrieve"},
    {"frmQuillmark", "chkPersonal_0", "Select items to retrieve"},
    {"frmQuillmark", "chkPersonal_1", "Select items to retrieve"},
    {"frmQuillmark", "chkNotes", "Select items to retrieve"},
    {"frmQuillmark", "lblOptions_0", "Go back to the main page"},
    {"frmQuillmark", "lblOptions_1", "Print lists of selected information"},
    {"frmQuillmark", "lblOptions_2", "Start a letter to the selected individual"},
    {"frmQuillmark", "lblOptions_3", "Send an email to the selected individual"},
    {"frmQuillmark", "lblOptions_4", "Copy selected items to clipboard"},
    {"frmQuillmark", "lblOptions_5", "Close"},
    {"frmQuillmark", "lblOptions_6", "Open Notepad"},
    {"frmQuillmark", "lblOptions_7", "Open Microsoft Word"},
    {"frmQuillmark", "lblOptions_8", "Open Corel WordPerfect"},
    {"frmQuillmark", "lblOptions_9", "Close"},
    {"frmQuillmark", "lblOptions_10", "Print"},
    {"frmQuillmark", "lblOptions_11", "Open database for editing"},
    {"frmQuillmark", "lblOptions_12", "Close"},
    {"frmQuillmark", "optData_0", "Edit records for an individual or add a new record"},
    {"frmQuillmark", "optData_1", "Edit wedding annivarsary records"},
    {"frmQuillmark", "optPrint_0", "Choose a name, select the records you wish to print, then click here"},
    {"frmQuillmark", "optPrint_1", "Choose the records you wish to print, then click here"},
    {"frmIntro", "lblOptions_0", "Find addresses, phone numbers, birthdays..."},
    {"frmIntro", "lblOptions_1", "Birthdays and wedding anniversaries by month"},
    {"frmIntro", "lblOptions_2", "Graphical presentation of your records"},
    {"frmIntro", "lblOptions_3", "Monthly calendar of your important events"},
    {"frmIntro", "lblOptions_4", "Close Quillmark"},
    {"frmIntro", "lblOptions_5", "Check for birthday, anniversary, or calendar event reminders"},
    {"frmTextNotice", "lblOptions_0", "Open Quillmark"},
    {"frmTextNotice", "lblOptions_1", "Minimize Quillmark on your taskbar"},
    {"frmTextNotice", "lblOptions_2", "Close Quillmark"},
    {"frmTextNotice", "lstNotices", "Click for more information"},
    {"frmNotice", "lblOptions_0", "Go back to main page"},
    {"frmNotice", "optOneOrMany_0", "Reminder is given only on the day chosen"},
    {"frmNotice", "optOneOrMany_1", "Reminder starts on the day chosen and continues until the event arrives"},
    {"frmNotice", "optOneOrManyAnn_0", "Reminder is given only on the day chosen"},
    {"frmNotice", "optOneOrManyAnn_1", "Reminder starts on the day chosen and continues until the event arrives"},
    {"frmNotice", "optOneOrManyCal_0", "Reminder is given only on the day chosen"},
    {"frmNotice", "optOneOrManyCal_1", "Reminder starts on the day chosen and continues until the event arrives"},
    {"frmNotice", "cboDays", "Select the number of days in advance for a reminder"},
    {"frmNotice", "cboAnnDays", "Select the number of days in advance for a reminder"},
    {"frmNotice", "cboCalDays", "Select the number of days in advance for a reminder"},
    {"frmNotice", "chkCancelBirth", "Cancel all birthday reminders"},
    {"frmNotice", "chkCancelAnn", "Cancel all anniversary reminders"},
    {"frmNotice", "chkCancelCal", "Cancel all calendar event reminders"},
    {"frmPrintCal", "optFormat_0", "Prints in portait orientation with events (but not dates) on the calendar"},
    {"frmPrintCal", "optFormat_1", "Prints in landscape orientation with events and dates on the calendar"},
    {"frmPrintCal", "lblOptions_0", "Print calendar"},
    {"frmPrintCal", "lblOptions_1", "Close"},
    {"frmCalEdit", "lblOptions_0", "Add a new event to the calendar"},
    {"frmCalEdit", "lblOptions_1", "Delete an event on the calendar"},
    {"frmCalEdit", "lblOptions_2", "Edit an event on the calendar"},
    {"frmCalEdit", "lblOptions_3", "Close"},
    {"frmCalEdit", "lstDelete", "Click to select"},
    {"frmCalEdit", "lstChanges", "Click to select"},
    {"frmCalEdit", "txtEvent", "Edit event"},
    {"frmCalEdit", "txtTime", "Edit time"},
    {"frmCalEdit", "txtNotesEdit", "Edit details"},
    {"frmCalEdit", "txtAddTime", "Add time"},
    {"frmCalEdit", "cboReminders", "Click to select an event"},
    {"frmCalEdit", "txtNotes", "Add details"},
    {"frmCalEdit", "lblData_0", "Add event to calendar"},
    {"frmCalEdit", "lblData_1", "Delete event from calendar"},
    {"frmCalEdit", "lblData_2", "Apply changes to calendar"},
    {"frmCalEdit", "lblData_3", "Close panel"},
    {"frmCalEdit", "lblData_4", "Close panel"},
    {"frmCalEdit", "lblData_5", "Close panel"},
};

constexpr auto kOwnTip = "A tip of the page's own";

QStringList ElementsOf(const ToolTipRow& row)
{
  static const std::map<std::pair<std::string, std::string>, int> arrays = {
      {{"frmSpecial", "lblMonth"}, 12},
      {{"frmReminders", "lblDay"}, 37},
      {{"frmReminders", "lstReminders"}, 37},
  };
  const QString name = QString::fromLatin1(row.control);
  const auto found = arrays.find({row.form, row.control});
  if (found == arrays.end()) {
    return {name};
  }
  QStringList elements;
  for (int i = 0; i < found->second; ++i) {
    elements.append(name + QStringLiteral("_%1").arg(i));
  }
  return elements;
}

std::set<QString> FormNames()
{
  std::set<QString> names;
  for (const ToolTipRow& row : kExpected) {
    names.insert(QString::fromLatin1(row.form));
  }
  return names;
}

// Has the controls of the table, and one that is not in it.
class Page : public Form
{
public:
  explicit Page(const QString& name) : Form(name, Kind::kPage)
  {
    for (const ToolTipRow& row : kExpected) {
      if (name == QLatin1String(row.form)) {
        for (const QString& element : ElementsOf(row)) {
          Add(element);
        }
      }
    }
    Add(QStringLiteral("lblTitle")).setToolTip(QString::fromLatin1(kOwnTip));
  }

  QWidget& Add(const QString& name)
  {
    QWidget* control = Make(name.left(3));
    control->setObjectName(name);
    return *control;
  }

protected:
  void Form_Load() override { modToolTips::SetTips(*this); }

private:
  QWidget* Make(const QString& kind)
  {
    if (kind == QStringLiteral("lbl")) {
      return new Label(this);
    }
    if (kind == QStringLiteral("lst")) {
      return new ListBox(this);
    }
    if (kind == QStringLiteral("cbo")) {
      return new ComboBox(this);
    }
    if (kind == QStringLiteral("chk")) {
      return new QCheckBox(this);
    }
    if (kind == QStringLiteral("opt")) {
      return new QRadioButton(this);
    }
    if (kind == QStringLiteral("cmd")) {
      return new QPushButton(this);
    }
    return new QLineEdit(this);
  }
};

class ToolTipsTest : public testing::Test
{
protected:
  ToolTipsTest() { modToolTips::SetTipsOff(false); }
  ~ToolTipsTest() override
  {
    for (Form* form : Forms::AllLoaded()) {
      form->Unload();
    }
    Forms::UnregisterAll();
    modToolTips::SetTipsOff(false);
  }

  static Form& Load(const QString& name)
  {
    Forms::Register(name, [name] { return new Page(name); });
    return Forms::Load(name);
  }

  static void LoadAll()
  {
    for (const QString& name : FormNames()) {
      Load(name);
    }
  }

  static std::string TipOf(const Form& form, const QString& control)
  {
    const QWidget* widget = form.Control(control);
    return widget != nullptr ? widget->toolTip().toStdString() : "no " + control.toStdString();
  }

  static void ExpectTips(const Form& form)
  {
    for (const ToolTipRow& row : kExpected) {
      if (form.Name() == QLatin1String(row.form)) {
        for (const QString& element : ElementsOf(row)) {
          EXPECT_EQ(TipOf(form, element), row.text) << row.form << " " << element.toStdString();
        }
      }
    }
  }

  static void ExpectNoTips(const Form& form)
  {
    for (const QWidget* control : form.Controls()) {
      EXPECT_EQ(control->toolTip(), QString())
          << form.Name().toStdString() << " " << control->objectName().toStdString();
    }
  }

  int Stored() { return folder_.Value(QStringLiteral("SELECT ToolTips FROM Options")).toInt(); }

  ProgramFolder folder_;
};

std::multiset<std::vector<std::string>> AsSet(const auto& rows)
{
  std::multiset<std::vector<std::string>> set;
  for (const ToolTipRow& row : rows) {
    set.insert({row.form, row.control, row.text});
  }
  return set;
}

}

TEST_F(ToolTipsTest, TableHoldsTheseTextsAndNoOthers)
{
  EXPECT_EQ(kExpected.size(), 139U);
  EXPECT_EQ(kToolTips.size(), kExpected.size());
  const auto actual = AsSet(kToolTips);
  const auto expected = AsSet(kExpected);
  for (const auto& row : expected) {
    EXPECT_EQ(actual.count(row), 1U) << row[0] << " " << row[1] << ": " << row[2];
  }
  for (const auto& row : actual) {
    EXPECT_EQ(expected.count(row), 1U) << row[0] << " " << row[1] << ": " << row[2];
  }
}

TEST_F(ToolTipsTest, FormGetsItsTipsAtItsLoad)
{
  for (const QString& name : FormNames()) {
    ExpectTips(Load(name));
  }
}

TEST_F(ToolTipsTest, TipsAreSetOnTheRowsOfTheTableAlone)
{
  EXPECT_EQ(TipOf(Load(QStringLiteral("frmIntro")), QStringLiteral("lblTitle")), kOwnTip);
}

TEST_F(ToolTipsTest, WithTipsOffAFormIsLoadedWithoutAny)
{
  modToolTips::SetTipsOff(true);
  for (const QString& name : FormNames()) {
    ExpectNoTips(Load(name));
  }
}

TEST_F(ToolTipsTest, FormThatLacksControlsOfTheTableGetsTheTipsOfTheOthers)
{
  class Poor : public Form
  {
  public:
    Poor() : Form(QStringLiteral("frmAbout"), Kind::kWindow)
    {
      (new Label(this))->setObjectName(QStringLiteral("lblOptions_1"));
    }
  };
  Forms::Register(QStringLiteral("frmAbout"), [] { return new Poor; });
  Form& form = Forms::Load(QStringLiteral("frmAbout"));
  modToolTips::SetTips(form);
  EXPECT_EQ(TipOf(form, QStringLiteral("lblOptions_1")), "Click to send email");
}

TEST_F(ToolTipsTest, FlagIsReadAsItWasSet)
{
  EXPECT_FALSE(modToolTips::TipsOff());
  modToolTips::SetTipsOff(true);
  EXPECT_TRUE(modToolTips::TipsOff());
  EXPECT_EQ(Stored(), 0);
}

TEST_F(ToolTipsTest, SwitchTakesEffectAtOnceOnAllLoadedForms)
{
  LoadAll();
  modToolTips::Choose(true);
  EXPECT_TRUE(modToolTips::TipsOff());
  for (const Form* form : Forms::AllLoaded()) {
    ExpectNoTips(*form);
  }
  modToolTips::Choose(false);
  EXPECT_FALSE(modToolTips::TipsOff());
  for (const Form* form : Forms::AllLoaded()) {
    ExpectTips(*form);
    EXPECT_EQ(TipOf(*form, QStringLiteral("lblTitle")), "");
  }
  EXPECT_EQ(Forms::AllLoaded().size(), 12U);
}

TEST_F(ToolTipsTest, SwitchLeavesFormsWithoutTipsOfTheTableAlone)
{
  const Form& form = Load(QStringLiteral("frmAutoStart"));
  modToolTips::SetTipsOff(false);
  form.Control(QStringLiteral("lblTitle"))->setToolTip(QString::fromLatin1(kOwnTip));
  modToolTips::Choose(true);
  EXPECT_EQ(TipOf(form, QStringLiteral("lblTitle")), kOwnTip);
}

TEST_F(ToolTipsTest, FormThatIsNotLoadedTakesTheSwitchAtItsNextLoad)
{
  Load(QStringLiteral("frmNew"));
  Forms::Unload(QStringLiteral("frmNew"));
  modToolTips::Choose(true);
  ExpectNoTips(Load(QStringLiteral("frmNew")));
  Forms::Unload(QStringLiteral("frmNew"));
  modToolTips::Choose(false);
  ExpectTips(Load(QStringLiteral("frmNew")));
}

TEST_F(ToolTipsTest, SwitchIsStored)
{
  const QString others = QStringLiteral("SELECT * FROM Options");
  const QVariantList before = folder_.Rows(others).front();
  modToolTips::Choose(true);
  EXPECT_EQ(Stored(), 1);
  modToolTips::Choose(true);
  EXPECT_EQ(Stored(), 1);
  modToolTips::Choose(false);
  EXPECT_EQ(Stored(), 0);
  EXPECT_EQ(folder_.Rows(others).front(), before);
}

TEST_F(ToolTipsTest, SwitchIsStoredAtTheEndOfItsCommand)
{
  Command::Run([] { modToolTips::Choose(true); });
  EXPECT_EQ(Stored(), 1);
}

TEST_F(ToolTipsTest, SwitchThatCannotBeStoredStillTakesEffectInSilence)
{
  struct Case
  {
    const char* what;
    std::function<void()> spoil;
  };
  const std::vector<Case> cases = {
      {"no settings", [this] { folder_.Execute(QStringLiteral("DELETE FROM Options")); }},
      {"no table", [this] { folder_.Execute(QStringLiteral("DROP TABLE Options")); }},
      {"no database", [this] { ASSERT_TRUE(QFile::remove(folder_.DatabasePath())); }},
  };
  MessageBoxScript noBoxes;
  Form& form = Load(QStringLiteral("frmNew"));
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    c.spoil();
    EXPECT_NO_THROW(modToolTips::Choose(true));
    EXPECT_TRUE(modToolTips::TipsOff());
    ExpectNoTips(form);
    EXPECT_NO_THROW(modToolTips::Choose(false));
    EXPECT_FALSE(modToolTips::TipsOff());
    ExpectTips(form);
  }
  EXPECT_EQ(noBoxes.Count(), 0U);
}
