// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "occasions/FamousBirthdays.h"

#include "platform/App.h"
#include "platform/Months.h"

namespace FamousBirthdays {
namespace {

// In the program's folder.
constexpr auto kBaseAddress = "/famous/";
constexpr qsizetype kKeyLength = 3;

QString TwoDigits(const QString& day)
{
  return day.size() == 1 && day.front() >= QLatin1Char('1') && day.front() <= QLatin1Char('9') ? QLatin1Char('0') + day
                                                                                               : day;
}

}

QUrl AddressOf(const QString& month, const QString& day)
{
  const QString key = MonthNumber(month) == 0 ? QString() : month.left(kKeyLength).toLower();
  QUrl address = QUrl::fromLocalFile(App::File(QLatin1String(kBaseAddress) + key + QStringLiteral(".html")));
  address.setFragment(TwoDigits(day));
  return address;
}

}
