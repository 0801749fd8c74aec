// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LoadPicture.h"
#include "platform/RuntimeError.h"
#include "support/ErrorOf.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtEndian>

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

  // The picture as a file of that kind.
  static QByteArray Encoded(const QImage& picture, const char* kind)
  {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(buffer.open(QIODevice::WriteOnly) && picture.save(&buffer, kind)) << kind;
    return bytes;
  }

  // A photograph whose camera was held in one of eight ways; left half red, right half blue.
  static QByteArray Photograph(QSize size, char orientation)
  {
    QImage picture(size, QImage::Format_RGB32);
    for (int x = 0; x < size.width(); ++x) {
      for (int y = 0; y < size.height(); ++y) {
        picture.setPixel(x, y, x < size.width() / 2 ? qRgb(255, 0, 0) : qRgb(0, 0, 255));
      }
    }
    QByteArray exif("Exif\0\0MM\0\x2A\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0?\0\0\0\0\0\0", 32);
    exif[25] = orientation;
    QByteArray file = Encoded(picture, "jpg");
    file.insert(2, QByteArray("\xFF\xE1\0\x22", 4) + exif);
    return file;
  }

  static quint32 Crc(const QByteArray& bytes)
  {
    quint32 crc = 0xFFFFFFFF;
    for (const char byte : bytes) {
      crc ^= static_cast<unsigned char>(byte);
      for (int bit = 0; bit < 8; ++bit) {
        crc = (crc >> 1U) ^ ((crc & 1U) != 0 ? 0xEDB88320 : 0);
      }
    }
    return ~crc;
  }

  static QByteArray BigEndian(quint32 number)
  {
    const quint32 bytes = qToBigEndian(number);
    return {reinterpret_cast<const char*>(&bytes), sizeof bytes};
  }

  static QByteArray Chunk(const QByteArray& kind, const QByteArray& contents)
  {
    return BigEndian(static_cast<quint32>(contents.size())) + kind + contents + BigEndian(Crc(kind + contents));
  }

  // A small file that says it is a very large picture.
  static QByteArray LargePng(quint32 side)
  {
    const QByteArray kind("\x08\x06\0\0\0", 5);
    const QByteArray data = qCompress(QByteArray(1'000'000, 0), 9).mid(4);
    return QByteArray("\x89PNG\r\n\x1A\n") + Chunk("IHDR", BigEndian(side) + BigEndian(side) + kind) +
           Chunk("IDAT", data) + Chunk("IEND", {});
  }

  static QByteArray LargeBmp(int side)
  {
    QByteArray file = Encoded(QImage(4, 4, QImage::Format_RGB32), "bmp");
    const int sideAsWritten = qToLittleEndian(side);
    for (const int offset : {18, 22}) {
      file.replace(offset, 4, QByteArray(reinterpret_cast<const char*>(&sideAsWritten), 4));
    }
    return file;
  }

  QTemporaryDir folder;
  QImage image{7, 5, QImage::Format_RGB32};
};

bool IsRed(const QColor& colour)
{
  return colour.red() > 200 && colour.green() < 60 && colour.blue() < 60;
}

bool IsBlue(const QColor& colour)
{
  return colour.blue() > 200 && colour.green() < 60 && colour.red() < 60;
}

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
  EXPECT_EQ(LoadingError(folder.path()), ErrorNumber::kInvalidPicture);
  EXPECT_EQ(LoadingError(folder.path() + "/"), ErrorNumber::kInvalidPicture);
}

TEST_F(Pictures, HalfOfOneIsNone)
{
  QImage picture(200, 200, QImage::Format_RGB32);
  for (int i = 0; i < 200 * 200; ++i) {
    picture.setPixel(i % 200, i / 200, static_cast<uint>(i) * 2654435761U);
  }
  const QByteArray whole = Encoded(picture, "png");
  EXPECT_EQ(LoadingError(Written("half.png", whole.first(whole.size() / 2))), ErrorNumber::kInvalidPicture);
  for (const char* kind : {"png", "bmp", "jpg"}) {
    const QByteArray start = Encoded(picture, kind).first(20);
    EXPECT_EQ(LoadingError(Written(QStringLiteral("start.") + kind, start)), ErrorNumber::kInvalidPicture) << kind;
  }
}

TEST_F(Pictures, LargeOnesComeSmallerInTheirProportion)
{
  const struct
  {
    QSize size;
    const char* kind;
  } kCases[] = {
      {{6000, 3000}, "png"}, {{3000, 6000}, "png"}, {{9000, 4500}, "jpg"}, {{4500, 9000}, "jpg"}, {{6000, 3000}, "bmp"},
  };
  for (const auto& [size, kind] : kCases) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const QImage loaded = LoadPicture(Written("large", Encoded(picture, kind))).toImage();
    EXPECT_LT(loaded.width(), size.width()) << kind;
    EXPECT_GE(std::max(loaded.width(), loaded.height()), 1024) << kind;
    EXPECT_NEAR(double(loaded.width()) / loaded.height(), double(size.width()) / size.height(), 0.01) << kind;
    for (const QPoint& corner : {QPoint(0, 0), QPoint(loaded.width() - 1, loaded.height() - 1)}) {
      EXPECT_TRUE(IsRed(loaded.pixelColor(corner))) << kind;
    }
  }
}

TEST_F(Pictures, LongThinOnesKeepSomethingOfTheirThinSide)
{
  for (const QSize size : {QSize(20'000, 2), QSize(2, 20'000)}) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const QImage loaded = LoadPicture(Written("thin.png", Encoded(picture, "png"))).toImage();
    EXPECT_GE(std::min(loaded.width(), loaded.height()), 1);
    EXPECT_LT(std::max(loaded.width(), loaded.height()), 20'000);
    EXPECT_EQ(loaded.width() > loaded.height(), size.width() > size.height());
  }
}

TEST_F(Pictures, ThatAScreenCanShowKeepTheirSize)
{
  for (const QSize size : {QSize(1920, 1080), QSize(1080, 1920)}) {
    const QImage picture(size, QImage::Format_RGB32);
    EXPECT_EQ(LoadPicture(Written("screen.png", Encoded(picture, "png"))).size(), size);
  }
}

TEST_F(Pictures, ThatClaimToBeHugeAreRefused)
{
  for (const quint32 side : {30'000U, 100'000U, 0x7FFFFFFFU}) {
    EXPECT_EQ(LoadingError(Written("huge.png", LargePng(side))), ErrorNumber::kInvalidPicture) << side;
    EXPECT_EQ(LoadingError(Written("huge.bmp", LargeBmp(static_cast<int>(side)))), ErrorNumber::kInvalidPicture)
        << side;
  }
}

TEST_F(Pictures, StandUprightHoweverTheCameraWasHeld)
{
  const QSize lying(80, 40);
  const QSize standing(40, 80);
  const struct
  {
    char orientation;
    QSize size;
    QPoint red;
    QPoint blue;
  } kCases[] = {
      {1, lying, {10, 20}, {70, 20}},    {2, lying, {70, 20}, {10, 20}},    {3, lying, {70, 20}, {10, 20}},
      {4, lying, {10, 20}, {70, 20}},    {5, standing, {20, 10}, {20, 70}}, {6, standing, {20, 10}, {20, 70}},
      {7, standing, {20, 70}, {20, 10}}, {8, standing, {20, 70}, {20, 10}},
  };
  for (const auto& [orientation, size, red, blue] : kCases) {
    const QImage loaded = LoadPicture(Written("photo.jpg", Photograph(lying, orientation))).toImage();
    ASSERT_EQ(loaded.size(), size) << int(orientation);
    EXPECT_TRUE(IsRed(loaded.pixelColor(red))) << int(orientation);
    EXPECT_TRUE(IsBlue(loaded.pixelColor(blue))) << int(orientation);
  }
}

TEST_F(Pictures, LargePhotographsStandUprightInTheirProportion)
{
  const QImage loaded = LoadPicture(Written("photo.jpg", Photograph({6000, 3000}, 6))).toImage();
  EXPECT_LT(loaded.height(), 6000);
  EXPECT_NEAR(double(loaded.height()) / loaded.width(), 2.0, 0.01);
  EXPECT_TRUE(IsRed(loaded.pixelColor(loaded.width() / 2, loaded.height() / 8)));
  EXPECT_TRUE(IsBlue(loaded.pixelColor(loaded.width() / 2, loaded.height() * 7 / 8)));
}

TEST_F(Pictures, WithoutAPathTheOneIsEmpty)
{
  EXPECT_TRUE(LoadPicture().isNull());
}
