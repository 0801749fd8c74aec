// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Privacy.h"

#include <QDir>
#include <QFile>

#include <optional>
#include <sys/stat.h>

namespace Privacy {
namespace {

constexpr mode_t kOthers = S_IRWXG | S_IRWXO;

std::optional<mode_t> usersOwn;

void CloseOne(const QString& path)
{
  const QByteArray name = QFile::encodeName(path);
  struct stat entry = {};
  if (lstat(name.constData(), &entry) == 0 && !S_ISLNK(entry.st_mode) && (entry.st_mode & kOthers) != 0) {
    chmod(name.constData(), entry.st_mode & 07777U & ~kOthers);
  }
}

void CloseFilesOf(const QString& folder, const QStringList& names)
{
  if (QFileInfo(folder).isSymLink()) {
    return;
  }
  for (const QFileInfo& file : QDir(folder).entryInfoList(names, QDir::Files | QDir::NoSymLinks)) {
    CloseOne(file.filePath());
  }
}

}

void KeepToOwner()
{
  const mode_t before = umask(kOthers);
  usersOwn = usersOwn.value_or(before);
}

AsUsersOthers::AsUsersOthers() : before_(umask(0))
{
  umask(usersOwn.value_or(before_));
}

AsUsersOthers::~AsUsersOthers()
{
  umask(before_);
}

void CloseToOthers(const QString& programFolder)
{
  const QStringList databases = {QStringLiteral("*.mdb"), QStringLiteral("*.mdb-journal")};
  if (QDir(programFolder).entryList(databases, QDir::Files).isEmpty()) {
    return;
  }
  CloseOne(programFolder);
  CloseFilesOf(programFolder, databases + QStringList{QStringLiteral("*.txt")});
  for (const char* pictures : {"/PeoplePics", "/AnnPics"}) {
    const QString folder = programFolder + QLatin1String(pictures);
    CloseOne(folder);
    CloseFilesOf(folder, {});
  }
}

}
