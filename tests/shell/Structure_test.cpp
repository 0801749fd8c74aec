// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDir>
#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QTextStream>

#include <gtest/gtest.h>

namespace {

// Which folders of src/ a folder may include, beside itself.
const QMap<QString, QStringList> kMayInclude = {
    {"platform", {}},
    {"store", {"platform"}},
    {"controls", {"platform"}},
    {"looks", {"platform", "store", "controls"}},
    {"reminders", {"platform", "store", "controls", "looks"}},
    {"charts", {"platform", "store", "controls", "looks"}},
    {"people", {"platform", "store", "controls", "looks", "charts"}},
    {"anniversaries", {"platform", "store", "controls", "looks", "charts", "people"}},
    {"lookup", {"platform", "store", "controls", "looks", "charts", "people"}},
    {"occasions", {"platform", "store", "controls", "looks", "charts", "people", "lookup"}},
    {"calendar", {"platform", "store", "controls", "looks", "lookup"}},
    {"shell",
     {"platform", "store", "controls", "looks", "reminders", "charts", "people", "anniversaries", "lookup", "occasions",
      "calendar"}},
};

QStringList SourceFiles(const QStringList& patterns)
{
  QStringList files;
  QDirIterator iterator(QStringLiteral(QUILLMARK_SOURCE "/src"), patterns, QDir::Files, QDirIterator::Subdirectories);
  while (iterator.hasNext()) {
    files.append(iterator.next());
  }
  return files;
}

QString Contents(const QString& path)
{
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

}

TEST(Structure, EveryFolderIncludesOnlyWhatIsBelowIt)
{
  const QRegularExpression include(QStringLiteral("#include \"(\\w+)/"));
  const QStringList files = SourceFiles({"*.h", "*.cpp", "*.ui"});
  ASSERT_FALSE(files.isEmpty());
  for (const QString& path : files) {
    const QString folder = QFileInfo(path).dir().dirName();
    ASSERT_TRUE(kMayInclude.contains(folder)) << path.toStdString();
    auto match = include.globalMatch(Contents(path));
    while (match.hasNext()) {
      const QString included = match.next().captured(1);
      EXPECT_TRUE(included == folder || kMayInclude[folder].contains(included))
          << path.toStdString() << " includes " << included.toStdString();
    }
  }
}

TEST(Structure, NoFileOutgrowsItsPurpose)
{
  for (const QString& path : SourceFiles({"*.h", "*.cpp"})) {
    EXPECT_LE(Contents(path).count(QLatin1Char('\n')), 450) << path.toStdString();
  }
}

TEST(Structure, EverySourceSaysItsLicence)
{
  for (const QString& path : SourceFiles({"*.h", "*.cpp", "*.ui", "*.sql", "*.qss"})) {
    EXPECT_TRUE(Contents(path).contains("SPDX-FileCopyrightText: 2026 The Quillmark authors")) << path.toStdString();
    EXPECT_TRUE(Contents(path).contains("GPL-3.0-or-later")) << path.toStdString();
  }
}
