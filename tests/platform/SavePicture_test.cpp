// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/RuntimeError.h"
#include "platform/SavePicture.h"
#include "support/ErrorOf.h"
#include "support/FullDisk.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>

namespace {

class SavedPictures : public testing::Test
{
protected:
  // A picture whose pixels all differ.
  static QImage PictureOf(int width, int height)
  {
    QImage picture(width, height, QImage::Format_RGB32);
    for (int x = 0; x < width; ++x) {
      for (int y = 0; y < height; ++y) {
        picture.setPixelColor(x, y, QColor(x % 256, y % 256, (x * 7 + y * 13) % 256));
      }
    }
    return picture;
  }

  [[nodiscard]] QString Path(const QString& name) const { return folder.path() + "/" + name; }

  static QByteArray Contents(const QString& path)
  {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
  }

  void Write(const QString& name, const QByteArray& contents) const
  {
    QFile file(Path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
  }

  [[nodiscard]] QStringList Files() const
  {
    return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
  }

  static int SavingError(const QImage& picture, const QString& path)
  {
    return ErrorOf([&] { SavePicture(picture, path); });
  }

  QTemporaryDir folder;
};

}

TEST_F(SavedPictures, AreBitmapsWithAllTheirPixels)
{
  for (const QSize size : {QSize(1, 1), QSize(3, 2), QSize(320, 200), QSize(201, 333)}) {
    const QImage picture = PictureOf(size.width(), size.height());
    SavePicture(picture, Path("7.bmp"));
    QImageReader reader(Path("7.bmp"));
    EXPECT_EQ(reader.format(), "bmp");
    EXPECT_EQ(reader.read().convertToFormat(QImage::Format_RGB32), picture);
  }
}

TEST_F(SavedPictures, AreBitmapsWhateverTheirName)
{
  for (const QString name : {"7.png", "7.jpg", "7", "é 茶.bmp"}) {
    SavePicture(PictureOf(5, 4), Path(name));
    EXPECT_TRUE(Contents(Path(name)).startsWith("BM")) << name.toStdString();
  }
}

TEST_F(SavedPictures, TakeThePlaceOfWhatStandsThere)
{
  Write("7.bmp", QByteArray(100'000, 'x'));
  const QImage picture = PictureOf(9, 9);
  SavePicture(picture, Path("7.bmp"));
  EXPECT_EQ(QImage(Path("7.bmp")).convertToFormat(QImage::Format_RGB32), picture);
  EXPECT_EQ(Files(), QStringList("7.bmp"));
}

TEST_F(SavedPictures, AreRefusedWhereTheyCannotBeWritten)
{
  Write("letter.txt", "A letter.");
  ASSERT_TRUE(QDir(folder.path()).mkdir("folder"));
  for (const QString name : {"none/7.bmp", "letter.txt/7.bmp", "folder", ""}) {
    EXPECT_EQ(SavingError(PictureOf(5, 4), Path(name)), ErrorNumber::kFileAccess) << name.toStdString();
  }
  EXPECT_EQ(SavingError(PictureOf(5, 4), {}), ErrorNumber::kFileAccess);
  EXPECT_EQ(Files(), QStringList({"folder", "letter.txt"}));
}

TEST_F(SavedPictures, TheEmptyOneIsRefused)
{
  Write("7.bmp", "A picture.");
  EXPECT_EQ(SavingError({}, Path("7.bmp")), ErrorNumber::kFileAccess);
  EXPECT_EQ(SavingError({}, Path("8.bmp")), ErrorNumber::kFileAccess);
  EXPECT_EQ(Contents(Path("7.bmp")), "A picture.");
  EXPECT_EQ(Files(), QStringList("7.bmp"));
}

TEST_F(SavedPictures, AppearWholeOrNotAtAllOnAFullDisk)
{
  for (const auto& [side, limit] : {std::pair(300, 10'000), std::pair(20, 1000), std::pair(1, 0)}) {
    SCOPED_TRACE(side);
    Write("7.bmp", "A picture.");
    const QImage picture = PictureOf(side, side);
    {
      const FullDisk disk(static_cast<rlim_t>(limit));
      EXPECT_EQ(SavingError(picture, Path("7.bmp")), ErrorNumber::kFileAccess);
      EXPECT_EQ(SavingError(picture, Path("8.bmp")), ErrorNumber::kFileAccess);
    }
    EXPECT_EQ(Contents(Path("7.bmp")), "A picture.");
    EXPECT_EQ(Files(), QStringList("7.bmp")) << "nothing half is left behind";
    SavePicture(picture, Path("7.bmp"));
    EXPECT_EQ(QImage(Path("7.bmp")).size(), picture.size());
  }
}
