// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"

#include "platform/RuntimeError.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTextStream>

#include <cerrno>
#include <cstdio>
#include <unistd.h>

namespace Files {
namespace {

void OpenForReading(QFile& file)
{
  if (!file.exists()) {
    RaiseError(ErrorNumber::kFileNotFound);
  }
  // What is no plain file, such as a pipe, may never come to its end.
  if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) {
    RaiseError(ErrorNumber::kFileAccess);
  }
}

void OpenForWriting(QSaveFile& file)
{
  if (!file.open(QIODevice::WriteOnly)) {
    RaiseError(ErrorNumber::kFileAccess);
  }
}

void Pour(QFile& source, QSaveFile& target)
{
  constexpr qint64 kBlock = 1 << 16;
  while (!source.atEnd()) {
    const QByteArray block = source.read(kBlock);
    if (block.isEmpty() || target.write(block) != block.size()) {
      RaiseError(ErrorNumber::kFileAccess);
    }
  }
}

}

// What is left in the buffer may fail as well, and so may what the system has put off.
void Commit(QSaveFile& file)
{
  if (!file.flush() || fsync(file.handle()) != 0 || !file.commit()) {
    RaiseError(ErrorNumber::kFileAccess);
  }
}

qint64 FileLen(const QString& path)
{
  const QFileInfo file(path);
  if (!file.isFile()) {
    RaiseError(ErrorNumber::kFileNotFound);
  }
  return file.size();
}

void DeleteFile(const QString& path)
{
  if (!QFileInfo(path).isFile()) {
    RaiseError(ErrorNumber::kFileNotFound);
  }
  if (!QFile::remove(path)) {
    RaiseError(ErrorNumber::kFileAccess);
  }
}

void Name(const QString& oldPath, const QString& newPath)
{
  if (!QFileInfo(oldPath).isFile()) {
    RaiseError(ErrorNumber::kFileNotFound);
  }
  if (QFileInfo::exists(newPath)) {
    RaiseError(ErrorNumber::kFileAccess);
  }
  if (rename(QFile::encodeName(oldPath).constData(), QFile::encodeName(newPath).constData()) == 0) {
    return;
  }
  if (errno != EXDEV) {
    RaiseError(ErrorNumber::kFileAccess);
  }
  CopyFile(oldPath, newPath);
  DeleteFile(oldPath);
}

void CopyFile(const QString& source, const QString& target)
{
  QFile from(source);
  OpenForReading(from);
  QSaveFile to(target);
  OpenForWriting(to);
  to.setPermissions(from.permissions());
  Pour(from, to);
  Commit(to);
}

void WriteFile(const QString& path, const QByteArray& contents)
{
  QSaveFile file(path);
  OpenForWriting(file);
  if (file.write(contents) != contents.size()) {
    RaiseError(ErrorNumber::kFileAccess);
  }
  Commit(file);
}

QStringList ReadLines(const QString& path)
{
  QFile file(path);
  OpenForReading(file);
  QTextStream stream(&file);
  QStringList lines;
  QString line;
  while (stream.readLineInto(&line)) {
    lines.append(line);
  }
  return lines;
}

QByteArray ReadFile(const QString& path)
{
  QFile file(path);
  OpenForReading(file);
  QByteArray contents = file.readAll();
  if (file.error() != QFileDevice::NoError) {
    RaiseError(ErrorNumber::kFileAccess);
  }
  return contents;
}

}
