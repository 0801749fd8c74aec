// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QVariant>

class Recordset;

// What the look-up page says of a thing that is not known.
inline const QString kUnavailable = QStringLiteral("unavailable");

// A column of the cursor's row, an empty text being as unknown as Null.
[[nodiscard]] QVariant KnownValue(Recordset& person, const char* column);

// The same as it is shown.
[[nodiscard]] QString ShownValue(Recordset& person, const char* column);

// A birthday or wedding day, of whose parts any may be Null.
struct OccasionDate
{
  QVariant month;
  QVariant day;
  QVariant year;

  // "March 5, 1962", "* 5", "* *, 1962"; "unavailable" if nothing is known.
  [[nodiscard]] QString Text() const;

  // True if Text has a "*" in it.
  [[nodiscard]] bool HasGap() const;

private:
  [[nodiscard]] bool IsUnknown() const { return month.isNull() && day.isNull() && year.isNull(); }
};
