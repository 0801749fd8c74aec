// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/HelpPage.h"

#include "platform/HelpBook.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>
#include <QTextDocument>

namespace {

constexpr int kMargin = 24;
constexpr int kWidestPicture = 576;
const QColor kPictureLine(0xE9, 0xD9, 0xBC);
const QColor kMarked(0xFF, 0xE0, 0x8A);

}

HelpPage::HelpPage(const HelpBook& book, QWidget* parent) : QTextBrowser(parent), book_(book)
{
  setOpenLinks(false);
  document()->setDocumentMargin(kMargin);
}

QVariant HelpPage::loadResource(int type, const QUrl& name)
{
  const QUrl address = name.isRelative() ? document()->baseUrl().resolved(name) : name;
  const QByteArray read = book_.Read(address);
  if (type == QTextDocument::ImageResource) {
    return Picture(read);
  }
  if (read.isEmpty() && type != QTextDocument::StyleSheetResource) {
    return QStringLiteral("<p>This page of the help cannot be read.</p>");
  }
  return QString::fromUtf8(read);
}

QVariant HelpPage::Picture(const QByteArray& file) const
{
  QBuffer buffer;
  buffer.setData(file);
  QImageReader reader(&buffer);
  QSize size = reader.size();
  if (size.width() > kWidestPicture) {
    size.scale(kWidestPicture, size.height(), Qt::KeepAspectRatio);
  }
  reader.setScaledSize(size * devicePixelRatioF());
  const bool isDrawing = reader.format() == "svg";
  QImage image = reader.read();
  image.setDevicePixelRatio(devicePixelRatioF());
  if (!isDrawing && !image.isNull()) {
    QPainter painter(&image);
    painter.setPen(kPictureLine);
    painter.drawRect(QRectF({0.5, 0.5}, image.deviceIndependentSize() - QSizeF(1, 1)));
  }
  return image;
}

void HelpPage::Mark(const QString& words)
{
  QList<QTextEdit::ExtraSelection> marks;
  const QRegularExpression pattern = HelpSearch::PatternOf(words);
  if (!pattern.pattern().isEmpty()) {
    for (QTextCursor hit = document()->find(pattern); !hit.isNull(); hit = document()->find(pattern, hit)) {
      QTextEdit::ExtraSelection mark;
      mark.cursor = hit;
      mark.format.setBackground(kMarked);
      marks.append(mark);
    }
  }
  setExtraSelections(marks);
  if (!marks.isEmpty()) {
    QTextCursor first = marks.first().cursor;
    first.clearSelection();
    setTextCursor(first);
  }
}
