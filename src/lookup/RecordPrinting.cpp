// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/RecordPrinting.h"

#include "controls/WrappedLines.h"
#include "lookup/PersonResults.h"
#include "lookup/PersonValues.h"
#include "lookup/PrintedLines.h"

namespace RecordPrinting {
namespace {

using PrintedLines::Tabs;

constexpr int kNotesWidth = 6135;
constexpr int kLongestLine = 80;

void PrintItem(const ResultBox& box, const QString& between)
{
  if (box.IsWanted()) {
    PrintedLines::Print(box.Caption() + QLatin1Char(':') + between + box.Text());
  }
}

QString AddressLine(const QString& caption, const AddressBlock& block)
{
  const QString start = caption + QLatin1Char(':') + Tabs(2);
  if (block.city.isNull() && block.printableStreet.isNull() && block.country.isNull()) {
    return start + kUnavailable;
  }
  const QString lineBreak = QStringLiteral("\r\n") + Tabs(4);
  return start + block.printableStreet + lineBreak + block.city + lineBreak + block.country;
}

void PrintNotes(const QStringList& notes)
{
  for (qsizetype line = 0; line < notes.size(); ++line) {
    PrintedLines::Print((line == 0 ? QStringLiteral("Notes:") + Tabs(2) : Tabs(3)) + notes[line]);
  }
}

}

void PrintStuff(const QString& fullName, PersonResults& results, const QStringList& notes)
{
  PrintedLines::PrintHeading(fullName);
  PrintedLines::SetBodyFont();
  PrintItem(results.phone, QStringLiteral("   ") + Tabs(1));
  PrintItem(results.mobile, Tabs(2));
  PrintItem(results.business, Tabs(1));
  PrintItem(results.email, Tabs(2));
  if (results.address.IsWanted()) {
    PrintedLines::Print(AddressLine(results.address.Caption(), results.block));
  }
  PrintItem(results.birthday, Tabs(2));
  PrintItem(results.anniversary, Tabs(2));
  if (results.notes.IsWanted()) {
    PrintNotes(notes);
  }
}

QStringList NotesLines(const QString& notes, const QFont& font)
{
  QStringList lines = WrappedLines(notes, font, kNotesWidth);
  for (QString& line : lines) {
    const bool halves = line.size() > kLongestLine && line[kLongestLine - 1].isHighSurrogate();
    line.truncate(halves ? kLongestLine - 1 : kLongestLine);
  }
  return lines;
}

}
