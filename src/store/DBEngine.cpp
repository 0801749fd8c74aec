// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/DBEngine.h"

#include "platform/App.h"
#include "platform/Command.h"
#include "platform/RuntimeError.h"
#include "store/Connection.h"
#include "store/Statement.h"
#include "store/StoreError.h"

#include <QFile>
#include <QFileInfo>

#include <unistd.h>

Database Workspace::OpenDatabase(const QString& path)
{
  return Database(path);
}

namespace {

// On the disk, so that the source may be deleted.
void MakeLasting(const QString& path)
{
  QFile file(path);
  if (!file.open(QIODevice::ReadWrite) || fsync(file.handle()) != 0) {
    StoreError::Raise(StoreError::kDiskError);
  }
}

}

namespace DBEngine {

Workspace& Workspaces(int number)
{
  static Workspace defaultSession;
  if (number != 0) {
    RaiseError(ErrorNumber::kSubscriptOutOfRange);
  }
  return defaultSession;
}

void CompactDatabase(const QString& source, const QString& target)
{
  if (QFileInfo::exists(target)) {
    StoreError::Raise(StoreError::kAlreadyExists, target);
  }
  Command::Settle();
  if (Connection::UsersOf(source) > 0) {
    StoreError::Raise(StoreError::kInUse);
  }
  const std::shared_ptr<Connection> connection = Connection::To(source);
  try {
    Statement(*connection, QStringLiteral("VACUUM INTO ?")).Bind(1, target).Step();
    MakeLasting(target);
  } catch (const RuntimeError&) {
    QFile::remove(target);
    throw;
  }
}

QString DatabasePath()
{
  return App::File(QStringLiteral("/quillmark2002.mdb"));
}

Database OpenDatabase()
{
  return Workspaces(0).OpenDatabase(DatabasePath());
}

}
