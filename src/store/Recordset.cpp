// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/Recordset.h"

#include "store/Connection.h"
#include "store/Statement.h"
#include "store/StoreError.h"

#include <sqlite3.h>

QVariant Field::Value() const
{
  return owner_->Value(column_);
}

const QVariant& Field::Peek() const
{
  return owner_->Value(column_);
}

void Field::SetValue(const QVariant& value)
{
  owner_->SetValue(column_, value);
}

Recordset::Recordset(std::shared_ptr<Connection> connection, const TableSchema& table, std::vector<Column> columns)
    : connection_(std::move(connection)),
      table_(table),
      changes_(connection_->ChangesOf(table.name)),
      columns_(std::move(columns))
{
  fields_.reserve(columns_.size());
  for (std::size_t column = 0; column < columns_.size(); ++column) {
    fields_.emplace_back(*this, static_cast<int>(column));
  }
}

Recordset::~Recordset() = default;

long long Recordset::ChangeStamp() const
{
  return connection_->ChangeStamp(changes_);
}

int Recordset::AbsolutePosition() const
{
  return -1;
}

void Recordset::SetIndex(const QString& name)
{
  StoreError::Raise(StoreError::kUnknownIndex, name);
}

void Recordset::Seek(const QString&, const QVariant&)
{
  StoreError::Raise(StoreError::kNoIndex);
}

void Recordset::FindFirst(const QString& criteria)
{
  StoreError::Raise(StoreError::kSyntax, criteria);
}

Field& Recordset::Fields(const QString& name)
{
  for (std::size_t column = 0; column < columns_.size(); ++column) {
    if (columns_[column].name.compare(name, Qt::CaseInsensitive) == 0) {
      return fields_[column];
    }
  }
  StoreError::Raise(StoreError::kUnknownItem, name);
}

const QVariant& Recordset::Value(int column)
{
  if (mode_ == Mode::kReading) {
    return ReadValue(column);
  }
  const auto pending = pending_.find(column);
  if (pending != pending_.end()) {
    return pending->second;
  }
  static const QVariant null;
  return mode_ == Mode::kAdding ? null : ReadValue(column);
}

void Recordset::SetValue(int column, const QVariant& value)
{
  if (mode_ == Mode::kReading) {
    StoreError::Raise(StoreError::kNoEdit);
  }
  if (columns_[static_cast<std::size_t>(column)].baseColumn.isEmpty()) {
    StoreError::Raise(StoreError::kReadOnly);
  }
  pending_[column] = value;
}

void Recordset::ForgetEdit()
{
  if (mode_ != Mode::kReading) {
    mode_ = Mode::kReading;
    pending_.clear();
  }
}

void Recordset::MustBeUpdatable() const
{
  if (!IsUpdatable()) {
    StoreError::Raise(StoreError::kReadOnly);
  }
}

void Recordset::AddNew()
{
  MustBeUpdatable();
  ForgetEdit();
  mode_ = Mode::kAdding;
}

void Recordset::Edit()
{
  MustBeUpdatable();
  ForgetEdit();
  static_cast<void>(CurrentKey());
  mode_ = Mode::kEditing;
}

void Recordset::CancelUpdate()
{
  if (mode_ == Mode::kReading) {
    StoreError::Raise(StoreError::kNoEdit);
  }
  ForgetEdit();
}

void Recordset::Update()
{
  switch (mode_) {
    case Mode::kReading:
      StoreError::Raise(StoreError::kNoEdit);
    case Mode::kEditing:
      WriteEdit();
      ForgetEdit();
      break;
    case Mode::kAdding:
      const qint64 key = WriteNew();
      ForgetEdit();
      RowAdded(key);
      break;
  }
}

void Recordset::Delete()
{
  MustBeUpdatable();
  ForgetEdit();
  const QString sql = QStringLiteral("DELETE FROM %1 WHERE %2=?").arg(QuoteName(table_.name), QuoteName(table_.key));
  Write(sql, {CurrentKey()});
  MustHaveChanged();
  RowDeleted();
}

void Recordset::WriteEdit()
{
  if (pending_.empty()) {
    return;
  }
  QStringList assignments;
  std::vector<QVariant> values;
  for (const auto& [column, value] : pending_) {
    assignments.append(QuoteName(columns_[static_cast<std::size_t>(column)].baseColumn) + QLatin1String("=?"));
    values.push_back(value);
  }
  values.emplace_back(CurrentKey());
  Write(QStringLiteral("UPDATE %1 SET %2 WHERE %3=?")
            .arg(QuoteName(table_.name), assignments.join(QLatin1Char(',')), QuoteName(table_.key)),
        values);
  MustHaveChanged();
}

// A row that somebody else has deleted is not found by its key.
void Recordset::MustHaveChanged() const
{
  if (sqlite3_changes(connection_->Handle()) == 0) {
    StoreError::Raise(StoreError::kRecordDeleted);
  }
}

qint64 Recordset::WriteNew()
{
  QStringList names;
  QStringList places;
  std::vector<QVariant> values;
  for (const auto& [column, value] : pending_) {
    names.append(QuoteName(columns_[static_cast<std::size_t>(column)].baseColumn));
    places.append(QStringLiteral("?"));
    values.push_back(value);
  }
  const QString table = QuoteName(table_.name);
  Write(values.empty() ? QStringLiteral("INSERT INTO %1 DEFAULT VALUES").arg(table)
                       : QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                             .arg(table, names.join(QLatin1Char(',')), places.join(QLatin1Char(','))),
        values);
  return sqlite3_last_insert_rowid(connection_->Handle());
}

void Recordset::Write(const QString& sql, const std::vector<QVariant>& values)
{
  connection_->BeginWrite();
  try {
    Statement statement(*connection_, sql);
    int parameter = 0;
    for (const QVariant& value : values) {
      statement.Bind(++parameter, value);
    }
    statement.Step();
    connection_->CountChange(table_.name);
  } catch (const RuntimeError&) {
    connection_->WriteFailed();
    throw;
  }
}
