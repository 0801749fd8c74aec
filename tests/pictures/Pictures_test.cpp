// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures/Tour.h"

#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <gtest/gtest.h>

namespace {

const QString kSource = QStringLiteral(QUILLMARK_SOURCE);
const QString kPictures = kSource + QStringLiteral("/docs/pictures/");
constexpr qint64 kLargestFile = 200 * 1000;
constexpr int kFewestColours = 16;
constexpr int kPatience = 280 * 1000;

QStringList OnTheTour(QString Stop::*part)
{
  QStringList names;
  std::transform(Tour().begin(), Tour().end(), std::back_inserter(names), [=](const Stop& stop) { return stop.*part; });
  names.sort();
  return names;
}

QStringList PicturesIn(const QString& folder)
{
  QStringList names = QDir(folder).entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
  names.replaceInStrings(QStringLiteral(".png"), QString());
  names.sort();
  return names;
}

QStringList ShownInTheReadme()
{
  QFile readme(kSource + QStringLiteral("/README.md"));
  EXPECT_TRUE(readme.open(QIODevice::ReadOnly));
  QStringList names;
  const QRegularExpression picture(QStringLiteral("docs/pictures/([a-z-]+)\\.png"));
  auto match = picture.globalMatch(QString::fromUtf8(readme.readAll()));
  while (match.hasNext()) {
    names.append(match.next().captured(1));
  }
  names.sort();
  return names;
}

QStringList FormsOfTheProgram()
{
  QStringList forms;
  QDirIterator files(kSource + QStringLiteral("/src"), {QStringLiteral("frm*.ui")}, QDir::Files,
                     QDirIterator::Subdirectories);
  while (files.hasNext()) {
    forms.append(QFileInfo(files.next()).baseName());
  }
  return forms;
}

int ColoursIn(const QImage& image)
{
  QSet<QRgb> colours;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      colours.insert(image.pixel(x, y));
    }
  }
  return static_cast<int>(colours.size());
}

}

TEST(Pictures, EveryPageAndWindowHasOne)
{
  const QStringList shown = OnTheTour(&Stop::form);
  const QStringList forms = FormsOfTheProgram();
  ASSERT_FALSE(forms.isEmpty());
  for (const QString& form : forms + QStringList(QStringLiteral("HelpViewer"))) {
    EXPECT_TRUE(shown.contains(form)) << form.toStdString();
  }
}

TEST(Pictures, StandWhereTheDocumentsLookForThemAndNoOthersDo)
{
  EXPECT_EQ(PicturesIn(kPictures), OnTheTour(&Stop::picture));
}

TEST(Pictures, StandInTheReadmeOnceEach)
{
  EXPECT_EQ(ShownInTheReadme(), OnTheTour(&Stop::picture));
}

TEST(Pictures, AreSmallFilesWithSomethingToSee)
{
  for (const Stop& stop : Tour()) {
    const QFile file(kPictures + stop.picture + QStringLiteral(".png"));
    EXPECT_LE(file.size(), kLargestFile) << stop.picture.toStdString();
    EXPECT_GE(ColoursIn(QImage(file.fileName())), kFewestColours) << stop.picture.toStdString();
  }
}

// The way is gone on the program as it is now, by clicks on a display.
TEST(Pictures, CanBeTakenAgain)
{
  const QTemporaryDir folder;
  QProcess taking;
  taking.setProcessChannelMode(QProcess::ForwardedChannels);
  taking.start(kSource + QStringLiteral("/tools/take-pictures"),
               {QStringLiteral("--with"), QStringLiteral(QUILLMARK_BUILD), folder.path()});
  ASSERT_TRUE(taking.waitForFinished(kPatience));
  ASSERT_EQ(taking.exitCode(), 0);
  ASSERT_EQ(PicturesIn(folder.path()), OnTheTour(&Stop::picture));
  for (const Stop& stop : Tour()) {
    const QString file = stop.picture + QStringLiteral(".png");
    const QImage taken(folder.filePath(file));
    EXPECT_EQ(taken.size(), QImage(kPictures + file).size()) << file.toStdString();
    EXPECT_GE(ColoursIn(taken), kFewestColours) << file.toStdString();
  }
}
