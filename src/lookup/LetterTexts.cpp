// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/LetterTexts.h"

#include <QLocale>

namespace LetterTexts {
namespace {

// Both with a comma between; or the one that is there.
QString Joined(const QVariant& first, const QVariant& second)
{
  const QString between = first.toString().isEmpty() || second.toString().isEmpty() ? QString() : QStringLiteral(", ");
  return first.toString() + between + second.toString();
}

QString DateLine(QDate today)
{
  return QLocale::c().toString(today, QStringLiteral("MMMM dd, yyyy"));
}

QString FullName(const Recipient& recipient)
{
  return recipient.firstName + QLatin1Char(' ') + recipient.lastName;
}

QString Salutation(const Recipient& recipient)
{
  return QStringLiteral("Dear ") + recipient.firstName + QLatin1Char(':');
}

}

QString StreetBlock(const AddressParts& address)
{
  const QString street = address.street.toString();
  const QString second = address.secondAddress.toString();
  return street.isEmpty() || second.isEmpty() ? street : street + QLatin1Char('\n') + second;
}

QString CityBlock(const AddressParts& address)
{
  return Joined(address.city, address.province);
}

QString CountryBlock(const AddressParts& address)
{
  return Joined(address.country, address.postal);
}

QString FullAddress(const AddressParts& address)
{
  return StreetBlock(address) + QLatin1Char('\n') + CityBlock(address) + QLatin1Char('\n') + CountryBlock(address);
}

QString NotepadText(const Recipient& recipient, QDate today, bool withAddress)
{
  const AddressParts& address = recipient.address;
  QString text = DateLine(today) + QLatin1Char('\n');
  if (withAddress) {
    text += QStringLiteral("\n\n") + FullName(recipient);
    for (const QString& line :
         {address.street.toString(), address.secondAddress.toString(), CityBlock(address), CountryBlock(address)}) {
      text += line.isEmpty() ? QString() : QLatin1Char('\n') + line;
    }
  }
  return text + QStringLiteral("\n\n") + Salutation(recipient);
}

QString WordText(const Recipient& recipient, QDate today, bool withAddress)
{
  const QString gap = QStringLiteral("\n\n");
  const QString address =
      withAddress ? FullName(recipient) + QLatin1Char('\n') + FullAddress(recipient.address) + gap : QString();
  return DateLine(today) + gap + address + Salutation(recipient);
}

}
