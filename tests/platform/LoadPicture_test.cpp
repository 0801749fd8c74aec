// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LoadPicture.h"
#include "platform/RuntimeError.h"
#include "support/ErrorOf.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QTemporaryDir>

namespace {

class Pictures : public testing::Test
{
protected:
  Pictures() { image.fill(QColor(200, 40, 60)); }

  [[nodiscard]] QString Path(const QString& name) const { return folder.path() + "/" + name; }

  [[nodiscard]] QString Written(const QString& name, const QByteArray& contents) const
  {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
    return file.fileName();
  }

  [[nodiscard]] static int LoadingError(const QString& path)
  {
    return ErrorOf([&] { static_cast<void>(LoadPicture(path)); });
  }

  QTemporaryDir folder;
  QImage image{7, 5, QImage::Format_RGB32};
};

}

TEST_F(Pictures, OfEveryUsualKindAreLoaded)
{
  for (const char* kind : {"png", "bmp", "jpg"}) {
    const QString path = Path(QStringLiteral("picture.") + kind);
    ASSERT_TRUE(image.save(path, kind, 100)) << kind;
    const QImage loaded = LoadPicture(path).toImage();
    EXPECT_EQ(loaded.size(), QSize(7, 5)) << kind;
    const QColor colour = loaded.pixelColor(3, 2);
    EXPECT_NEAR(colour.red(), 200, 5) << kind;
    EXPECT_NEAR(colour.green(), 40, 5) << kind;
    EXPECT_NEAR(colour.blue(), 60, 5) << kind;
  }
}

TEST_F(Pictures, KeepTheirPixels)
{
  image.setPixelColor(6, 4, Qt::green);
  ASSERT_TRUE(image.save(Path("picture.png")));
  EXPECT_EQ(LoadPicture(Path("picture.png")).toImage().convertToFormat(QImage::Format_RGB32), image);
}

TEST_F(Pictures, AreKnownByWhatTheyHold)
{
  for (const QString name : {"picture", "picture.txt", "picture.bmp", "picture.jpg"}) {
    ASSERT_TRUE(image.save(Path(name), "png"));
    EXPECT_EQ(LoadPicture(Path(name)).size(), QSize(7, 5)) << name.toStdString();
  }
}

TEST_F(Pictures, AMissingOneIsRefused)
{
  EXPECT_EQ(LoadingError(Path("none.png")), ErrorNumber::kFileNotFound);
  EXPECT_EQ(LoadingError(Path("no/such/picture.png")), ErrorNumber::kFileNotFound);
}

TEST_F(Pictures, WhatIsNoneIsRefused)
{
  const QByteArray signature("\x89PNG\r\n\x1A\n");
  const struct
  {
    const char* name;
    QByteArray contents;
  } kCases[] = {
      {"letter.txt", "A letter.\n"}, {"letter.png", "A letter.\n"},    {"empty.png", ""},   {"empty", ""},
      {"start.png", signature},      {"zeros.bmp", QByteArray(99, 0)}, {"short.bmp", "BM"}, {"short.jpg", "\xFF\xD8"},
  };
  for (const auto& [name, contents] : kCases) {
    EXPECT_EQ(LoadingError(Written(name, contents)), ErrorNumber::kInvalidPicture) << name;
  }
}

TEST_F(Pictures, AFolderIsNone)
{
  EXPECT_NE(LoadingError(folder.path()), 0);
}

TEST_F(Pictures, WithoutAPathTheOneIsEmpty)
{
  EXPECT_TRUE(LoadPicture().isNull());
}
