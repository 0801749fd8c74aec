// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ShellTest.h"

#include "platform/Command.h"
#include "support/FullDisk.h"
#include "support/WithoutRights.h"

#include <QDir>

#include <sys/stat.h>

// The commands of the menu that look after the database file.
class DatabaseCareTest : public ShellTest
{
protected:
  void Choose(const char* entry) const
  {
    Command::Run([&] { Menu(entry).trigger(); });
  }

  static QByteArray Contents(const QString& path)
  {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
  }

  static void Write(const QString& path, const QByteArray& contents)
  {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
  }

  static void MakePublic(const QString& path, int mode)
  {
    ASSERT_EQ(chmod(path.toUtf8().constData(), static_cast<mode_t>(mode)), 0);
  }

  [[nodiscard]] QByteArray Database() const { return Contents(folder.DatabasePath()); }

  // Makes room in the file that nothing uses.
  void Waste() const
  {
    folder.Execute("INSERT INTO People (PeopleID, FirstName, Notes) VALUES (1, 'Ann', 'kept'), (2, 'Bob', ?)",
                   {QString(500'000, u'n')});
    folder.Execute("DELETE FROM People WHERE PeopleID=2");
  }

  QTemporaryDir elsewhere;
};
