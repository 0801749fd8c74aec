// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDate>
#include <QString>
#include <QVariant>

// The opening lines of a letter. Lines end in a line feed.
namespace LetterTexts {

// Who the letter is for. Any part of the address may be Null; an empty text is one.
struct Recipient
{
  QString firstName;
  QString lastName;
  QVariant street;
  QVariant secondAddress;
  QVariant city;
  QVariant province;
  QVariant postal;
  QVariant country;
};

// The blocks of an address; empty if nothing is known of them. A second address alone
// makes no street block.
[[nodiscard]] QString StreetBlock(const Recipient& recipient);
[[nodiscard]] QString CityBlock(const Recipient& recipient);
[[nodiscard]] QString CountryBlock(const Recipient& recipient);

// The three blocks, always on lines of their own.
[[nodiscard]] QString FullAddress(const Recipient& recipient);

// The opening of a letter in an editor: the address line by line, where there is one.
[[nodiscard]] QString NotepadText(const Recipient& recipient, QDate today, bool withAddress);

// The opening of a letter in a word processor: with the full address.
[[nodiscard]] QString WordText(const Recipient& recipient, QDate today, bool withAddress);

}
