// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Stages.h"

namespace {

void LookAtRecords(Scene& scene)
{
  scene.Choose("mnuPersonal");
  scene.Offer({});
}

void Compacting(Scene& scene)
{
  scene.Offer({{"Compaction", [&scene] { scene.Choose("mnuCompact"); }}});
}

void BackingUp(Scene& scene)
{
  const QString target = scene.Folder().File("/backup.mdb");
  scene.Offer({{"Backup over an older one", [=, &scene] {
                  scene.Dialogs().ExpectChoice(target);
                  scene.Choose("mnuBackup");
                }}});
}

}

std::vector<Stage> Stages::OfCare()
{
  return {{"Compact", Compacting, LookAtRecords}, {"BackUp", BackingUp, LookAtRecords}};
}
