// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Stages.h"

namespace {

QWidget& Couples()
{
  return Scene::Page("frmAnn");
}

void Open(Scene& scene)
{
  scene.Choose("mnuAnn");
}

void Look(Scene& scene)
{
  Open(scene);
  scene.Offer({});
}

void PickDay(const char* month, const char* day, const char* year)
{
  Scene::Pick(Couples(), "cboAnnMonth", month);
  Scene::Pick(Couples(), "cboAnnDate", day);
  Scene::Pick(Couples(), "cboAnnYear", year);
}

void OfferUpdate(Scene& scene, const char* name)
{
  scene.Offer({{name, [] { Scene::Click(Couples(), "lblOptions_0"); }}});
}

void Marrying(Scene& scene)
{
  Open(scene);
  Scene::ClickLine(Couples(), "lstPartner1", "Evans, Eve");
  Scene::ClickLine(Couples(), "lstPartner2", "Cole, Cy");
  PickDay("March", "3", "1980");
  scene.ChoosePicture(Couples(), Qt::red);
  OfferUpdate(scene, "Update of a new couple");
}

void Dating(Scene& scene)
{
  Open(scene);
  Scene::ClickLine(Couples(), "lstPartner1", "Adams, Ann");
  PickDay("March", "3", "1980");
  OfferUpdate(scene, "Update of a couple's date");
}

void Replacing(Scene& scene)
{
  Open(scene);
  Scene::ClickLine(Couples(), "lstPartner2", "Brown, Bob");
  Scene::ClickLine(Couples(), "lstPartner1", "Evans, Eve");
  PickDay("March", "3", "1980");
  scene.ChoosePicture(Couples(), Qt::red);
  OfferUpdate(scene, "Update of a couple with another wife and picture");
}

void Parting(Scene& scene)
{
  Open(scene);
  Scene::ClickLine(Couples(), "lstDelete", "Ann and Bob");
  scene.Offer({{"Delete of a couple", [] { Scene::Click(Couples(), "lblOptions_2"); }}});
}

void Leaving(Scene& scene)
{
  Open(scene);
  scene.Offer({{"Tally on leaving the couple editor", [] { Scene::Click(Couples(), "lblOptions_1"); }}});
}

}

std::vector<Stage> Stages::OfCouples()
{
  return {{"AddACouple", Marrying, Look},
          {"ChangeACouplesDate", Dating, Look},
          {"ReplaceAPartner", Replacing, Look},
          {"DeleteACouple", Parting, Look},
          {"LeaveTheCoupleEditor", Leaving, Look}};
}
