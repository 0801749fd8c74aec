// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class EntryBox;
class QCheckBox;
struct PersonResults;

// The titles of the three groups of items on the look-up page. Owns none of the controls.
class ResultTitles
{
public:
  ResultTitles(EntryBox& contact, EntryBox& special, QCheckBox& notes);

  // Without a person.
  void ShowPlain();

  // With the person's first name where something of the group is wanted.
  void Show(const QString& firstName, const PersonResults& results);

private:
  void Set(const QString& contact, const QString& special, const QString& notes);

  EntryBox& contact_;
  EntryBox& special_;
  QCheckBox& notes_;
};
