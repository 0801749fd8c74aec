// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <vector>

// What holds in every household's database, as queries for the rows that offend against it.
namespace Invariants {

struct Rule
{
  QString what;
  QString offenders;
};

[[nodiscard]] std::vector<Rule> OfTheTables();

// While the page of the settings is not open, on which they are set one by one.
[[nodiscard]] Rule OfReminderSettings();

// Of couples and partners, save for people of these keys, given with commas between.
[[nodiscard]] std::vector<Rule> OfCouples(const QString& exceptPeople);

// Couples of which either is not of the gender of their column: the key and both partners.
[[nodiscard]] QString CouplesOfOtherGenders();

// Months, or classes of age in that year, whose total is not what the rows count.
[[nodiscard]] QString MonthsMiscounted(const char* totals, const char* table, const char* column);
[[nodiscard]] QString AgesMiscounted(int year);

}
