// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/PersonValues.h"

#include "store/Recordset.h"

namespace {

QString OrStar(const QVariant& value)
{
  return value.isNull() ? QStringLiteral("*") : value.toString();
}

}

QVariant KnownValue(Recordset& person, const char* column)
{
  const QString text = person.Fields(QLatin1String(column)).Value().toString();
  return text.isEmpty() ? QVariant() : QVariant(text);
}

QString ShownValue(Recordset& person, const char* column)
{
  const QVariant value = KnownValue(person, column);
  return value.isNull() ? kUnavailable : value.toString();
}

QString OccasionDate::Text() const
{
  if (IsUnknown()) {
    return kUnavailable;
  }
  const QString date = OrStar(month) + QLatin1Char(' ') + OrStar(day);
  return year.isNull() ? date : date + QStringLiteral(", ") + year.toString();
}

bool OccasionDate::HasGap() const
{
  return !IsUnknown() && (month.isNull() || day.isNull());
}
