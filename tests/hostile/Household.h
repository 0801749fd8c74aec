// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/ProgramFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

// A program's folder with all that is delivered, and a household with people, couples,
// events and pictures, whose database has long rows and free pages.
class Household
{
public:
  Household();

  [[nodiscard]] QString File(const QString& relative) const { return folder_.File(relative); }
  [[nodiscard]] QString DatabasePath() const { return folder_.DatabasePath(); }
  [[nodiscard]] QVariant Value(const QString& sql) const { return folder_.Value(sql); }

  static QByteArray Contents(const QString& path)
  {
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no plain file");
  }
  static void Write(const QString& path, const QByteArray& contents)
  {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << path.toStdString();
    ASSERT_EQ(file.write(contents), contents.size());
  }

private:
  void LayFiles() const;
  void FillDatabase() const;
  void AddPictures() const;

  ProgramFolder folder_;
};
