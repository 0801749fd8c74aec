// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/LetterFiles.h"

#include "platform/RuntimeError.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace LetterFiles {
namespace {

// A word processor on a cold machine takes half of this.
constexpr int kSecondsToRead = 60;
constexpr auto kFolderIsPrivate = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
constexpr auto kFileIsPrivate = QFile::ReadOwner | QFile::WriteOwner;

// In the user's own folder, not in one that the system empties: an editor saves there
// what the user has typed.
QString LettersFolder()
{
  return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + QStringLiteral("/letters");
}

// The name of a letter's folder begins with the mark of what was written into it, so that
// a letter that was saved over is told apart, even in another run.
QString MarkOf(const QCryptographicHash& hash)
{
  return QString::fromLatin1(hash.result().toHex().first(32));
}

QString MarkOf(const QByteArray& content)
{
  QCryptographicHash hash(QCryptographicHash::Sha256);
  hash.addData(content);
  return MarkOf(hash);
}

bool IsAsWritten(const QFileInfo& file)
{
  QFile reader(file.filePath());
  QCryptographicHash hash(QCryptographicHash::Sha256);
  return reader.open(QIODevice::ReadOnly) && hash.addData(&reader) &&
         file.dir().dirName().startsWith(MarkOf(hash) + QLatin1Char('-'));
}

bool HasStoodLongEnough(const QFileInfo& file)
{
  return file.lastModified().secsTo(QDateTime::currentDateTime()) >= kSecondsToRead;
}

QString FreeName(const QDir& folder, const QFileInfo& file)
{
  const QString ending = file.fileName().mid(file.completeBaseName().size());
  QString name = file.fileName();
  for (int number = 2; folder.exists(name); ++number) {
    name = QStringLiteral("%1 %2").arg(file.completeBaseName()).arg(number) + ending;
  }
  return folder.filePath(name);
}

void MoveToDocuments(const QFileInfo& file)
{
  const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  if (documents.mkpath(QStringLiteral("."))) {
    QFile::rename(file.filePath(), FreeName(documents, file));
  }
}

// Hidden files are the editor's own, such as what it recovers unsaved text from.
void TidyUpFolder(const QString& folder)
{
  for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files | QDir::NoSymLinks)) {
    if (IsAsWritten(file)) {
      if (HasStoodLongEnough(file)) {
        QFile::remove(file.filePath());
      }
    } else if (file.fileName().endsWith(QLatin1Char('~'))) {
      QFile::remove(file.filePath());
    } else {
      MoveToDocuments(file);
    }
  }
  QDir().rmdir(folder);
}

QString NewFolder(const QString& mark)
{
  const QString letters = LettersFolder();
  if (!QDir().mkpath(letters) || !QFile::setPermissions(letters, kFolderIsPrivate)) {
    RaiseError(ErrorNumber::kFileAccess);
  }
  QTemporaryDir folder(letters + QLatin1Char('/') + mark + QStringLiteral("-XXXXXX"));
  if (!folder.isValid()) {
    RaiseError(ErrorNumber::kFileAccess);
  }
  folder.setAutoRemove(false);
  return folder.path();
}

}

QString Write(const QString& suffix, const QByteArray& content)
{
  QString letter = NewFolder(MarkOf(content)) + QStringLiteral("/Letter.") + suffix;
  QFile file(letter);
  if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly, kFileIsPrivate) || file.write(content) != content.size() ||
      !file.flush()) {
    Discard(letter);
    RaiseError(ErrorNumber::kFileAccess);
  }
  return letter;
}

void Discard(const QString& letter)
{
  QFile::remove(letter);
  QDir().rmdir(QFileInfo(letter).path());
}

void TidyUp(const QString& letter)
{
  TidyUpFolder(QFileInfo(letter).path());
}

void TidyUpAll()
{
  const QDir letters(LettersFolder());
  for (const QFileInfo& folder : letters.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks)) {
    TidyUpFolder(folder.filePath());
  }
}

}
