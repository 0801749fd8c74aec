// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A list of 10,000 people, printed to a file, against ten times the list of 1,000: at most 1.3.
// Memory while the longer document is open, against that of the toolkit's own PDF writer with as
// many texts on as many pages: at most 1.3.

#include "Measure.h"

#include "lookup/modPrinterMargins.h"
#include "platform/Application.h"
#include "platform/PrintDocument.h"
#include "platform/Printer.h"

#include <QTemporaryDir>

#include <malloc.h>

namespace {

constexpr int kFew = 1000;
constexpr int kMany = 10'000;
constexpr int kRuns = 5;
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

double BytesOfOpenDocument()
{
  const double before = HeapBytes();
  PrintPeople(kMany);
  const double bytes = HeapBytes() - before;
  Printer::EndDoc();
  return bytes;
}

// 49 lines a page, as the list above has.
double BytesOfBareWriter()
{
  const double before = HeapBytes();
  const auto printer = FilePrinter();
  QPainter painter(printer.get());
  painter.setFont(QFont(QStringLiteral("arial"), 12));
  for (int line = 0; line < kMany * (kLinesOfPerson + 1); ++line) {
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

void PrintingTime(benchmark::State& state)
{
  for (auto _ : state) {
    const double few = MedianOf([] { return SecondsForPeople(kFew); }, kRuns);
    ReportRatio(state, MedianOf([] { return SecondsForPeople(kMany); }, kRuns), 10 * few, 1.3);
  }
}

void PrintingMemory(benchmark::State& state)
{
  for (auto _ : state) {
    SecondsForPeople(1);
    const double bytes = BytesOfOpenDocument();
    const double bare = BytesOfBareWriter();
    state.counters["kB"] = bytes / 1024;
    state.counters["against_kB"] = bare / 1024;
    state.counters["ratio"] = bytes / bare;
    state.counters["must"] = 1.3;
  }
}

}

BENCHMARK(PrintingTime)->Iterations(1);
BENCHMARK(PrintingMemory)->Iterations(1);

int main(int argc, char** argv)
{
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const Application application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
