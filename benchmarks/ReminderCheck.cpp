// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The reminder check over people of whom nobody is due, against the same columns read by bare
// SQLite calls in no order.

#include "BareReading.h"
#include "Household.h"
#include "Measure.h"

#include "platform/App.h"
#include "platform/Command.h"
#include "reminders/modTextNotices.h"

#include <QTemporaryDir>

namespace {

Figures Check(int people)
{
  const QTemporaryDir folder;
  App::SetPath(folder.path());
  const QString path = folder.filePath(QStringLiteral("quillmark2002.mdb"));
  MakeHousehold(path, people);
  const auto scan = [&] {
    for (const char* sql : {"SELECT BirthMonth, BirthDate FROM People", "SELECT AnnMonth, AnnDate FROM People",
                            "SELECT \"Date\", \"Month\" FROM Reminders"}) {
      ScanBare(path, sql);
    }
  };
  return ByTurns([] { return SecondsFor([] { Command::Run([] { modTextNotices::CheckReminders(false); }); }); },
                 [&] { return SecondsFor(scan); });
}

}

Lines ReminderCheckLines()
{
  return {{"reminder check, nobody due", "the same columns read by bare SQLite calls in no order", 2.0, Check}};
}
