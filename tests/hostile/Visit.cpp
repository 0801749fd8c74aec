// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Visit.h"

#include "Caretaker.h"
#include "Household.h"
#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Forms.h"
#include "controls/ListBox.h"
#include "platform/Application.h"
#include "platform/Clock.h"
#include "shell/StartUp.h"
#include "shell/mdiQuillmark.h"
#include "store/DBEngine.h"
#include "support/Drive.h"

#include <QAction>

#include <algorithm>

namespace Visit {
namespace {

// How a page is come to: by a line of the main page, or by a menu.
struct Page
{
  const char* form;
  int mainCommand;
  const char* menu;
};

constexpr std::array<Page, 13> kPages = {{{"frmQuillmark", 0, nullptr},
                                          {"frmSpecial", 1, nullptr},
                                          {"frmCharts", 2, nullptr},
                                          {"frmReminders", 3, nullptr},
                                          {"frmNew", -1, "mnuPersonal"},
                                          {"frmAnn", -1, "mnuAnn"},
                                          {"frmNotice", -1, "mnuSetReminders"},
                                          {"frmAutoStart", -1, "mnuAutostart"},
                                          {"frmAbout", -1, "mnuAbout"},
                                          {"frmPrintCal", -1, "mnuLists_2"},
                                          {"the check", -1, "mnuReminderCheck"},
                                          {"the help", -1, "mnuContents"},
                                          {"frmCalEdit", 3, nullptr}}};

// Controls that show something and change nothing in the file.
const QStringList kLooking{"lstNames",       "lstBirthdays",    "lstAnn",         "lstPartner1",  "lstPartner2",
                           "cmdFirst",       "cmdPrevious",     "cmdNext",        "cmdLast",      "lblMonth_0",
                           "lblMonth_4",     "lblMonth_5",      "optData_0",      "optData_1",    "optChoices_0",
                           "optChoices_1",   "optChoices_2",    "optChoices_3",   "optChoices_4", "optOptions_0",
                           "optOptions_1",   "chkInfo_0",       "chkPersonal_0",  "chkNotes",     "lstReminders_5",
                           "lstReminders_9", "lstReminders_10", "lstReminders_20"};

void Settle()
{
  for (int round = 0; round < 3; ++round) {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

void ClickLines(ListBox& box)
{
  for (const int line : {0, box.ListCount() / 2, box.ListCount() - 1}) {
    const QModelIndex index = box.model()->index(line, 0);
    if (index.isValid()) {
      box.scrollTo(index);
      QTest::mouseClick(box.viewport(), Qt::LeftButton, {}, box.visualRect(index).center());
    }
  }
}

void LookAt(const QString& form)
{
  for (const QString& name : kLooking) {
    const Form* page = Forms::Loaded(form);
    QWidget* control = page == nullptr ? nullptr : page->Control(name);
    if (control == nullptr || !control->isVisibleTo(page)) {
      continue;
    }
    if (auto* box = qobject_cast<ListBox*>(control)) {
      ClickLines(*box);
    } else {
      QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(8, control->height() / 2));
    }
  }
}

class Day
{
public:
  explicit Day(const Apart::Say& say) : say_(say), caretaker_(say), before_(Database()) {}

  void Start()
  {
    Application::RunGuarded([this] { StartUp(frame_); });
    Pass(QStringLiteral("the start"));
  }

  void GoTo(const Page& page)
  {
    const QString form = QString::fromLatin1(page.form);
    if (page.mainCommand >= 0) {
      Application::RunGuarded([&] { Forms::Load(QStringLiteral("frmIntro")).Show(); });
      Drive::Click(*Forms::Loaded(QStringLiteral("frmIntro")), QStringLiteral("lblOptions_%1").arg(page.mainCommand));
    } else {
      auto* action = frame_.findChild<QAction*>(QLatin1String(page.menu));
      Application::RunGuarded([&] { action->trigger(); });
    }
    if (form == QStringLiteral("frmCalEdit")) {
      Drive::Click(*Forms::Loaded(QStringLiteral("frmReminders")), QStringLiteral("lblDay_10"));
    }
    LookAt(form);
    Pass(form);
    Leave(form);
  }

  // The frame writes its state.
  void End()
  {
    Application::RunGuarded([this] { frame_.Unload(); });
    before_ = Database();
    Pass(QStringLiteral("the end"));
  }

private:
  static QByteArray Database() { return Household::Contents(DBEngine::DatabasePath()); }

  // Leaving an editor writes the tallies.
  void Leave(const QString& form)
  {
    Application::RunGuarded([&] { Forms::Unload(form); });
    if (form == QStringLiteral("frmNew") || form == QStringLiteral("frmAnn")) {
      before_ = Database();
    }
    Pass(QStringLiteral("leaving ") + form);
  }

  void Pass(const QString& place)
  {
    Settle();
    say_(QStringLiteral("at: ") + place);
    const QByteArray now = Database();
    if (now != before_) {
      say_(QStringLiteral("written at: ") + place);
      before_ = now;
    }
  }

  Apart::Say say_;
  Caretaker caretaker_;
  QByteArray before_;
  mdiQuillmark frame_;
};

}

int PageCount()
{
  return static_cast<int>(kPages.size());
}

void Pages(const Apart::Say& say, const QStringList& pages)
{
  Clock::StopOn(QDate(2026, 5, 5));
  RegisterForms();
  Day day(say);
  day.Start();
  for (const QString& name : pages) {
    day.GoTo(*std::find_if(kPages.begin(), kPages.end(), [&](const Page& page) { return name == page.form; }));
  }
  day.End();
}

void Program(const Apart::Say& say, Damage& chance, int pages)
{
  QStringList names;
  for (const Page& page : kPages) {
    names.insert(chance.Below(names.size() + 1), page.form);
  }
  Pages(say, names.first(pages));
}

}
