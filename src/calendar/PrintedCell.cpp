// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/PrintedCell.h"

namespace PrintedCell {
namespace {

constexpr int kMost = 4;
constexpr int kBeforeMore = 3;
constexpr int kFromColonToEnd = 5;
constexpr int kLongestTime = 7;

}

QStringList Lines(const QStringList& events)
{
  return events.size() <= kMost ? events : events.first(kBeforeMore) << QStringLiteral(" more...");
}

// A title with a colon of its own keeps its time.
QString WithoutTime(const QString& line)
{
  const qsizetype colon = line.indexOf(QLatin1Char(':'));
  const bool endsInTime = colon >= 0 && colon == line.size() - kFromColonToEnd;
  return endsInTime ? line.left(qMax(line.size() - kLongestTime, qsizetype{0})) : line;
}

}
