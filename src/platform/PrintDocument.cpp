// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/PrintDocument.h"

#include "platform/App.h"
#include "platform/RuntimeError.h"

#include <QFile>
#include <QFileInfo>
#include <QLibrary>
#include <QLocale>
#include <QPrinterInfo>

#include <algorithm>
#include <cups/cups.h>

namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kTwipsPerPoint = 20;
constexpr double kMillimetresPerInch = 25.4;
constexpr double kMarginPoints = 18;

bool GoesToFile(const QPrinter& printer)
{
  return printer.outputFormat() == QPrinter::PdfFormat;
}

QPageSize UsualPaper(const QPrinter& printer)
{
  if (!GoesToFile(printer)) {
    return QPrinterInfo(printer).defaultPageSize();
  }
  const bool american = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
  return QPageSize(american ? QPageSize::Letter : QPageSize::A4);
}

// In twips. The toolkit rounds margins in points to whole ones.
QMarginsF Margins(const QPageLayout& layout)
{
  return layout.margins(QPageLayout::Millimeter) * (kTwipsPerInch / kMillimetresPerInch);
}

// A printer leaves the rim of its paper blank, which the toolkit does not turn with the page. Which
// way round the paper runs then is not known.
void KeepOffRim(QPrinter& printer)
{
  const QPageLayout layout = printer.pageLayout();
  if (layout.orientation() == QPageLayout::Landscape) {
    const QMarginsF rim = layout.minimumMargins();
    const double sides = std::max(rim.top(), rim.bottom());
    const double ends = std::max(rim.left(), rim.right());
    printer.setPageMargins(layout.margins() | QMarginsF(sides, ends, sides, ends), layout.units());
  }
}

// From where the toolkit begins to paint, at a whole dot, to the very corner of the printable area.
QPointF ShiftToPrintableArea(const QPageLayout& layout, int resolution)
{
  const QMarginsF margins = Margins(layout);
  const QPointF corner = QPointF(margins.left(), margins.top()) * resolution / kTwipsPerInch;
  return corner - layout.paintRectPixels(resolution).topLeft();
}

// The toolkit does not tell when a disk is full or a printer takes no documents.
bool IsWholeFile(const QString& path)
{
  constexpr qint64 kTail = 16;
  if (QFileInfo::exists(path) && !QFileInfo(path).isFile()) {
    return true;
  }
  QFile file(path);
  return file.open(QIODevice::ReadOnly) && file.seek(qMax(0LL, file.size() - kTail)) &&
         file.readAll().contains("%%EOF");
}

// The library is there whenever a document went to a server. It brings twenty others with it,
// which the start of the program should not wait for.
bool WasTakenByServer()
{
  const auto lastError =
      reinterpret_cast<decltype(&cupsLastError)>(QLibrary::resolve(QStringLiteral("cups"), 2, "cupsLastError"));
  const ipp_status_t status = lastError == nullptr ? IPP_STATUS_ERROR_INTERNAL : lastError();
  return status >= IPP_STATUS_OK && status <= IPP_STATUS_OK_EVENTS_COMPLETE;
}

}

PrintDocument::PrintDocument(std::unique_ptr<QPrinter> printer) : printer_(std::move(printer))
{
  KeepOffRim(*printer_);
}

PrintDocument::~PrintDocument() = default;

std::unique_ptr<QPrinter> PrintDocument::UsualPrinter()
{
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setDocName(QLatin1String(App::kTitle));
  printer->setCreator(QLatin1String(App::kTitle));
  printer->setPageSize(UsualPaper(*printer));
  printer->setPageMargins(QMarginsF(kMarginPoints, kMarginPoints, kMarginPoints, kMarginPoints), QPageLayout::Point);
  return printer;
}

QSizeF PrintDocument::PrintableArea() const
{
  const QPageLayout layout = printer_->pageLayout();
  const QSizeF paper = QSizeF(layout.fullRectPoints().size()) * kTwipsPerPoint;
  return paper.shrunkBy(Margins(layout)).expandedTo(QSizeF(1, 1));
}

QPageLayout::Orientation PrintDocument::Orientation() const
{
  return printer_->pageLayout().orientation();
}

void PrintDocument::SetOrientation(QPageLayout::Orientation orientation)
{
  printer_->setPageOrientation(orientation);
  KeepOffRim(*printer_);
}

QPainter* PrintDocument::Page(double scale)
{
  begun_ = true;
  if (!IsWanted()) {
    return nullptr;
  }
  if (!painter_.isActive()) {
    Begin(scale);
  } else if (!pageBegun_ && !printer_->newPage()) {
    RaiseError(ErrorNumber::kPrinter);
  }
  pageBegun_ = true;
  return &painter_;
}

void PrintDocument::NewPage(double scale)
{
  static_cast<void>(Page(scale));
  ++page_;
  pageBegun_ = false;
}

void PrintDocument::End()
{
  if (!painter_.isActive()) {
    return;
  }
  const bool ended = painter_.end();
  if (!ended || !(GoesToFile(*printer_) ? IsWholeFile(printer_->outputFileName()) : WasTakenByServer())) {
    RaiseError(ErrorNumber::kPrinter);
  }
}

bool PrintDocument::IsWanted() const
{
  return printer_->printRange() != QPrinter::PageRange ||
         (page_ >= printer_->fromPage() && page_ <= printer_->toPage());
}

void PrintDocument::Begin(double scale)
{
  const bool hasPlace = !GoesToFile(*printer_) || !printer_->outputFileName().isEmpty();
  if (!hasPlace || !painter_.begin(printer_.get())) {
    RaiseError(ErrorNumber::kPrinter);
  }
  painter_.translate(ShiftToPrintableArea(printer_->pageLayout(), printer_->resolution()));
  const double unit = printer_->resolution() / kTwipsPerInch * scale;
  painter_.scale(unit, unit);
}
