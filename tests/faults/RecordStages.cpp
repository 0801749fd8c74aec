// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Stages.h"

#include "controls/modID.h"

namespace {

void OpenOn(Scene& scene, int person)
{
  modID::SelectedPersonID = person;
  scene.Choose("mnuPersonal");
}

void Look(Scene& scene)
{
  OpenOn(scene, 0);
  scene.Offer({});
}

QWidget& Editor()
{
  return Scene::Page("frmNew");
}

void Adding(Scene& scene)
{
  OpenOn(scene, 0);
  Scene::Click(Editor(), "lblOptions_6");
  Scene::Type(Editor(), "txtFirst", "Dan");
  Scene::Type(Editor(), "txtLast", "Dunn");
  Scene::Type(Editor(), "txtCity", "Bath");
  Scene::Pick(Editor(), "cboSex", "Male");
  Scene::Pick(Editor(), "cboBirthMonth", "March");
  scene.ChoosePicture(Editor(), Qt::red);
  scene.Offer({{"Finish of an addition", [] { Scene::Click(Editor(), "lblOptions_0"); }}});
}

// Of a partner in a couple, whose name stands there too.
void BeginEdit(Scene& scene)
{
  OpenOn(scene, 1);
  Scene::Click(Editor(), "lblOptions_7");
  Scene::Type(Editor(), "txtFirst", "Anna");
  Scene::Type(Editor(), "txtCity", "Bath");
}

void Editing(Scene& scene)
{
  BeginEdit(scene);
  scene.ChoosePicture(Editor(), Qt::red);
  scene.Offer({{"Finish of an edit with another picture", [] { Scene::Click(Editor(), "lblOptions_5"); }}});
}

void EditingWithoutAPicture(Scene& scene)
{
  BeginEdit(scene);
  Scene::Click(Editor(), "cmdDeletePic");
  scene.Offer({{"Finish of an edit that takes the picture away", [] { Scene::Click(Editor(), "lblOptions_5"); }}});
}

void EditingBesideAPicture(Scene& scene)
{
  BeginEdit(scene);
  scene.Offer({{"Finish of an edit that leaves the picture", [] { Scene::Click(Editor(), "lblOptions_5"); }}});
}

void DeletingASingle(Scene& scene)
{
  OpenOn(scene, 3);
  scene.Offer({{"Delete of a person", [] { Scene::Click(Editor(), "lblOptions_8"); }}});
}

void DeletingAPartner(Scene& scene)
{
  OpenOn(scene, 1);
  scene.Offer({{"Delete of a partner in a couple", [] { Scene::Click(Editor(), "lblOptions_8"); }}});
}

void Leaving(Scene& scene)
{
  OpenOn(scene, 0);
  scene.Offer({{"Three tallies on leaving the record editor", [] { Scene::Click(Editor(), "lblOptions_2"); }}});
}

}

std::vector<Stage> Stages::OfRecords()
{
  return {{"AddAPerson", Adding, Look},
          {"EditAPerson", Editing, Look},
          {"EditAPersonsPictureAway", EditingWithoutAPicture, Look},
          {"EditAPersonBesideThePicture", EditingBesideAPicture, Look},
          {"DeleteAPerson", DeletingASingle, Look},
          {"DeleteAPartner", DeletingAPartner, Look},
          {"LeaveTheRecordEditor", Leaving, Look}};
}
