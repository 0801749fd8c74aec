// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QUrl>

// The pages of famous birthdays, one a month, with an anchor for each day.
namespace FamousBirthdays {

// The page of a month at a day; `month` is its full English name, `day` its digits.
// For a text that is no month there is no page behind the address.
[[nodiscard]] QUrl AddressOf(const QString& month, const QString& day);

}
