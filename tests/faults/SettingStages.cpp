// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Stages.h"

#include "platform/Application.h"
#include "support/Drive.h"

namespace {

using Deeds = std::vector<Scene::Deed>;

QWidget& Settings()
{
  return Scene::Page("frmNotice");
}

// The page is modal, so that the rest is done from within.
void OnSettings(Scene& scene, const std::function<void()>& work)
{
  Drive::WhenShown("frmNotice", [=](QWidget& /*page*/) { work(); });
  scene.Choose("mnuSetReminders");
}

void LookAtSettings(Scene& scene)
{
  OnSettings(scene, [&scene] { scene.Offer({}); });
}

void LookAtTheMainPage(Scene& scene)
{
  static_cast<void>(Scene::Page("frmIntro"));
  scene.Offer({});
}

Scene::Deed Ticking(const QString& name, const QString& button)
{
  return {"Setting: " + name, [=] { Scene::Tick(Settings(), button); }};
}

Scene::Deed Pressing(const QString& name, const QString& box, Qt::Key key)
{
  return {"Setting: " + name, [=] { Scene::Press(Settings(), box, key); }};
}

void Append(Deeds& deeds, const QString& kind, const QString& suffix, const QString& cancel, const QString& days)
{
  deeds.push_back(Ticking(kind + " on one day", "optOneOrMany" + suffix + "_0"));
  deeds.push_back(Pressing(kind + " one day more", days, Qt::Key_Down));
  deeds.push_back(Pressing(kind + " days deleted", days, Qt::Key_Delete));
  deeds.push_back(Ticking(kind + " cancelled", cancel));
}

void Setting(Scene& scene)
{
  Deeds deeds = {Ticking("text", "chkTextAudio_0"), Ticking("audio", "chkTextAudio_1"),
                 Ticking("on start", "chkReminderOnStart")};
  Append(deeds, "birthdays", {}, "chkCancelBirth", "cboDays");
  Append(deeds, "anniversaries", "Ann", "chkCancelAnn", "cboAnnDays");
  Append(deeds, "events", "Cal", "chkCancelCal", "cboCalDays");
  OnSettings(scene, [&] { scene.Offer(deeds); });
}

// Without the days, and the question for them answered by Cancel, all reminders go.
void ClosingHalfSet(Scene& scene)
{
  OnSettings(scene, [&scene] {
    Scene::Press(Settings(), "cboDays", Qt::Key_Delete);
    scene.Offer({{"Settings: all off at the closing", [] { Scene::Click(Settings(), "lblOptions_0"); }}});
  });
}

void ChoosingFromTheMenu(Scene& scene)
{
  Deeds deeds = {{"Tips off", [&scene] { scene.Choose("mnuToolTips_0"); }}};
  for (const char* theme : {"0", "2", "3", "4", "5"}) {
    const QString entry = QStringLiteral("mnuTheme_") + theme;
    deeds.push_back({QStringLiteral("Theme ") + theme, [=, &scene] { scene.Choose(entry); }});
  }
  scene.Offer(deeds);
}

void TipsOn(Scene& scene)
{
  scene.Choose("mnuToolTips_0");
  scene.Offer({{"Tips on", [&scene] { scene.Choose("mnuToolTips_1"); }}});
}

void ClosingMaximised(Scene& scene)
{
  scene.Frame().SetState(WindowState::kMaximised);
  scene.Offer(
      {{"Size of the window at the end", [&scene] { Application::RunGuarded([&scene] { scene.Frame().close(); }); }}});
}

}

std::vector<Stage> Stages::OfSettings()
{
  return {{"Settings", Setting, LookAtSettings},
          {"CloseTheSettings", ClosingHalfSet, LookAtSettings},
          {"Menu", ChoosingFromTheMenu, LookAtTheMainPage},
          {"TipsOn", TipsOn, LookAtTheMainPage},
          {"CloseTheProgram", ClosingMaximised, LookAtTheMainPage}};
}
