// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/WrappedLines.h"

#include "platform/Twips.h"

#include <QTextLayout>

namespace {

QStringList Paragraphs(QString text)
{
  return text.replace(QLatin1String("\r\n"), QLatin1String("\n"))
      .replace(QLatin1Char('\r'), QLatin1Char('\n'))
      .split(QLatin1Char('\n'));
}

void Wrap(const QString& paragraph, const QFont& font, int width, QStringList& lines)
{
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  QTextLayout layout(paragraph, font);
  layout.setTextOption(option);
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    lines.append(paragraph.mid(line.textStart(), line.textLength()));
  }
  layout.endLayout();
}

}

QStringList WrappedLines(const QString& text, const QFont& font, int widthTwips)
{
  QStringList lines;
  for (const QString& paragraph : Paragraphs(text)) {
    if (paragraph.isEmpty()) {
      lines.append(QString());
    } else {
      Wrap(paragraph, font, PixelsFromTwips(widthTwips), lines);
    }
  }
  return lines;
}
