// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/NoticesWindow.h"

#include "controls/Forms.h"
#include "controls/Frame.h"
#include "reminders/Clips.h"
#include "reminders/frmTextNotice.h"
#include "reminders/modTextNotices.h"

namespace NoticesWindow {
namespace {

using namespace modTextNotices;

// A fresh window: start-up notices that still stand give way to it, as if they were left, so
// that the clips begin anew.
frmTextNotice& Window()
{
  const QString name = QStringLiteral("frmTextNotice");
  if (Forms::Loaded(name) != nullptr) {
    ClipIndex = 0;
    Forms::Unload(name);
  }
  return static_cast<frmTextNotice&>(Forms::Load(name));
}

std::vector<ReminderKind> Hits()
{
  std::vector<ReminderKind> hits;
  if (BirthdayHit) {
    hits.push_back(ReminderKind::kBirthday);
  }
  if (AnniversaryHit) {
    hits.push_back(ReminderKind::kAnniversary);
  }
  if (CalendarHit) {
    hits.push_back(ReminderKind::kEvent);
  }
  return hits;
}

void SetUpManual(frmTextNotice& window)
{
  ManualCheck = true;
  window.SetFirstCommand(QStringLiteral("Close window"), QStringLiteral("Close window"));
  window.ShowFurtherCommands(false);
}

}

void TellNotActive()
{
  frmTextNotice& window = Window();
  SetUpManual(window);
  window.ShowMessage(QStringLiteral("Reminders are not active. Go to the Reminders Set-up page to format reminders."));
  window.ShowModal();
}

void TellNothingComingUp()
{
  frmTextNotice& window = Window();
  window.Centre();
  SetUpManual(window);
  window.ShowMessage(QStringLiteral("According to your reminder settings, you have no events coming up"));
  window.ShowModal();
}

void ShowManualNotices(bool withClips)
{
  frmTextNotice& window = Window();
  window.SetLines(Hits());
  window.Centre();
  SetUpManual(window);
  if (withClips) {
    Clips::PlayNextClip();
  }
  window.ShowModal();
}

void ShowStartUpNotices(bool withClips)
{
  frmTextNotice& window = Window();
  window.SetLines(Hits());
  window.Centre();
  Frame::Current().SetState(WindowState::kMinimised);
  window.SetFirstCommand(QStringLiteral("View Quillmark"), QStringLiteral("Open Quillmark"));
  window.ShowFurtherCommands(true);
  if (withClips) {
    Clips::PlayNextClip();
  }
  window.ShowTopmost();
}

}
