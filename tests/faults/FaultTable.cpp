// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "FaultTable.h"

#include "Troubles.h"

#include <iostream>

void FaultTable::Count(const QString& deed, const QString& kind, Rows rows)
{
  Line& line = lines_[deed];
  ++line.kinds[kind];
  ++(rows == Rows::kAsBefore ? line.asBefore : line.asEntered);
}

void FaultTable::Print() const
{
  Line sum;
  for (auto line = lines_.begin(); line != lines_.end(); ++line) {
    Print(line.key(), line.value());
    sum.asBefore += line.value().asBefore;
    sum.asEntered += line.value().asEntered;
    for (const QString& kind : Troubles::kKinds) {
      sum.kinds[kind] += line.value().kinds[kind];
    }
  }
  Print(QStringLiteral("All"), sum);
}

void FaultTable::Print(const QString& deed, const Line& line)
{
  std::cout << "| " << deed.toStdString() << " |";
  for (const QString& kind : Troubles::kKinds) {
    std::cout << ' ' << line.kinds[kind] << " |";
  }
  std::cout << ' ' << line.asBefore << " | " << line.asEntered << " |\n";
}
