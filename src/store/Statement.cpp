// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/Statement.h"

#include "platform/Utf8.h"
#include "store/Connection.h"
#include "store/StoreError.h"

#include <QDate>
#include <QTime>

#include <sqlite3.h>

namespace {

void BindText(sqlite3_stmt* statement, int parameter, const QString& text)
{
  const QByteArray utf8 = text.toUtf8();
  sqlite3_bind_text(statement, parameter, utf8.constData(), static_cast<int>(utf8.size()), SQLITE_TRANSIENT);
}

// A date or a time that is none has no text.
void BindTextOrNull(sqlite3_stmt* statement, int parameter, const QString& text)
{
  if (text.isEmpty()) {
    sqlite3_bind_null(statement, parameter);
  } else {
    BindText(statement, parameter, text);
  }
}

}

Statement::Statement(Connection& connection, const QString& sql)
    : connection_(connection), statement_(connection.Prepare(sql))
{}

Statement::~Statement()
{
  sqlite3_reset(statement_);
  sqlite3_clear_bindings(statement_);
}

Statement& Statement::Bind(int parameter, const QVariant& value)
{
  switch (value.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
      sqlite3_bind_null(statement_, parameter);
      break;
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::Long:
    case QMetaType::LongLong:
      sqlite3_bind_int64(statement_, parameter, value.toLongLong());
      break;
    case QMetaType::Double:
      sqlite3_bind_double(statement_, parameter, value.toDouble());
      break;
    case QMetaType::QDate:
      BindTextOrNull(statement_, parameter, value.toDate().toString(Qt::ISODate));
      break;
    case QMetaType::QTime:
      BindTextOrNull(statement_, parameter, value.toTime().toString(Qt::ISODate));
      break;
    default:
      BindText(statement_, parameter, value.toString());
  }
  return *this;
}

Statement& Statement::BindExact(int parameter, const Exact& value)
{
  if (value) {
    sqlite3_bind_value(statement_, parameter, value.get());
  } else {
    sqlite3_bind_null(statement_, parameter);
  }
  return *this;
}

bool Statement::Step()
{
  const int code = sqlite3_step(statement_);
  if (code != SQLITE_ROW && code != SQLITE_DONE) {
    const int extended = sqlite3_extended_errcode(connection_.Handle());
    sqlite3_reset(statement_);
    StoreError::RaiseFor(extended);
  }
  return code == SQLITE_ROW;
}

void Statement::Restart()
{
  sqlite3_reset(statement_);
}

Statement::Kind Statement::KindOf(int column) const
{
  switch (sqlite3_column_type(statement_, column)) {
    case SQLITE_NULL:
      return Kind::kNull;
    case SQLITE_INTEGER:
    case SQLITE_FLOAT:
      return Kind::kNumber;
    default:
      return Kind::kText;
  }
}

bool Statement::IsNull(int column) const
{
  return KindOf(column) == Kind::kNull;
}

bool Statement::IsNumber(int column) const
{
  return KindOf(column) == Kind::kNumber;
}

qint64 Statement::Integer(int column) const
{
  return sqlite3_column_int64(statement_, column);
}

double Statement::Number(int column) const
{
  return sqlite3_column_double(statement_, column);
}

std::string_view Statement::Bytes(int column) const
{
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
  return {text == nullptr ? "" : text, static_cast<std::size_t>(sqlite3_column_bytes(statement_, column))};
}

QString Statement::Text(int column) const
{
  return FromUtf8(Bytes(column));
}

Statement::Exact Statement::ExactValue(int column) const
{
  return IsNull(column) ? nullptr
                        : Exact(sqlite3_value_dup(sqlite3_column_value(statement_, column)), sqlite3_value_free);
}

QVariant Statement::Value(int column, ColumnType type) const
{
  const Kind kind = KindOf(column);
  if (kind == Kind::kNull) {
    return {};
  }
  if (kind == Kind::kNumber && type == ColumnType::kYesNo) {
    return Number(column) != 0;
  }
  if (kind == Kind::kNumber && type == ColumnType::kInteger) {
    return QVariant::fromValue<qlonglong>(Integer(column));
  }
  return ValueFromText(Text(column), type);
}

QVariant ValueFromText(const QString& text, ColumnType type)
{
  if (type == ColumnType::kDate) {
    const QDate date = QDate::fromString(text, Qt::ISODate);
    return date.isValid() ? QVariant(date) : QVariant(text);
  }
  if (type == ColumnType::kTime) {
    const QTime time = QTime::fromString(text, Qt::ISODate);
    return time.isValid() ? QVariant(time) : QVariant(text);
  }
  return text;
}
