// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/App.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace App {
namespace {

QString chosenFolder;
int folderHandle = -1;

void LetGo()
{
  if (folderHandle >= 0) {
    close(folderHandle);
    folderHandle = -1;
  }
}

}

QString Path()
{
  return chosenFolder.isEmpty() ? QCoreApplication::applicationDirPath() : chosenFolder;
}

QString File(const QString& relative)
{
  return Path() + relative;
}

void SetPath(const QString& folder)
{
  LetGo();
  chosenFolder = folder.endsWith(QLatin1Char('/')) ? folder.chopped(1) : folder;
}

// The lock is on the folder itself: it needs no file, and the system drops it with
// the process, however that ends.
bool PrevInstance()
{
  if (folderHandle >= 0) {
    return false;
  }
  folderHandle = open(QFile::encodeName(Path()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folderHandle < 0 || flock(folderHandle, LOCK_EX | LOCK_NB) == 0) {
    return false;
  }
  const bool heldByAnother = errno == EWOULDBLOCK;
  LetGo();
  return heldByAnother;
}

}
