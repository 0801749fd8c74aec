// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMap>
#include <QString>

// How many faults there were at which deed, and how the rows stood after them.
class FaultTable
{
public:
  enum class Rows
  {
    kAsBefore,
    kAsEntered
  };

  void Count(const QString& deed, const QString& kind, Rows rows);
  // Lines of a Markdown table, and their sum.
  void Print() const;

private:
  struct Line
  {
    QMap<QString, int> kinds;
    int asBefore = 0;
    int asEntered = 0;
  };
  static void Print(const QString& deed, const Line& line);

  QMap<QString, Line> lines_;
};
