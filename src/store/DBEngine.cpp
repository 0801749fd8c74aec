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

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

Database Workspace::OpenDatabase(const QString& path)
{
  return Database(path);
}

namespace {

// Files that are made meanwhile are for their owner alone.
class OwnerAlone
{
public:
  OwnerAlone() : before_(umask(S_IRWXG | S_IRWXO)) {}
  ~OwnerAlone() { umask(before_); }
  OwnerAlone(const OwnerAlone&) = delete;
  OwnerAlone& operator=(const OwnerAlone&) = delete;

private:
  mode_t before_;
};

bool Flush(const QString& path)
{
  const int handle = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
  const bool flushed = handle >= 0 && fsync(handle) == 0;
  close(handle);
  return flushed;
}

// On the disk, so that the source may be deleted; and its name as well, where the file
// system knows how to.
void MakeLasting(const QString& path)
{
  if (!Flush(path)) {
    StoreError::Raise(StoreError::kDiskError);
  }
  Flush(QFileInfo(path).path());
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
  const OwnerAlone ownerAlone;
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
