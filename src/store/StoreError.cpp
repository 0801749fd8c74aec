// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/StoreError.h"

#include <sqlite3.h>

namespace StoreError {
namespace {

QString TextFor(int number)
{
  switch (number) {
    case kNoIndex:
      return QStringLiteral("No index is chosen.");
    case kNoEdit:
      return QStringLiteral("Update or CancelUpdate without AddNew or Edit.");
    case kNoCurrentRecord:
      return QStringLiteral("No current record.");
    case kDuplicate:
      return QStringLiteral("The change would make a duplicate value in a unique index.");
    case kFileNotFound:
      return QStringLiteral("The database %1 was not found.");
    case kDiskFull:
      return QStringLiteral("The disk is full; nothing was changed.");
    case kReadOnly:
      return QStringLiteral("The database cannot be changed: the file or its folder is read-only.");
    case kDiskError:
      return QStringLiteral("The database could not be read or written.");
    case kUnknownColumn:
      return QStringLiteral("There is no column '%1' in the table.");
    case kSyntax:
      return QStringLiteral("The query is not understood at '%1'.");
    case kUnknownTable:
      return QStringLiteral("There is no table '%1' in the database.");
    default:
      return {};
  }
}

QString FurtherTextFor(int number)
{
  switch (number) {
    case kBadBookmark:
      return QStringLiteral("The bookmark leads to no record.");
    case kRecordDeleted:
      return QStringLiteral("The record has been deleted.");
    case kNullNotAllowed:
      return QStringLiteral("The column may not be left without a value.");
    case kAlreadyExists:
      return QStringLiteral("The file %1 exists already.");
    case kLocked:
      return QStringLiteral("The database is locked by another program.");
    case kUnknownItem:
      return QStringLiteral("There is no item '%1' in the collection.");
    case kNotADatabase:
      return QStringLiteral("The file is damaged or is not a Quillmark database.");
    case kInUse:
      return QStringLiteral("The database is in use.");
    case kClosed:
      return QStringLiteral("The database has been closed.");
    case kUnknownIndex:
      return QStringLiteral("There is no index '%1' in the table.");
    default:
      return QStringLiteral("The database reported a failure: %1");
  }
}

int NumberFor(int code)
{
  switch (code) {
    case SQLITE_CONSTRAINT_NOTNULL:
      return kNullNotAllowed;
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_ROWID:
      return kDuplicate;
    default:
      break;
  }
  switch (code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return kLocked;
    case SQLITE_FULL:
      return kDiskFull;
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_CANTOPEN:
      return kReadOnly;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return kNotADatabase;
    default:
      return kDiskError;
  }
}

}

void Raise(int number, const QString& subject)
{
  QString text = TextFor(number);
  if (text.isEmpty()) {
    text = FurtherTextFor(number);
  }
  throw RuntimeError(number, text.contains(QLatin1String("%1")) ? text.arg(subject) : text);
}

void RaiseFor(int code)
{
  Raise(NumberFor(code));
}

void RaiseFor(sqlite3* connection)
{
  RaiseFor(sqlite3_extended_errcode(connection));
}

}
