// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDate>
#include <QLatin1StringView>

#include <array>

// Months as the program keeps them: by their full English name.
inline constexpr std::array<QLatin1StringView, 12> kMonthNames = {
    QLatin1StringView("January"), QLatin1StringView("February"), QLatin1StringView("March"),
    QLatin1StringView("April"),   QLatin1StringView("May"),      QLatin1StringView("June"),
    QLatin1StringView("July"),    QLatin1StringView("August"),   QLatin1StringView("September"),
    QLatin1StringView("October"), QLatin1StringView("November"), QLatin1StringView("December")};

// 1 to 12; 0 for a text that is no month, in this spelling and case.
[[nodiscard]] int MonthNumber(QStringView name);

// The date of a year, month and day, where a month or a day too many carries over, and
// month 0 is the December before. Throws 6 for a date before the year 100 or after 9999.
[[nodiscard]] QDate DateSerial(int year, int month, int day);
