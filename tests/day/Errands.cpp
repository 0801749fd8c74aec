// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Errands.h"

#include "Hand.h"
#include "Household.h"
#include "Texts.h"

#include "controls/ComboBox.h"
#include "controls/Form.h"
#include "controls/Forms.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "platform/Application.h"
#include "shell/mdiQuillmark.h"

#include <QAction>

namespace Errands {
namespace {

using Kind = Deed::Kind;

constexpr int kFewPeople = 25;
constexpr int kManyPeople = 55;
constexpr int kFewEvents = 15;
constexpr int kManyEvents = 45;

Errand AddPerson(Chance& chance)
{
  Errand errand = {{Kind::kMenu, "", "mnuPersonal"},
                   {Kind::kClick, "frmNew", "lblOptions_6"},
                   {Kind::kEnter, "frmNew", "txtFirst", Texts::FirstName(chance)},
                   {Kind::kEnter, "frmNew", "txtLast", Texts::LastName(chance)},
                   {Kind::kPick, "frmNew", "cboSex"},
                   {Kind::kEnter, "frmNew", "txtCity", Texts::Word(chance)}};
  if (chance.OneIn(2)) {
    errand.push_back({Kind::kPick, "frmNew", "cboBirthMonth"});
    errand.push_back({Kind::kPick, "frmNew", "cboBirthDate"});
  }
  if (chance.OneIn(3)) {
    errand.push_back({Kind::kPick, "frmNew", "cboBirthYear"});
  }
  if (chance.OneIn(3)) {
    errand.push_back({Kind::kPick, "frmNew", "cboStreet"});
    errand.push_back({Kind::kClick, "frmNew", "cmdAddPic"});
  }
  errand.push_back({Kind::kClick, "frmNew", "lblOptions_0"});
  return errand;
}

Errand EditPerson(Chance& chance)
{
  const char* step = chance.OneIn(3) ? "cmdLast" : "cmdNext";
  const char* picture = chance.OneIn(2) ? "cmdAddPic" : "cmdDeletePic";
  return {{Kind::kMenu, "", "mnuPersonal"},
          {Kind::kClick, "frmNew", step},
          {Kind::kClick, "frmNew", "lblOptions_7"},
          {Kind::kEnter, "frmNew", chance.OneIn(2) ? "txtLast" : "txtStreet", Texts::Anything(chance)},
          {Kind::kEnter, "frmNew", "txtNotes", Texts::Anything(chance)},
          {Kind::kClick, "frmNew", picture},
          {Kind::kClick, "frmNew", chance.OneIn(4) ? "lblOptions_4" : "lblOptions_5"}};
}

Errand DeletePerson(Chance& chance)
{
  return {{Kind::kMenu, "", "mnuPersonal"},
          {Kind::kClick, "frmNew", chance.OneIn(2) ? "cmdLast" : "cmdFirst"},
          {Kind::kClick, "frmNew", chance.OneIn(2) ? "cmdPrevious" : "cmdNext"},
          {Kind::kClick, "frmNew", "lblOptions_8"}};
}

Errand Marry(Chance& chance)
{
  Errand errand = {
      {Kind::kMenu, "", "mnuAnn"}, {Kind::kPick, "frmAnn", "lstPartner1"}, {Kind::kPick, "frmAnn", "lstPartner2"}};
  if (chance.OneIn(2)) {
    errand.push_back({Kind::kPick, "frmAnn", "cboAnnMonth"});
    errand.push_back({Kind::kPick, "frmAnn", "cboAnnDate"});
  }
  if (chance.OneIn(3)) {
    errand.push_back({Kind::kPick, "frmAnn", "cboAnnYear"});
  }
  if (chance.OneIn(2)) {
    errand.push_back({Kind::kClick, "frmAnn", "cmdAddPic"});
  }
  errand.push_back({Kind::kClick, "frmAnn", "lblOptions_0"});
  return errand;
}

Errand Part(Chance& /*chance*/)
{
  return {{Kind::kMenu, "", "mnuAnn"}, {Kind::kPick, "frmAnn", "lstDelete"}, {Kind::kClick, "frmAnn", "lblOptions_2"}};
}

Errand OnADay()
{
  return {{Kind::kGoHome}, {Kind::kClick, "frmIntro", "lblOptions_3"}, {Kind::kClickDay, "frmReminders", "lblDay"}};
}

Errand Joined(Errand first, std::initializer_list<Deed> then)
{
  first.insert(first.end(), then);
  return first;
}

Errand AddEvent(Chance& chance)
{
  return Joined(OnADay(), {{Kind::kClick, "frmCalEdit", "lblOptions_0"},
                           {Kind::kPick, "frmCalEdit", "cboReminders"},
                           {Kind::kEnter, "frmCalEdit", "txtAddTime", Texts::Time(chance)},
                           {Kind::kEnter, "frmCalEdit", "txtNotes", Texts::Anything(chance)},
                           {Kind::kClick, "frmCalEdit", "lblData_0"},
                           {Kind::kClick, "frmCalEdit", "lblData_5"},
                           {Kind::kClick, "frmCalEdit", "lblOptions_3"}});
}

Errand EditEvent(Chance& chance)
{
  return Joined(OnADay(), {{Kind::kClick, "frmCalEdit", "lblOptions_2"},
                           {Kind::kPick, "frmCalEdit", "lstChanges"},
                           {Kind::kEnter, "frmCalEdit", "txtEvent", Texts::Word(chance)},
                           {Kind::kEnter, "frmCalEdit", "txtTime", Texts::Time(chance)},
                           {Kind::kClick, "frmCalEdit", "lblData_2"}});
}

Errand DeleteEvent(Chance& /*chance*/)
{
  return Joined(OnADay(), {{Kind::kClick, "frmCalEdit", "lblOptions_1"},
                           {Kind::kPick, "frmCalEdit", "lstDelete"},
                           {Kind::kClick, "frmCalEdit", "lblData_1"},
                           {Kind::kClick, "frmCalEdit", "lblData_3"},
                           {Kind::kClick, "frmCalEdit", "lblOptions_3"}});
}

Errand SetReminders(Chance& chance)
{
  const char* cancel = chance.OneIn(2) ? "chkCancelBirth" : "chkCancelCal";
  return {{Kind::kMenu, "", "mnuSetReminders"},
          {Kind::kClick, "frmNotice", chance.OneIn(2) ? "optOneOrMany_0" : "optOneOrManyCal_1"},
          {Kind::kPick, "frmNotice", chance.OneIn(2) ? "cboDays" : "cboCalDays"},
          {Kind::kClick, "frmNotice", chance.OneIn(2) ? cancel : "lblOptions_1"},
          {Kind::kClick, "frmNotice", "lblOptions_0"}};
}

Errand PrintSomething(Chance& chance)
{
  switch (chance.Below(3)) {
    case 0:
      return {{Kind::kMenu, "", "mnuLists_0"},
              {Kind::kClick, "frmQuillmark", chance.OneIn(2) ? "optPrint_0" : "optPrint_1"},
              {Kind::kClick, "frmQuillmark", "lblOptions_10"}};
    case 1:
      return {{Kind::kMenu, "", "mnuLists_1"},
              {Kind::kClick, "frmSpecial", chance.OneIn(2) ? "optPrint_0" : "optPrint_1"},
              {Kind::kClick, "frmSpecial", "lblOptions_2"}};
    default:
      return {{Kind::kMenu, "", "mnuLists_2"},
              {Kind::kClick, "frmPrintCal", chance.OneIn(2) ? "optFormat_1" : "chkList"},
              {Kind::kClick, "frmPrintCal", "lblOptions_0"}};
  }
}

Errand LookUp(Chance& chance)
{
  static const std::vector<const char*> letters = {"lblOptions_6", "lblOptions_7", "lblOptions_8"};
  Errand errand = {{Kind::kGoHome},
                   {Kind::kClick, "frmIntro", "lblOptions_0"},
                   {Kind::kPick, "frmQuillmark", "lstNames"},
                   {Kind::kClick, "frmQuillmark", "lblAll_0"}};
  if (chance.OneIn(3)) {
    errand.push_back({Kind::kClick, "frmQuillmark", "lblOptions_2"});
    errand.push_back({Kind::kClick, "frmQuillmark", chance.Of(letters)});
  } else {
    errand.push_back({Kind::kClick, "frmQuillmark", chance.OneIn(2) ? "lblOptions_3" : "lblOptions_4"});
  }
  return errand;
}

Errand SeeOccasions(Chance& chance)
{
  static const std::vector<const char*> months = {"lblMonth_0", "lblMonth_1", "lblMonth_2", "lblMonth_8"};
  return {{Kind::kGoHome},
          {Kind::kClick, "frmIntro", "lblOptions_1"},
          {Kind::kClick, "frmSpecial", chance.Of(months)},
          {Kind::kPick, "frmSpecial", "lstBirthdays"},
          {Kind::kPick, "frmSpecial", "lstAnn"},
          {Kind::kPick, "frmSpecial", "cboYear"}};
}

Errand SeeCharts(Chance& chance)
{
  static const std::vector<const char*> choices = {"optChoices_0", "optChoices_1", "optChoices_2", "optChoices_3",
                                                   "optChoices_4"};
  return {{Kind::kGoHome},
          {Kind::kClick, "frmIntro", "lblOptions_2"},
          {Kind::kClick, "frmCharts", chance.Of(choices)},
          {Kind::kClick, "frmCharts", chance.OneIn(2) ? "optOptions_0" : "optOptions_1"}};
}

Errand FromTheMenu(Chance& chance)
{
  static const std::vector<const char*> entries = {"mnuTheme_0",       "mnuTheme_1",  "mnuTheme_2",    "mnuTheme_3",
                                                   "mnuTheme_4",       "mnuTheme_5",  "mnuToolTips_0", "mnuToolTips_1",
                                                   "mnuReminderCheck", "mnuContents", "mnuAbout",      "mnuAutostart"};
  return {{Kind::kMenu, "", chance.Of(entries)}};
}

Errand CareForDatabase(Chance& chance)
{
  return {{Kind::kGoHome}, {Kind::kMenu, "", chance.OneIn(2) ? "mnuBackup" : "mnuCompact"}};
}

QWidget* Reachable(const Deed& deed, QWidget& window)
{
  Form* form = Forms::Loaded(QLatin1String(deed.form));
  QWidget* control = form == nullptr ? nullptr : form->Control(QLatin1String(deed.control));
  const bool canBeUsed =
      control != nullptr && control->window() == &window && control->isVisible() && control->isEnabled();
  return canBeUsed ? control : nullptr;
}

QString GoHome(QWidget& window)
{
  for (Label* label : window.findChildren<Label*>()) {
    if (label->isVisible() && label->IsCommand() && label->text() == QLatin1String("<< Main")) {
      Hand::Click(*label);
      return QStringLiteral("<< Main");
    }
  }
  return QStringLiteral("stays at home");
}

QString Trigger(const Deed& deed, const QWidget& window, const mdiQuillmark& frame)
{
  auto* entry = frame.findChild<QAction*>(QLatin1String(deed.control));
  if (&window != &frame || entry == nullptr || !entry->isEnabled()) {
    return {};
  }
  Application::RunGuarded([&] { entry->trigger(); });
  return QStringLiteral("menu %1").arg(QLatin1String(deed.control));
}

void Pick(QWidget& control, Chance& chance)
{
  if (auto* list = qobject_cast<ListBox*>(&control)) {
    Hand::ClickLine(*list, chance.Below(list->ListCount()));
  } else if (auto* box = qobject_cast<ComboBox*>(&control)) {
    Hand::PickLine(*box, chance.Below(box->ListCount()));
  }
}

}

Errand Any(Chance& chance, const Household& household)
{
  const int people = household.Count(QStringLiteral("People"));
  const int events = household.Count(QStringLiteral("Reminders"));
  if (people < kFewPeople || people > kManyPeople) {
    return people < kFewPeople ? AddPerson(chance) : DeletePerson(chance);
  }
  if (events > kManyEvents || (events < kFewEvents && chance.OneIn(2))) {
    return events > kManyEvents ? DeleteEvent(chance) : AddEvent(chance);
  }
  using Maker = Errand (*)(Chance&);
  static const std::vector<Maker> makers = {
      AddPerson, AddPerson, EditPerson,   EditPerson,     DeletePerson, Marry,        Marry,
      Part,      AddEvent,  AddEvent,     EditEvent,      DeleteEvent,  SetReminders, LookUp,
      LookUp,    SeeCharts, SeeOccasions, PrintSomething, FromTheMenu,  FromTheMenu,  CareForDatabase};
  return chance.Of(makers)(chance);
}

QString Do(const Deed& deed, QWidget& window, mdiQuillmark& frame, Chance& chance)
{
  if (deed.kind == Kind::kGoHome) {
    return GoHome(window);
  }
  if (deed.kind == Kind::kMenu) {
    return Trigger(deed, window, frame);
  }
  Deed exact = deed;
  const QByteArray day = QByteArray(deed.control) + '_' + QByteArray::number(chance.Below(37));
  if (deed.kind == Kind::kClickDay) {
    exact.control = day.constData();
  }
  QWidget* control = Reachable(exact, window);
  if (control == nullptr) {
    return {};
  }
  const QString done = QStringLiteral("%1 %2").arg(QLatin1String(deed.form), QLatin1String(exact.control));
  if (deed.kind == Kind::kEnter) {
    Hand::Replace(*control, deed.text, true);
  } else if (deed.kind == Kind::kPick) {
    Pick(*control, chance);
  } else {
    Hand::Click(*control);
  }
  return done;
}

}
