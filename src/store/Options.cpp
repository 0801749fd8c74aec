// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/Options.h"

#include "platform/RuntimeError.h"
#include "store/DBEngine.h"

namespace Options {

std::unique_ptr<Recordset> Open(Database& database)
{
  return database.OpenRecordset(QStringLiteral("Options"), Database::kTable);
}

QVariant Required(Recordset& options, const QString& column)
{
  QVariant value = options.Fields(column).Value();
  if (value.isNull()) {
    RaiseError(ErrorNumber::kInvalidUseOfNull);
  }
  return value;
}

void Write(const QVariantMap& valuesByColumn)
{
  Database database = DBEngine::OpenDatabase();
  const auto options = Open(database);
  options->Edit();
  for (auto setting = valuesByColumn.begin(); setting != valuesByColumn.end(); ++setting) {
    options->Fields(setting.key()).SetValue(setting.value());
  }
  options->Update();
}

void Write(const QString& column, const QVariant& value)
{
  Write(QVariantMap{{column, value}});
}

bool IsTrue(const QVariant& value)
{
  return !value.isNull() && value.toBool();
}

bool IsFalse(const QVariant& value)
{
  return !value.isNull() && !value.toBool();
}

}
