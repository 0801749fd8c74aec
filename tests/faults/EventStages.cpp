// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Stages.h"

#include "support/Drive.h"

namespace {

const QString kTheDay = QStringLiteral("lblDay_29");  // 25 May 2026

QWidget& Editor()
{
  return Scene::Page("frmCalEdit");
}

void OpenCalendar()
{
  Scene::Click(Scene::Page("frmIntro"), "lblOptions_3");
}

void Look(Scene& scene)
{
  OpenCalendar();
  scene.Offer({});
}

// The editor is modal, so that the rest is done from within.
void OpenEditor(const QString& panel, const std::function<void()>& work)
{
  OpenCalendar();
  Drive::WhenShown("frmCalEdit", [=](QWidget& editor) {
    Scene::Click(editor, panel);
    work();
  });
  Scene::Click(Scene::Page("frmReminders"), kTheDay);
}

void Adding(Scene& scene)
{
  OpenEditor("lblOptions_0", [&scene] {
    Scene::Type(Editor(), "cboReminders", "Dentist");
    Scene::Type(Editor(), "txtAddTime", "9:30 pm");
    Scene::Type(Editor(), "txtNotes", "Bring the card");
    scene.Offer({{"Add of an event", [] { Scene::Click(Editor(), "lblData_0"); }}});
  });
}

void Changing(Scene& scene)
{
  OpenEditor("lblOptions_2", [&scene] {
    Scene::ClickLine(Editor(), "lstChanges", "Vet");
    Scene::Type(Editor(), "txtEvent", "Dentist");
    Scene::Type(Editor(), "txtTime", "9:30 pm");
    scene.Offer({{"Change of an event", [] { Scene::Click(Editor(), "lblData_2"); }}});
  });
}

void Deleting(Scene& scene)
{
  OpenEditor("lblOptions_1", [&scene] {
    Scene::ClickLine(Editor(), "lstDelete", "Vet");
    scene.Offer({{"Delete of an event", [] { Scene::Click(Editor(), "lblData_1"); }}});
  });
}

}

std::vector<Stage> Stages::OfEvents()
{
  return {{"AddAnEvent", Adding, Look}, {"ChangeAnEvent", Changing, Look}, {"DeleteAnEvent", Deleting, Look}};
}
