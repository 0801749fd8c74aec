// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/FrameMenu.h"

#include "controls/Form.h"
#include "controls/Forms.h"
#include "controls/modID.h"
#include "looks/modThemes.h"
#include "looks/modToolTips.h"
#include "platform/HelpViewer.h"
#include "platform/RuntimeError.h"
#include "reminders/modTextNotices.h"
#include "shell/DatabaseCare.h"
#include "shell/PageSwitch.h"
#include "ui_mdiQuillmark.h"

namespace {

void NameSeparator(const QMenu& menu, const QString& name)
{
  for (QAction* action : menu.actions()) {
    if (action->isSeparator()) {
      action->setObjectName(name);
    }
  }
}

}

FrameMenu::FrameMenu(Ui::mdiQuillmark& ui)
    : ui_(ui),
      mnuLists_{ui.mnuLists_0, ui.mnuLists_1, ui.mnuLists_2},
      mnuToolTips_{ui.mnuToolTips_0, ui.mnuToolTips_1},
      mnuTheme_{ui.mnuTheme_0, ui.mnuTheme_1, ui.mnuTheme_2, ui.mnuTheme_3, ui.mnuTheme_4, ui.mnuTheme_5}
{
  NameSubmenus();
  ConnectControls();
}

void FrameMenu::NameSubmenus()
{
  for (QMenu* menu : ui_.menuBar->findChildren<QMenu*>()) {
    menu->menuAction()->setObjectName(menu->objectName());
  }
  NameSeparator(*ui_.mnuAdd, QStringLiteral("mnuSep1"));
  NameSeparator(*ui_.mnuHelp, QStringLiteral("mnuSep3"));
}

void FrameMenu::ConnectControls()
{
  const auto connectArray = [this](const auto& actions, auto handler) {
    for (std::size_t index = 0; index < actions.size(); ++index) {
      connect(actions[index], &QAction::triggered, this, [=, this] { (this->*handler)(static_cast<int>(index)); });
    }
  };
  connectArray(mnuLists_, &FrameMenu::mnuLists_Click);
  connectArray(mnuToolTips_, &FrameMenu::mnuToolTips_Click);
  connectArray(mnuTheme_, &FrameMenu::mnuTheme_Click);
  ConnectDialog(ui_.mnuAutostart, "frmAutoStart");
  ConnectDialog(ui_.mnuSetReminders, "frmNotice");
  ConnectDialog(ui_.mnuAbout, "frmAbout");
  ConnectPage(ui_.mnuPersonal, "frmNew");
  connect(ui_.mnuReminderCheck, &QAction::triggered, this, [] { modTextNotices::CheckReminders(true); });
  connect(ui_.mnuCompact, &QAction::triggered, this, [] { DatabaseCare::Compact(); });
  connect(ui_.mnuBackup, &QAction::triggered, this, [] { DatabaseCare::Backup(); });
  connect(ui_.mnuAnn, &QAction::triggered, this, &FrameMenu::mnuAnn_Click);
  connect(ui_.mnuContents, &QAction::triggered, this, &FrameMenu::mnuContents_Click);
}

void FrameMenu::ConnectPage(QAction* action, const char* page)
{
  connect(action, &QAction::triggered, this, [=] { PageSwitch::OpenPage(QLatin1String(page)); });
}

void FrameMenu::ConnectDialog(QAction* action, const char* dialog)
{
  connect(action, &QAction::triggered, this, [=] { Forms::Load(QLatin1String(dialog)).ShowModal(); });
}

void FrameMenu::MarkTheme(int theme)
{
  if (theme < 0 || theme >= modThemes::kThemeCount) {
    RaiseNoSuchElement(theme);
  }
  for (std::size_t index = 0; index < mnuTheme_.size(); ++index) {
    mnuTheme_[index]->setChecked(static_cast<int>(index) == theme);
  }
}

void FrameMenu::MarkTips()
{
  mnuToolTips_[0]->setChecked(modToolTips::TipsOff());
  mnuToolTips_[1]->setChecked(!modToolTips::TipsOff());
}

void FrameMenu::mnuLists_Click(int index)
{
  static constexpr std::array kPages = {"frmQuillmark", "frmSpecial", "frmReminders"};
  const QString page = QLatin1String(kPages[static_cast<std::size_t>(index)]);
  if (!PageSwitch::OpenPage(page)) {
    return;
  }
  if (index == 2) {
    modThemes::SetCalendarHasPicture(true);
    Forms::Load(QStringLiteral("frmPrintCal")).ShowModal();
  } else if (QWidget* panel = Forms::Load(page).Control(QStringLiteral("fraPrint"))) {
    panel->raise();
    panel->show();
  }
}

void FrameMenu::mnuAnn_Click()
{
  if (PageSwitch::OpenPage(QStringLiteral("frmAnn"))) {
    modID::SelectedPersonID = 0;
  }
}

// The month calendar of the occasions is not to stand over the help.
void FrameMenu::mnuContents_Click()
{
  const Form* occasions = Forms::Loaded(QStringLiteral("frmSpecial"));
  QWidget* calendar = occasions == nullptr ? nullptr : occasions->Control(QStringLiteral("fraCalendar"));
  if (calendar != nullptr) {
    calendar->hide();
  }
  HelpViewer::ShowContents();
}

void FrameMenu::mnuToolTips_Click(int index)
{
  mnuToolTips_[0]->setChecked(index == 0);
  mnuToolTips_[1]->setChecked(index == 1);
  modToolTips::Choose(index == 0);
}

void FrameMenu::mnuTheme_Click(int index)
{
  modThemes::Choose(index);
  MarkTheme(index);
  modThemes::ApplyTheme();
}
