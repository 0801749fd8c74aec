// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/ProgramFolder.h"

#include <QStringList>

#include <string>

// Columns of the settings as they stand in the file, by blanks; "-" for Null.
inline std::string OptionsRow(const ProgramFolder& folder, const QString& columns)
{
  const std::vector<QVariantList> rows = folder.Rows(QStringLiteral("SELECT %1 FROM Options").arg(columns));
  QStringList values;
  for (const QVariant& value : rows.at(0)) {
    values.append(value.isNull() ? QStringLiteral("-") : value.toString());
  }
  return values.join(u' ').toStdString();
}
