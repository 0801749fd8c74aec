// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/ProgramFolder.h"

#include "platform/App.h"

#include <QFile>

#include <sqlite3.h>
#include <stdexcept>

namespace {

// A connection of the test's own, open no longer than one call.
class OutsideConnection
{
public:
  explicit OutsideConnection(const QString& path)
  {
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    Check(sqlite3_open_v2(path.toUtf8().constData(), &handle_, flags, nullptr));
    sqlite3_busy_timeout(handle_, 5000);
  }
  ~OutsideConnection() { sqlite3_close(handle_); }
  OutsideConnection(const OutsideConnection&) = delete;
  OutsideConnection& operator=(const OutsideConnection&) = delete;

  void RunScript(const QByteArray& sql) { Check(sqlite3_exec(handle_, sql.constData(), nullptr, nullptr, nullptr)); }

  std::vector<QVariantList> Run(const QString& sql, const QVariantList& parameters)
  {
    sqlite3_stmt* statement = nullptr;
    Check(sqlite3_prepare_v2(handle_, sql.toUtf8().constData(), -1, &statement, nullptr));
    for (qsizetype i = 0; i < parameters.size(); ++i) {
      Bind(statement, static_cast<int>(i) + 1, parameters[i]);
    }
    std::vector<QVariantList> rows;
    int code = sqlite3_step(statement);
    for (; code == SQLITE_ROW; code = sqlite3_step(statement)) {
      rows.push_back(Row(statement));
    }
    const QByteArray message = sqlite3_errmsg(handle_);
    sqlite3_finalize(statement);
    if (code != SQLITE_DONE) {
      throw std::runtime_error(message.toStdString());
    }
    return rows;
  }

private:
  void Check(int code) const
  {
    if (code != SQLITE_OK) {
      throw std::runtime_error(sqlite3_errmsg(handle_));
    }
  }

  static void Bind(sqlite3_stmt* statement, int parameter, const QVariant& value)
  {
    if (!value.isValid() || value.isNull()) {
      sqlite3_bind_null(statement, parameter);
    } else if (value.typeId() == QMetaType::QString) {
      const QByteArray text = value.toString().toUtf8();
      sqlite3_bind_text(statement, parameter, text.constData(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
    } else {
      sqlite3_bind_int64(statement, parameter, value.toLongLong());
    }
  }

  static QVariantList Row(sqlite3_stmt* statement)
  {
    QVariantList row;
    for (int column = 0; column < sqlite3_column_count(statement); ++column) {
      switch (sqlite3_column_type(statement, column)) {
        case SQLITE_NULL:
          row.append(QVariant());
          break;
        case SQLITE_INTEGER:
          row.append(static_cast<qlonglong>(sqlite3_column_int64(statement, column)));
          break;
        default:
          row.append(QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, column))));
      }
    }
    return row;
  }

  sqlite3* handle_ = nullptr;
};

QByteArray SourceFile(const QString& relative)
{
  QFile file(QStringLiteral(QUILLMARK_SOURCE "/") + relative);
  if (!file.open(QIODevice::ReadOnly)) {
    throw std::runtime_error(("cannot read " + relative).toStdString());
  }
  return file.readAll();
}

}

ProgramFolder::ProgramFolder()
{
  OutsideConnection connection(DatabasePath());
  connection.RunScript(SourceFile("src/store/schema.sql"));
  connection.RunScript(SourceFile("src/store/delivered.sql"));
  for (const char* name : {"/months.txt", "/reminders.txt"}) {
    QFile::copy(QStringLiteral(QUILLMARK_SOURCE "/assets") + name, File(name));
  }
  App::SetPath(Path());
}

ProgramFolder::~ProgramFolder()
{
  App::SetPath({});
}

void ProgramFolder::Execute(const QString& sql, const QVariantList& parameters) const
{
  OutsideConnection(DatabasePath()).Run(sql, parameters);
}

std::vector<QVariantList> ProgramFolder::Rows(const QString& sql) const
{
  return OutsideConnection(DatabasePath()).Run(sql, {});
}

QVariant ProgramFolder::Value(const QString& sql) const
{
  const std::vector<QVariantList> rows = Rows(sql);
  return rows.empty() ? QVariant() : rows.front().value(0);
}
