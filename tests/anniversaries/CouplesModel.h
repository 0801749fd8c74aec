// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Household.h"

#include <map>

// People and couples as the rules of the two editors have them, without any database.
class CouplesModel
{
public:
  struct Person
  {
    QString first;
    QString last;
    QString notes;
    bool isWoman = true;

    [[nodiscard]] QString FullName() const { return last + ", " + first; }
  };

  struct Couple
  {
    int wife = 0;
    int husband = 0;
    Day day;
  };

  // What the record editor does. A deletion takes the person's couple along.
  int AddPerson(const Person& person);
  void DeletePerson(int person);
  Person& At(int person) { return people_.at(person); }
  [[nodiscard]] const Person& At(int person) const { return people_.at(person); }

  // What the couple editor does. False if both are married, to others.
  bool Marry(int wife, int husband, const Day& day);
  void Part(int couple) { couples_.erase(couple); }

  // 0 for none.
  [[nodiscard]] int CoupleOf(int person) const;
  [[nodiscard]] int PartnerOf(int person) const;
  [[nodiscard]] Day DayOf(int person) const;
  [[nodiscard]] int PersonNamed(const QString& first) const;

  [[nodiscard]] const std::map<int, Couple>& Couples() const { return couples_; }
  [[nodiscard]] std::vector<int> People(bool women) const;
  [[nodiscard]] std::vector<int> Singles(bool women) const;
  [[nodiscard]] std::size_t Size() const { return people_.size(); }
  [[nodiscard]] QString LineOf(const Couple& couple) const;

  // What the tables must hold, as Household::Dump tells it for these queries.
  static constexpr auto kPeople =
      "SELECT PeopleID, FirstName, LastName, Gender, Notes, AnnMonth, AnnDate, AnnYear FROM People ORDER BY PeopleID";
  static constexpr auto kCouples =
      "SELECT AnnID, Spouse1ID, Spouse1First, Spouse1Last, Spouse2ID, Spouse2First, Spouse2Last, AnnMonth, AnnDate, "
      "AnnYear FROM Ann ORDER BY AnnID";
  static constexpr auto kTotals = "SELECT \"Month\", Total FROM TotalAnn WHERE Total <> 0 ORDER BY \"Month\"";
  [[nodiscard]] std::vector<std::string> PeopleRows() const;
  [[nodiscard]] std::vector<std::string> CoupleRows() const;
  [[nodiscard]] std::vector<std::string> TotalRows() const;

private:
  std::map<int, Person> people_;
  std::map<int, Couple> couples_;
  int lastPerson_ = 0;
  int lastCouple_ = 0;
};
