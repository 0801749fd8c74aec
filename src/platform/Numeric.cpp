// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Numeric.h"

#include "platform/RuntimeError.h"

#include <QLocale>

#include <cmath>
#include <limits>
#include <optional>

namespace {

std::optional<double> ToNumber(const QString& text)
{
  bool isNumber = false;
  const int whole = text.toInt(&isNumber);  // most are, and much faster
  if (isNumber) {
    return whole;
  }
  const double number = QLocale::c().toDouble(text.trimmed(), &isNumber);
  return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

}

bool IsNumeric(const QString& text)
{
  return ToNumber(text).has_value();
}

int ToInteger(const QString& text)
{
  const std::optional<double> number = ToNumber(text);
  if (!number) {
    RaiseError(ErrorNumber::kTypeMismatch);
  }
  const double whole = std::nearbyint(*number);
  if (whole < std::numeric_limits<int>::min() || whole > std::numeric_limits<int>::max()) {
    RaiseError(ErrorNumber::kOverflow);
  }
  return static_cast<int>(whole);
}
