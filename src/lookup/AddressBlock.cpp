// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/AddressBlock.h"

#include "lookup/PersonValues.h"

namespace {

const QString kLineBreak = QStringLiteral("\r\n");
const QString kPrintedBreak = QStringLiteral("\r\n\t\t\t");

// Both with what stands between, the one that is known, or the words for neither.
QString Joined(const QVariant& first, const QVariant& second, const QString& between, const char* neither)
{
  if (first.isNull() && second.isNull()) {
    return QLatin1String(neither);
  }
  const bool both = !first.isNull() && !second.isNull();
  return first.toString() + (both ? between : QString()) + second.toString();
}

QString Street(const AddressParts& parts, const QString& between)
{
  return Joined(parts.street, parts.secondAddress, between, "street address unavailable");
}

}

AddressParts ReadAddress(Recordset& person)
{
  return {KnownValue(person, "Street"),   KnownValue(person, "SecondAddress"), KnownValue(person, "City"),
          KnownValue(person, "Province"), KnownValue(person, "Postal"),        KnownValue(person, "Country")};
}

// A second line alone makes no address.
AddressBlock MakeAddressBlock(const AddressParts& parts)
{
  if (parts.street.isNull() && parts.city.isNull() && parts.province.isNull() && parts.country.isNull() &&
      parts.postal.isNull()) {
    return {kUnavailable, {}, {}, {}};
  }
  AddressBlock block;
  block.printableStreet = Street(parts, kPrintedBreak);
  block.city = Joined(parts.city, parts.province, QStringLiteral(", "), "city and province/state not available");
  block.country = Joined(parts.country, parts.postal, QStringLiteral(", "), "country and postal code not available");
  block.text = Street(parts, kLineBreak) + kLineBreak + block.city + kLineBreak + block.country;
  return block;
}
