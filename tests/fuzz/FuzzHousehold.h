// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "store/DBEngine.h"
#include "support/ProgramFolder.h"

// A small household, which no target may change.
class FuzzHousehold
{
public:
  FuzzHousehold()
  {
    folder_.Execute(
        QStringLiteral("INSERT INTO People (LastName, FirstName, City, BirthMonth, BirthDate) VALUES "
                       "('Adams', 'Ann', 'Ayr', 'May', '4'), ('O''Neil', 'Zoë', 'Bonn', NULL, ''), (NULL, 'x', 'ayr', "
                       "'may', '31')"));
    folder_.Execute(QStringLiteral("INSERT INTO Ann (Spouse1ID, Spouse2ID, AnnMonth) VALUES (1, 2, 'June')"));
    folder_.Execute(QStringLiteral("INSERT INTO Reminders (Month, Date, Event) VALUES ('May', '2026-05-05', 'Fair')"));
  }

  [[nodiscard]] Database Open() const { return DBEngine::OpenDatabase(); }

private:
  ProgramFolder folder_;
};
