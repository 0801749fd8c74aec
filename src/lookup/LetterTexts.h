// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "lookup/AddressBlock.h"

#include <QDate>
#include <QString>

// The opening lines of a letter. Lines end in a line feed.
namespace LetterTexts {

// Who the letter is for. An empty part of the address is as Null.
struct Recipient
{
  QString firstName;
  QString lastName;
  AddressParts address;
};

// The blocks of an address; empty if nothing is known of them. A second address alone
// makes no street block.
[[nodiscard]] QString StreetBlock(const AddressParts& address);
[[nodiscard]] QString CityBlock(const AddressParts& address);
[[nodiscard]] QString CountryBlock(const AddressParts& address);

// The three blocks, always on lines of their own.
[[nodiscard]] QString FullAddress(const AddressParts& address);

// The opening of a letter in an editor: the address line by line, where there is one.
[[nodiscard]] QString NotepadText(const Recipient& recipient, QDate today, bool withAddress);

// The opening of a letter in a word processor: with the full address.
[[nodiscard]] QString WordText(const Recipient& recipient, QDate today, bool withAddress);

}
