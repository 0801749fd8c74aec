// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QVariant>

class Recordset;

// The parts of a person's address; Null where unknown.
struct AddressParts
{
  QVariant street;
  QVariant secondAddress;
  QVariant city;
  QVariant province;
  QVariant postal;
  QVariant country;
};

[[nodiscard]] AddressParts ReadAddress(Recordset& person);

// An address in words. Its lines are parted by a carriage return and a line feed.
struct AddressBlock
{
  QString text;  // for the screen
  // For paper; all Null without any address.
  QString printableStreet;
  QString city;
  QString country;
};

[[nodiscard]] AddressBlock MakeAddressBlock(const AddressParts& parts);
