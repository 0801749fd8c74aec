// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/PageSwitch.h"

#include "controls/Form.h"
#include "controls/Forms.h"
#include "looks/modThemes.h"
#include "platform/MsgBox.h"

#include <array>

namespace PageSwitch {
namespace {

constexpr std::array<const char*, 6> kDataPages = {"frmSpecial", "frmQuillmark", "frmNew",
                                                   "frmAnn",     "frmCharts",    "frmReminders"};

bool Shows(const Form& form, const char* panel)
{
  const QWidget* control = form.Control(QLatin1String(panel));
  return control != nullptr && control->isVisibleTo(&form);
}

void UnloadPagesExcept(const QString& name)
{
  for (const char* page : kDataPages) {
    if (name != QLatin1String(page)) {
      Forms::Unload(QLatin1String(page));
    }
  }
}

}

bool EditorIsBusy()
{
  const Form* editor = Forms::Loaded(QStringLiteral("frmNew"));
  return editor != nullptr && (Shows(*editor, "fraEdit") || Shows(*editor, "fraAdd"));
}

bool RefuseWhileEditing()
{
  if (!EditorIsBusy()) {
    return false;
  }
  MsgBox(QStringLiteral("Please finish adding or editing your record before exiting"));
  return true;
}

bool OpenPage(const QString& name)
{
  if (RefuseWhileEditing()) {
    return false;
  }
  UnloadPagesExcept(name);
  modThemes::SetCalendarHasPicture(false);
  if (Form* mainPage = Forms::Loaded(QStringLiteral("frmIntro"))) {
    mainPage->Hide();
  }
  Forms::Load(name).Show();
  return true;
}

}
