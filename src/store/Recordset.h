// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "store/Field.h"
#include "store/Schema.h"

#include <map>
#include <memory>
#include <vector>

class Connection;

// A cursor over rows. It opens on its first row. With no current row, what needs one
// throws 3021. (The ends are Eof and Bof, since EOF is a macro of the C library.)
class Recordset
{
public:
  // A place to come back to. It stays good while its row is there.
  struct Bookmark
  {
    qint64 key = 0;
    qsizetype hint = -1;
  };

  virtual ~Recordset();
  Recordset(const Recordset&) = delete;
  Recordset& operator=(const Recordset&) = delete;

  virtual void MoveFirst() = 0;
  virtual void MoveLast() = 0;
  virtual void MoveNext() = 0;      // past the last row Eof is True; throws 3021 beyond
  virtual void MovePrevious() = 0;  // before the first row Bof is True; throws 3021 beyond
  [[nodiscard]] virtual bool Eof() const = 0;
  [[nodiscard]] virtual bool Bof() const = 0;

  // On a table cursor the rows of the table; on a dynaset those visited so far.
  [[nodiscard]] virtual int RecordCount() = 0;

  // Zero-based, -1 without a current row. Dynasets only.
  [[nodiscard]] virtual int AbsolutePosition() const;

  [[nodiscard]] virtual Bookmark GetBookmark() = 0;
  virtual void SetBookmark(const Bookmark& bookmark) = 0;  // throws 3159 if the row is gone

  // Table cursors only. An index puts the cursor on its first row in the index's order.
  virtual void SetIndex(const QString& name);
  virtual void Seek(const QString& comparison, const QVariant& key);

  // Dynasets only. Finds from the first row on; without a match the cursor stays.
  virtual void FindFirst(const QString& criteria);

  // True when the last Seek or FindFirst found nothing.
  [[nodiscard]] bool NoMatch() const { return noMatch_; }

  void AddNew();  // after Update the row that was current still is
  void Edit();
  void Update();  // throws 3022 if a unique index refuses; the edit stays open then
  void CancelUpdate();
  void Delete();  // the row stays current, as deleted, until the next move

  // A column by name, without regard to case. Throws 3265. Good as long as the cursor.
  [[nodiscard]] Field& Fields(const QString& name);

protected:
  struct Column
  {
    QString name;
    ColumnType type = ColumnType::kText;
    QString baseColumn;  // empty if computed
  };

  Recordset(std::shared_ptr<Connection> connection, const TableSchema& table, std::vector<Column> columns);

  [[nodiscard]] Connection& Store() const { return *connection_; }
  [[nodiscard]] const TableSchema& Table() const { return table_; }
  // Another number after each change to the table.
  [[nodiscard]] long long ChangeStamp() const;
  [[nodiscard]] const std::vector<Column>& Columns() const { return columns_; }
  void SetNoMatch(bool noMatch) { noMatch_ = noMatch; }
  void ForgetEdit();

  // False if nothing can be changed through the cursor; then what would throws 3027.
  [[nodiscard]] virtual bool IsUpdatable() const { return true; }

  // The current row's key. Throws if there is none.
  [[nodiscard]] virtual qint64 CurrentKey() = 0;
  [[nodiscard]] virtual const QVariant& ReadValue(int column) = 0;
  virtual void RowAdded(qint64 key) = 0;
  virtual void RowDeleted() = 0;

private:
  friend class Field;

  enum class Mode
  {
    kReading,
    kEditing,
    kAdding,
  };

  [[nodiscard]] const QVariant& Value(int column);
  void SetValue(int column, const QVariant& value);
  void MustBeUpdatable() const;
  void MustHaveChanged() const;
  void WriteEdit();
  qint64 WriteNew();
  void Write(const QString& sql, const std::vector<QVariant>& values);

  std::shared_ptr<Connection> connection_;
  TableSchema table_;
  const long long& changes_;
  std::vector<Column> columns_;
  std::vector<Field> fields_;
  Mode mode_ = Mode::kReading;
  std::map<int, QVariant> pending_;
  bool noMatch_ = false;
};
