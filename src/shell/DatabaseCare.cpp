// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/DatabaseCare.h"

#include "platform/App.h"
#include "platform/Attempt.h"
#include "platform/FileDialog.h"
#include "platform/Files.h"
#include "platform/MsgBox.h"
#include "store/DBEngine.h"

#include <QFile>
#include <QFileInfo>

namespace DatabaseCare {
namespace {

constexpr qint64 kBytesInKB = 1000;

qint64 SizeInKB()
{
  return Files::FileLen(DBEngine::DatabasePath()) / kBytesInKB;
}

void CompactByCopy()
{
  const QString copy = App::File(QStringLiteral("/Quillmark1.mdb"));
  // The file itself, should it stand elsewhere behind a link.
  const QString path = QFileInfo(DBEngine::DatabasePath()).canonicalFilePath();
  DBEngine::CompactDatabase(path, copy);
  // A disk without permissions refuses them; the copy, whole and its owner's, is as good there.
  QFile::setPermissions(copy, QFile::permissions(path));
  Files::DeleteFile(path);
  Files::Name(copy, path);
}

void AskAndCompact()
{
  Database database = DBEngine::OpenDatabase();
  const MsgBoxAnswer answer =
      MsgBox(QStringLiteral("Your database is %1 KB in size. Proceed?").arg(SizeInKB()), MsgBoxButtons::kYesNo);
  database.Close();
  if (answer == MsgBoxAnswer::kYes) {
    CompactByCopy();
    MsgBox(QStringLiteral("End of compact proceedure. Your database is now %1 KB in size.").arg(SizeInKB()));
  }
}

}

void Compact()
{
  if (!Attempt(AskAndCompact)) {
    MsgBox(QStringLiteral("Sorry, your database could not be compacted."));
  }
}

void Backup()
{
  Attempt([] {
    const QString target = ShowSave(QStringLiteral("quillmark2002.mdb"), QStringLiteral("mdb"));
    Files::CopyFile(DBEngine::DatabasePath(), target);
  });
}

}
