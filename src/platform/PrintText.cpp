// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/PrintText.h"

#include "platform/PrintFont.h"

#include <QStringList>

#include <algorithm>

namespace {

constexpr QChar kTab = u'\t';
constexpr QChar kBreak = u'\n';

QString WithPlainBreaks(QString text)
{
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  for (QChar& character : text) {
    if (character == u'\r' || character == QChar::LineSeparator || character == QChar::ParagraphSeparator) {
      character = kBreak;
    }
  }
  text.removeIf([](QChar character) {
    return character != kTab && character != kBreak && character.category() == QChar::Other_Control;
  });
  return text;
}

double AddLine(PrintText& cut, const QString& line, const PrintFont& font, double x)
{
  bool first = true;
  for (const QString& piece : line.split(kTab)) {
    x = first ? x : font.NextTabStop(x);
    first = false;
    if (!piece.isEmpty()) {
      cut.pieces.push_back({piece, x, cut.lines - 1});
      x += font.Width(piece);
    }
  }
  return x;
}

}

PrintText CutForPrinting(const QString& text, const PrintFont& font, double x)
{
  PrintText cut;
  cut.lines = 0;
  for (const QString& line : WithPlainBreaks(text).split(kBreak)) {
    ++cut.lines;
    cut.endX = AddLine(cut, line, font, cut.lines == 1 ? x : 0);
    cut.width = std::max(cut.width, cut.endX);
  }
  return cut;
}
