// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A list of people, printed to a file, and what its open document takes of the memory.

#include "Measure.h"

#include "lookup/modPrinterMargins.h"
#include "platform/PrintDocument.h"
#include "platform/Printer.h"

#include <QTemporaryDir>

#include <malloc.h>

namespace {

constexpr int kPrintings = 5;
constexpr int kLinesOfPerson = 9;

QTemporaryDir& Folder()
{
  static QTemporaryDir folder;
  return folder;
}

std::unique_ptr<QPrinter> FilePrinter()
{
  auto printer = PrintDocument::UsualPrinter();
  printer->setOutputFileName(Folder().filePath(QStringLiteral("list.pdf")));
  return printer;
}

void PrintPerson(int number)
{
  Printer::SetFontSize(14);
  Printer::SetFontBold(true);
  modPrinterMargins::PrinterMargins();
  Printer::Print(QStringLiteral("First%1 Last%1").arg(number));
  Printer::SetFontSize(12);
  Printer::SetFontBold(false);
  for (int line = 0; line < kLinesOfPerson; ++line) {
    modPrinterMargins::PrinterMargins();
    Printer::Print(QStringLiteral("Caption:\t\tText %1 of person %2").arg(line).arg(number));
  }
}

void PrintPeople(int people)
{
  Printer::Use(FilePrinter());
  for (int number = 0; number < people; ++number) {
    PrintPerson(number);
  }
}

double SecondsForPeople(int people)
{
  return SecondsFor([&] {
    PrintPeople(people);
    Printer::EndDoc();
  });
}

double HeapBytes()
{
  return static_cast<double>(mallinfo2().uordblks);
}

double BytesOfOpenDocument(int people)
{
  const double before = HeapBytes();
  PrintPeople(people);
  const double bytes = HeapBytes() - before;
  Printer::EndDoc();
  return bytes;
}

// 49 lines a page, as the list above has.
double BytesOfBareWriter(int people)
{
  const double before = HeapBytes();
  const auto printer = FilePrinter();
  QPainter painter(printer.get());
  painter.setFont(QFont(QStringLiteral("arial"), 12));
  for (int line = 0; line < people * (kLinesOfPerson + 1); ++line) {
    if (line > 0 && line % 49 == 0) {
      printer->newPage();
    }
    painter.drawText(QPointF(900, line % 49 * 230), QStringLiteral("Caption:"));
    painter.drawText(QPointF(2800, line % 49 * 230), QStringLiteral("Text %1 of a person").arg(line));
  }
  const double bytes = HeapBytes() - before;
  painter.end();
  return bytes;
}

Figures PrintingTime(int people)
{
  return {MedianOf([&] { return SecondsForPeople(people); }, kPrintings), {}};
}

Figures PrintingMemory(int people)
{
  SecondsForPeople(1);
  return {BytesOfOpenDocument(people), BytesOfBareWriter(people)};
}

}

Lines PrintingLines()
{
  return {
      {"printing 10,000 people, 10 lines each, to a PDF file: time",
       "ten times 1,000 people",
       1.3,
       PrintingTime,
       {1000, 10'000},
       10},
      {"the same: memory while the document is open",
       "the bare PDF writer with as many texts on as many pages",
       1.3,
       PrintingMemory,
       {10'000},
       1,
       1.0 / 1024 / 1024,
       "MB"},
  };
}
