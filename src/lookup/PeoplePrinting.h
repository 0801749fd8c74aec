// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

class MultiLineTextBox;
class NameList;
struct PersonResults;

// Prints what is ticked, of the selected person or of everybody in the list. A text says what
// keeps it from printing; a printing that fails or is cancelled ends without a word.
class PeoplePrinting
{
public:
  struct Choices
  {
    bool one = false;
    bool all = false;
    bool withDate = false;
  };

  // Owns none of them. `show` puts what is ticked of the cursor's person into the boxes;
  // `notes` is the box in which notes are broken into lines.
  PeoplePrinting(NameList& names, PersonResults& results, MultiLineTextBox& notes, std::function<void()> show);

  void Print(const Choices& choices);

private:
  bool IsRefused(const Choices& choices);
  void PrintPeople(const Choices& choices);
  void PrintEverybody();
  void PrintPerson();

  NameList& names_;
  PersonResults& results_;
  MultiLineTextBox& notes_;
  std::function<void()> show_;
};
