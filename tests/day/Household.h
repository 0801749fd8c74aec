// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/ProgramFolder.h"

#include <QDate>
#include <QSet>
#include <QStringList>

// A program's folder with the made-up household in it, dated around a day of one's own, and
// all that must hold in it whenever the program waits for its user.
class Household
{
public:
  explicit Household(QDate today);

  [[nodiscard]] const ProgramFolder& Folder() const { return folder_; }

  // Pictures to choose from, some of which are none, and a place to write to.
  [[nodiscard]] const QStringList& Choices() const { return choices_; }
  [[nodiscard]] QString WritableFile(const QString& name) const { return files_.filePath(name); }

  [[nodiscard]] int Count(const QString& table) const;

  // What the tests of its tables go by beside the tables.
  struct Circumstances
  {
    bool birthdaysAreCounted = false;  // the tallies of people are those of the last leaving of the editor
    bool weddingsAreCounted = false;
    int yearOfTally = 0;
    bool remindersAreBeingSet = false;
    bool pictureMayStay = false;  // of a person who is deleted now
  };

  // What does not hold, in words; empty if all is well. Looks only if a file has changed.
  [[nodiscard]] QStringList Faults(const Circumstances& circumstances);
  [[nodiscard]] int Looks() const { return looks_; }

private:
  void LayFiles() const;
  void FillIn(QDate today) const;
  void LayChoices();
  [[nodiscard]] QString Stamp() const;
  void TestTables(const Circumstances& circumstances, QStringList& faults) const;
  void TestCouples(QStringList& faults);
  void TestTallies(const Circumstances& circumstances, QStringList& faults) const;
  void TestFiles(const Circumstances& circumstances, QStringList& faults);
  void Require(QStringList& faults, const QString& what, const QString& sqlOfOffenders) const;

  ProgramFolder folder_;
  QTemporaryDir files_;
  QStringList choices_;
  QStringList laid_;      // the folder's own entries
  QString stamp_;         // of the file when it was looked at last
  QSet<int> couples_;     // that have been seen
  QSet<int> changed_;     // partners whose gender was changed while they were in a couple
  QSet<QString> strays_;  // pictures of people who are gone
  int looks_ = 0;
};
