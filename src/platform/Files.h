// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

class QSaveFile;

// Operations on files. Each throws a RuntimeError: 53 if a file is not there,
// 75 if it cannot be read, written or removed.
namespace Files {

// Size in bytes.
[[nodiscard]] qint64 FileLen(const QString& path);

// Removes a file.
void DeleteFile(const QString& path);

// Gives a file another name; fails if the new name is taken. On another disk the file
// appears whole before the old one goes.
void Name(const QString& oldPath, const QString& newPath);

// Copies a file over whatever stands at `target`. The copy appears whole or not at all,
// with the permissions of its source.
void CopyFile(const QString& source, const QString& target);

// Writes a file over whatever stands at `path`. It appears whole or not at all.
void WriteFile(const QString& path, const QByteArray& contents);

// Gives a file its name once all that was written to it is on the disk.
void Commit(QSaveFile& file);

// The lines of a UTF-8 text file, without their line ends.
[[nodiscard]] QStringList ReadLines(const QString& path);

// All bytes of a file.
[[nodiscard]] QByteArray ReadFile(const QString& path);

}
