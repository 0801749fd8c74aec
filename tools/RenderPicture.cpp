// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Draws one SVG at a given size: RenderPicture in.svg out.jpg|out.bmp|out.png width height
// A .jpg or a .bmp stands on pure white; a .png keeps its transparency.

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char** argv)
{
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  if (arguments.size() != 5) {
    std::fprintf(stderr, "usage: RenderPicture in.svg out.jpg|out.bmp|out.png width height\n");
    return 2;
  }
  QSvgRenderer renderer(arguments[1]);
  const QSize size(arguments[3].toInt(), arguments[4].toInt());
  if (!renderer.isValid() || size.isEmpty()) {
    std::fprintf(stderr, "RenderPicture: %s cannot be drawn\n", argv[1]);
    return 1;
  }
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(arguments[2].endsWith(QLatin1String(".png")) ? Qt::transparent : Qt::white);
  QPainter painter(&image);
  renderer.render(&painter);
  painter.end();
  if (!image.save(arguments[2], nullptr, 92)) {
    std::fprintf(stderr, "RenderPicture: %s cannot be written\n", argv[2]);
    return 1;
  }
  return 0;
}
