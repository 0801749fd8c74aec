// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "people/EntryRules.h"

#include "platform/Characters.h"

namespace EntryRules {
namespace {

using Rule = std::optional<Refusal> (*)(Entry& entry);

std::optional<Refusal> RequireNames(Entry& entry)
{
  if (Characters::IsBlank(entry.firstName)) {
    return Refusal{QStringLiteral("A first name must be entered, or click Cancel"), Box::kFirstName};
  }
  if (Characters::IsBlank(entry.lastName)) {
    return Refusal{QStringLiteral("A last name must be entered, or click Cancel"), Box::kLastName};
  }
  return std::nullopt;
}

std::optional<Refusal> RequireGender(Entry& entry)
{
  if (entry.gender.isEmpty()) {
    return Refusal{QStringLiteral("A gender must be entered, or click Cancel"), Box::kGender};
  }
  return std::nullopt;
}

std::optional<Refusal> CheckSecondAddress(Entry& entry)
{
  if (Characters::IsBlank(entry.secondAddress)) {
    entry.secondAddress.clear();
  }
  if (Characters::IsBlank(entry.street) && !entry.secondAddress.isEmpty()) {
    return Refusal{QStringLiteral("Please fill in Address 1 before using Address 2"), Box::kStreet};
  }
  return std::nullopt;
}

std::optional<Refusal> CheckLengths(Entry& entry)
{
  const std::pair<const QString&, const char*> limited[] = {
      {entry.firstName, "first name"},
      {entry.lastName, "last name"},
      {entry.street, "street address"},
      {entry.secondAddress, "street address"},
      {entry.city, "city"},
      {entry.province, "state or province"},
      {entry.country, "country"},
      {entry.postal, "zip or postal code"},
  };
  for (const auto& [text, what] : limited) {
    if (Characters::LengthOf(text) > kMaxLength) {
      return Refusal{QStringLiteral("You cannot enter more than 30 characters for a %1").arg(QLatin1String(what))};
    }
  }
  return std::nullopt;
}

}

std::optional<Refusal> ValidateEntry(Entry& entry, QDate today)
{
  for (const Rule rule : {RequireNames, RequireGender, CheckSecondAddress, CheckLengths}) {
    if (std::optional<Refusal> refusal = rule(entry)) {
      return refusal;
    }
  }
  const QString refusedDate = RefuseDate(entry.birth, today);
  return refusedDate.isEmpty() ? std::nullopt : std::optional(Refusal{refusedDate});
}

}
