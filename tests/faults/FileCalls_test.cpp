// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "FileCalls.h"

#include "platform/Files.h"
#include "platform/SavePicture.h"
#include "store/DBEngine.h"
#include "support/ProgramFolder.h"
#include "support/Tampering.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>

namespace {

// Every way in which the program changes files.
void ChangeFiles(const ProgramFolder& folder)
{
  const QImage picture(40, 30, QImage::Format_RGB32);
  folder.Execute("INSERT INTO People (FirstName, Notes) VALUES ('Ann', hex(zeroblob(9000)))");
  SavePicture(picture, folder.File("/1.bmp"));
  SavePicture(picture, folder.File("/1.bmp"));
  Files::CopyFile(folder.DatabasePath(), folder.File("/copy"));
  Files::CopyFile(folder.DatabasePath(), folder.File("/copy"));
  DBEngine::CompactDatabase(folder.DatabasePath(), folder.File("/compact"));
  QFile::setPermissions(folder.File("/compact"), QFile::ReadOwner | QFile::WriteOwner);
  Files::DeleteFile(folder.File("/copy"));
  Files::Name(folder.File("/compact"), folder.File("/copy"));
}

}

// The system's own record of what the process did is the measure.
TEST(FileCalls, AreAllCounted)
{
  const ProgramFolder folder;
  ChangeFiles(folder);  // sanitizers write when they see a type for the first time
  const Tampering::Outcome outcome = Tampering::Watch(
      [&](const Tampering::Say& say) {
        FileCalls::Watch(folder.Path().toStdString());
        ChangeFiles(folder);
        FileCalls::Stop();
        for (const FileCalls::Step& step : FileCalls::Steps()) {
          say(QString::fromStdString(step.call + ' ' + step.path));
        }
      },
      folder.Path());
  QStringList seen;
  for (const Tampering::Step& step : outcome.steps) {
    seen.append(step.line.left(140));
  }
  EXPECT_GT(seen.size(), 60);
  EXPECT_EQ(outcome.said.size(), seen.size()) << outcome.said.join('\n').toStdString() << "\n\n"
                                              << seen.join('\n').toStdString();
}
