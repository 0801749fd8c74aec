// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "people/DateRules.h"

#include <optional>

// What a person's record must be like before it is written.
namespace EntryRules {

// Longest text, in characters, of a name and of a part of an address.
inline constexpr int kMaxLength = 30;

// What stands in the boxes.
struct Entry
{
  QString firstName;
  QString lastName;
  QString street;
  QString secondAddress;
  QString city;
  QString province;
  QString country;
  QString postal;
  QString gender;
  PartialDate birth;
};

// The box that a refusal sends the user to.
enum class Box
{
  kNone,
  kFirstName,
  kLastName,
  kGender,
  kStreet,
};

struct Refusal
{
  QString message;
  Box box = Box::kNone;
};

// The first rule that the entry breaks, or nothing. A second address of blanks only
// is emptied, once the names and the gender are there.
[[nodiscard]] std::optional<Refusal> ValidateEntry(Entry& entry, QDate today);

}
