// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Draws an SVG into an icon of several sizes, or into a mouse cursor of one:
//   RenderIcon in.svg out.ico
//   RenderIcon in.svg out.cur hotspotX hotspotY

#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

namespace {

constexpr quint16 kIcon = 1;
constexpr quint16 kCursor = 2;
constexpr int kCursorSize = 32;

QImage Draw(QSvgRenderer& renderer, int size)
{
  QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  renderer.render(&painter);
  return image;
}

QByteArray Png(const QImage& image)
{
  QByteArray png;
  QBuffer buffer(&png);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return png;
}

// A bitmap without a file header, from the bottom up, whose height counts the mask below it.
// All of the mask is empty: the colours say what is seen through.
QByteArray Bitmap(const QImage& image)
{
  constexpr quint32 kHeaderSize = 40;
  const QImage colours = image.convertToFormat(QImage::Format_ARGB32);
  const int side = colours.width();
  QByteArray bitmap;
  QDataStream stream(&bitmap, QIODevice::WriteOnly);
  stream.setByteOrder(QDataStream::LittleEndian);
  stream << kHeaderSize << qint32(side) << qint32(2 * side) << quint16(1) << quint16(32);
  for (int unused = 0; unused < 6; ++unused) {
    stream << quint32(0);
  }
  for (int y = side - 1; y >= 0; --y) {
    for (int x = 0; x < side; ++x) {
      stream << colours.pixel(x, y);
    }
  }
  bitmap.append(QByteArray(((side + 31) / 32 * 4) * side, '\0'));
  return bitmap;
}

// Small pictures are bitmaps, which are read at once; a large one would be so in bulk.
QByteArray DrawPicture(QSvgRenderer& renderer, int size)
{
  constexpr int kLargestBitmap = 64;
  const QImage image = Draw(renderer, size);
  return size <= kLargestBitmap ? Bitmap(image) : Png(image);
}

// A directory of the pictures, then the pictures. A cursor's entry holds its hot spot
// where an icon's holds planes and depth.
QByteArray Pack(quint16 kind, const QList<int>& sizes, const QList<QByteArray>& pictures, QPoint hotSpot)
{
  constexpr int kHeaderSize = 6;
  constexpr int kEntrySize = 16;
  QByteArray file;
  QDataStream stream(&file, QIODevice::WriteOnly);
  stream.setByteOrder(QDataStream::LittleEndian);
  stream << quint16(0) << kind << quint16(sizes.size());
  auto offset = static_cast<quint32>(kHeaderSize + kEntrySize * sizes.size());
  for (qsizetype i = 0; i < sizes.size(); ++i) {
    const auto side = static_cast<quint8>(sizes[i] >= 256 ? 0 : sizes[i]);
    const auto length = static_cast<quint32>(pictures[i].size());
    stream << side << side << quint8(0) << quint8(0);
    stream << static_cast<quint16>(kind == kCursor ? hotSpot.x() : 1);
    stream << static_cast<quint16>(kind == kCursor ? hotSpot.y() : 32);
    stream << length << offset;
    offset += length;
  }
  for (const QByteArray& picture : pictures) {
    stream.writeRawData(picture.constData(), static_cast<int>(picture.size()));
  }
  return file;
}

}

int main(int argc, char** argv)
{
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  if (arguments.size() != 3 && arguments.size() != 5) {
    std::fprintf(stderr, "usage: RenderIcon in.svg out.ico | RenderIcon in.svg out.cur hotspotX hotspotY\n");
    return 2;
  }
  QSvgRenderer renderer(arguments[1]);
  if (!renderer.isValid()) {
    std::fprintf(stderr, "RenderIcon: %s cannot be drawn\n", argv[1]);
    return 1;
  }
  const bool isCursor = arguments.size() == 5;
  const QPoint hotSpot = isCursor ? QPoint(arguments[3].toInt(), arguments[4].toInt()) : QPoint();
  const QList<int> sizes = isCursor ? QList<int>{kCursorSize} : QList<int>{16, 24, 32, 48, 64, 128, 256};
  QList<QByteArray> pictures;
  for (const int size : sizes) {
    pictures.append(DrawPicture(renderer, size));
  }
  QFile file(arguments[2]);
  const QByteArray packed = Pack(isCursor ? kCursor : kIcon, sizes, pictures, hotSpot);
  if (!file.open(QIODevice::WriteOnly) || file.write(packed) != packed.size()) {
    std::fprintf(stderr, "RenderIcon: %s cannot be written\n", argv[2]);
    return 1;
  }
  return 0;
}
