// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/Autostart.h"

#include "platform/App.h"
#include "platform/DesktopEntry.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <pwd.h>
#include <unistd.h>

namespace Autostart {
namespace {

// Empty unless the variable holds an absolute path; another is to be passed over.
QString FolderNamedBy(const char* variable)
{
  const QString folder = QFile::decodeName(qgetenv(variable));
  return QDir::isAbsolutePath(folder) ? folder : QString();
}

QString HomeFolder()
{
  QString home = FolderNamedBy("HOME");
  if (!home.isEmpty()) {
    return home;
  }
  const passwd* account = getpwuid(geteuid());
  if (account == nullptr || account->pw_dir == nullptr || *account->pw_dir != '/') {
    RaiseError(ErrorNumber::kFileAccess);
  }
  return QFile::decodeName(account->pw_dir);
}

QString ConfigurationFolder()
{
  const QString folder = FolderNamedBy("XDG_CONFIG_HOME");
  return folder.isEmpty() ? HomeFolder() + QStringLiteral("/.config") : folder;
}

// Folders of the user's own settings are nobody else's business.
void MakePrivately(const QString& folder)
{
  const QFileInfo info(folder);
  if (info.isDir()) {
    return;
  }
  MakePrivately(info.path());
  if (!QDir().mkdir(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner)) {
    RaiseError(ErrorNumber::kFileAccess);
  }
}

}

QString EntryPath()
{
  return QDir::cleanPath(ConfigurationFolder() + QStringLiteral("/autostart/Quillmark.desktop"));
}

void Create()
{
  const QString path = EntryPath();
  MakePrivately(QFileInfo(path).path());
  Files::WriteFile(path, DesktopEntry::Text({.name = QLatin1String(App::kTitle),
                                             .comment = QStringLiteral("Birthdays, anniversaries and reminders"),
                                             .binary = App::File(QStringLiteral("/quillmark")),
                                             .workingDirectory = App::Path(),
                                             .icon = App::File(QStringLiteral("/animp.ico"))}));
}

void Remove()
{
  Files::DeleteFile(EntryPath());
}

}
